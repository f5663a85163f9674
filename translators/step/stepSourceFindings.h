#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"

#include <Standard_Handle.hxx>

#include <cstdint>

class XSControl_WorkSession;
class stepInstances;
struct stepLosses;

// Adds to the account what a file has besides shapes and what became of it: product and manufacturing
// information, names, materials, hidden bodies. Make it before the transfer, for the document may have such
// things already.
class stepSourceFindings {
public:
    stepSourceFindings(sdkDocument & document, sdkContext & context);

    // After the transfer. Reads the visibility that the toolkit has not read.
    void take(Handle(XSControl_WorkSession) const & session, stepInstances const & instances,
              stepLosses const & losses);

private:
    void take_information(stepLosses const & losses);
    void take_names(Handle(XSControl_WorkSession) const & session);
    void take_materials(Handle(XSControl_WorkSession) const & session);
    void take_visibility(Handle(XSControl_WorkSession) const & session, stepInstances const & instances);

    sdkDocument & m_document;
    sdkContext & m_context;
    std::int64_t m_materials_before;
    int m_hidden_before;
};
