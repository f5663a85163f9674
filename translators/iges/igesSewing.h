#pragma once

#include "sdk/sdkDocument.h"

#include <Message_ProgressRange.hxx>

#include <string>
#include <vector>

class BRepBuilderAPI_Sewing;
class TopoDS_Shape;

// Sews faces that a file gives one by one into shells, and closed shells into solids. Faces of one group of
// the file are sewn to each other only; faces that stand alone are sewn to all others that stand alone.
class igesSewing {
public:
    igesSewing(sdkDocument & document, double tolerance) : m_document(document), m_tolerance(tolerance) {}

    // Replaces those of the labels that have faces to sew. The name is for what comes from faces that stood
    // alone. Names, colours and layers stay with their faces. When the user cancels, nothing more is
    // replaced.
    void sew(TDF_LabelSequence const & labels, std::string const & name, Message_ProgressRange const & range);

    int faces() const { return m_faces; }
    int solids() const { return m_solids; }
    int shells() const { return m_shells; }

private:
    bool sew_together(TDF_LabelSequence const & labels, std::string const & name,
                      Message_ProgressRange const & range);
    TopoDS_Shape with_solids(TopoDS_Shape const & sewn);
    void carry_attributes(TDF_Label const & from, TDF_Label const & to, BRepBuilderAPI_Sewing const & sewing);
    void copy_attributes(TDF_Label const & from, TDF_Label const & to);

    sdkDocument & m_document;
    double m_tolerance;
    int m_faces = 0;
    int m_solids = 0;
    int m_shells = 0;
};
