#pragma once

#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>

// A place in space may turn, shift, scale and mirror. Shapes can only be turned and shifted by the place that
// they have; Open CASCADE raises when they are moved by another one. What a place scales or mirrors has to
// become part of the geometry.

// The factor by which a place scales, negative when it mirrors; exactly 1 when a shape can have that place.
double sdk_scale_of(TopLoc_Location const & place);

// The place without its scale and mirror. Scaling about the origin by sdk_scale_of() and then moving to this
// place gives what the whole place gives.
TopLoc_Location sdk_rigid_part(TopLoc_Location const & place);

// The shape moved by a place, in front of its own: as TopoDS_Shape::Moved() for any place. Where the place,
// or that of the shape or of a member of its compounds, scales or mirrors, the result has a copy of the
// geometry, else it shares it. A null shape gives a null shape.
TopoDS_Shape sdk_placed(TopoDS_Shape const & shape, TopLoc_Location const & place);

// The shape within a whole that shares its geometry with the wanted one and lies where it lies. Two places
// that were made apart are never the same to the toolkit, though they may be equal. Null when there is none.
TopoDS_Shape sdk_found_in(TopoDS_Shape const & whole, TopoDS_Shape const & wanted);
