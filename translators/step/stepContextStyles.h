#pragma once

#include <Standard_Handle.hxx>

#include <set>

class Standard_Transient;
class XSControl_WorkSession;

// Files may give an instance a style of its own by CONTEXT_DEPENDENT_OVER_RIDING_STYLED_ITEM, with the place
// of the instance as the context. Open CASCADE does not know such a context: it reads the style as one of the
// part and colours or hides all its instances. Here such styles get the form that it does know, a style in
// the context of a representation of the instance. Those of paths through several assemblies, which no label
// of a document could have, lose their items and so have no effect. Call it when the file is loaded, before
// the transfer. Returns the styles that were changed.
std::set<Standard_Transient const *> step_settle_context_styles(Handle(XSControl_WorkSession)
                                                                    const & session);
