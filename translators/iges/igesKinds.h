#pragma once

#include "sdk/sdkAccount.h"

#include <IGESData_IGESEntity.hxx>

#include <optional>
#include <string_view>

// Geometry that a shape may be asked of, as the account of a file counts it. Nothing for groups and
// instances, for what only describes other entities, and for annotation.
std::optional<sdkSourceKind> iges_kind(Handle(IGESData_IGESEntity) const & entity);

// Entities that drawings and analyses consist of: dimensions, labels, notes, symbols, views, drawings, nodes
// and finite elements.
bool iges_is_annotation(Handle(IGESData_IGESEntity) const & entity);

// What the standard calls the type, such as "ellipsoid"; "entity" for one that has no part in geometry.
std::string_view iges_type_name(Handle(IGESData_IGESEntity) const & entity);
