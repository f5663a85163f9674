#pragma once

#include "sdk/sdkDocument.h"

#include <Message_ProgressRange.hxx>
#include <TopTools_DataMapOfShapeShape.hxx>
#include <TopoDS_Shape.hxx>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

// What the shapes inside a part became while it was edited, so that names, colours and layers can follow
// them. Places do not matter: a shape that is used several times has one history, and one more for each
// factor by which a place scales or mirrors it.
class sdkShapeHistory {
public:
    // A null shape afterwards says that the shape is gone. Places are such as shapes can have.
    void replace(TopoDS_Shape const & before, TopoDS_Shape const & after);
    // A shape got another geometry where its place has that factor (sdk_scale_of()); both come without a
    // place.
    void scale(TopoDS_Shape const & before, TopoDS_Shape const & after, double factor);

    // What stands at the place of a shape now: the shape itself when it was not replaced, null when it is
    // gone.
    TopoDS_Shape now(TopoDS_Shape const & before) const;

    bool scaled_nothing() const { return m_scaled.empty(); }

private:
    TopTools_DataMapOfShapeShape m_after;
    std::map<double, TopTools_DataMapOfShapeShape> m_scaled;
};

// One edit of one shape of a part. The shape comes without a place of its own. It is the part's
// whole shape or a member of its compounds, the compound always before its members; what lies within solids,
// shells, faces and wires does not come by itself. The edit returns nothing to leave the shape alone (of a
// compound the members come next), a null shape to drop it, or another shape in its place. What it replaces
// inside a shape it tells the history; the shape itself it need not.
using sdkShapeEdit = std::function<std::optional<TopoDS_Shape>(
    TDF_Label const & part, TopoDS_Shape const & shape, sdkShapeHistory & history)>;

struct sdkEditCounts {
    std::int64_t changed = 0; // parts that have another shape now
    std::int64_t emptied =
        0; // parts that had nothing left and are gone, with all places where they were used
    std::int64_t details = 0; // named, coloured or layered sub-shapes that are gone
    bool cancelled = false;   // the parts edited so far stay edited
};

// Edits parts of a document. Assemblies follow; those that have nothing left are removed. Places within parts
// that scale or mirror become part of the geometry, whatever the edit does.
sdkEditCounts sdk_edit_parts(sdkDocument & document, TDF_LabelSequence const & parts,
                             sdkShapeEdit const & edit, Message_ProgressRange const & range = {});

// The same for a shape that is in no document yet. Null when nothing is left of it.
TopoDS_Shape sdk_edit_shape(TopoDS_Shape const & shape, sdkShapeEdit const & edit);
