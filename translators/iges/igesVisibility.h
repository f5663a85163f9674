#pragma once

#include "sdk/sdkDocument.h"

#include <Standard_Handle.hxx>

#include <cstdint>

class Transfer_FinderProcess;
class XSControl_WorkSession;

// The blank status of entities and the visibility of shapes, neither of which the toolkit translates.

// Hides in the document what has become of blanked entities: roots, and what groups and subfigures gather. To
// be called after the transfer, before shapes change. Returns how many roots of the file are blanked, whether
// or not they have a shape.
std::int64_t iges_hide_blanked(Handle(XSControl_WorkSession) const & session, sdkDocument & document);

// Blanks the entities that the shapes became which are hidden in the document. Returns how many hidden shapes
// have no entity of their own, and so are visible in the file.
std::int64_t iges_blank_hidden(sdkDocument const & document, Handle(Transfer_FinderProcess) const & process);
