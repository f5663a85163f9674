#pragma once

#include "sdk/geometry/sdkPartEdit.h"

#include <Message_ProgressRange.hxx>

#include <string>
#include <vector>

// Sews faces that a file gives one by one into shells, and closed shells into solids; a face that is closed
// by itself, as that of a ball, is such a shell. Faces of one group of the file are sewn to each other only;
// faces that stand alone are sewn to all others that stand alone. Names, colours and layers stay with the
// faces.
class igesSewing {
public:
    igesSewing(sdkDocument & document, double tolerance) : m_document(document), m_tolerance(tolerance) {}

    // Works on these free shapes. The name is for what comes of faces that stood alone. When the user
    // cancels, what is not sewn yet stays as it is.
    void sew(TDF_LabelSequence const & labels, std::string const & name, Message_ProgressRange const & range);

    std::int64_t faces() const { return m_faces; }
    std::int64_t solids() const { return m_solids; }
    std::int64_t shells() const { return m_shells; }

private:
    TDF_LabelSequence gather_single_faces(TDF_LabelSequence const & labels, std::string const & name);
    TopoDS_Shape sewn(TopoDS_Shape const & shape, sdkShapeHistory & history);
    void sew_faces(std::vector<TopoDS_Shape> const & faces, std::vector<TopoDS_Shape> & results,
                   sdkShapeHistory & history);
    void count_bodies(TopoDS_Shape const & shape);

    sdkDocument & m_document;
    double m_tolerance;
    std::int64_t m_faces = 0;
    std::int64_t m_solids = 0;
    std::int64_t m_shells = 0;
};
