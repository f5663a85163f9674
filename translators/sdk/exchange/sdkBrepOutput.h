#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"
#include "sdk/sdkResult.h"

#include <Message_ProgressRange.hxx>

#include <string>

// Makes a document ready for a format of boundary representation as the options ask: drops what is not to be
// processed, makes facets of faces that have only triangles or refuses them, makes polylines of curves,
// tightens loose edges.
class sdkBrepOutput {
public:
    // The options of the format that are not general are named by its prefix: <prefix>WriteFaceted with the
    // values "facet" and "refuse", <prefix>WriteMergeFacets and <prefix>WriteMaxFacets, and
    // <prefix>WriteCurves with "exact" and "polyline".
    sdkBrepOutput(std::string format, std::string prefix, sdkContext & context);

    sdkResult prepare(sdkDocument & document, Message_ProgressRange const & range);

    // What is there to write afterwards. When it has no entities, the reporter was told why.
    sdkEntityCount const & count() const { return m_count; }

private:
    sdkResult replace_facets(sdkDocument & document, Message_ProgressRange const & range);
    void make_polylines(sdkDocument & document, Message_ProgressRange const & range);
    void tighten_edges(sdkDocument & document, Message_ProgressRange const & range);

    std::string m_format;
    std::string m_prefix;
    sdkContext & m_context;
    sdkEntityCount m_count;
};
