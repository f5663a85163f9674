#pragma once

#include "sdk/sdkModule.h"

#include <TopoDS_Shape.hxx>

#include <string_view>

// Writes boundary representation files of Open CASCADE, text and binary, of one shape that has all there is.
class brepWriter : public sdkWriter {
public:
    explicit brepWriter(sdkContext & context);

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;
    sdkResult write(std::string const & path, Message_ProgressRange const & range) override;

private:
    void note_hidden(sdkDocument const & document);
    sdkResult make_facets(sdkDocument & document, Message_ProgressRange const & range);
    void tell_of_meshes(sdkDocument const & document, std::string_view key, std::string const & option);
    sdkResult make_polylines(sdkDocument & document, Message_ProgressRange const & range);
    sdkResult tessellate(double millimetres_per_unit, Message_ProgressRange const & range);

    sdkContext & m_context;
    TopoDS_Shape m_shape; // in the unit of the file
};
