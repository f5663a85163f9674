#pragma once

#include <TDF_Label.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <cstdint>
#include <functional>
#include <string>

class TopoDS_Shape;

// How many entities a part or document has; see sdkReporter::processed for what an entity is.
struct sdkEntityCount {
    std::int64_t faces = 0;
    std::int64_t curves = 0;
    std::int64_t points = 0;
    std::int64_t solids = 0;
    // Faces that have a triangulation and no surface.
    std::int64_t facets_only = 0;

    std::int64_t entities() const { return faces + curves + points; }
    sdkEntityCount & operator+=(sdkEntityCount const & other);
};

sdkEntityCount sdk_count_entities(TopoDS_Shape const & shape);

// The document that readers fill and writers take from: shapes in millimetres with assembly structure, names,
// colours and layers. Texts are UTF-8.
class sdkDocument {
public:
    sdkDocument();

    Handle(TDocStd_Document) const & handle() const { return m_document; }
    Handle(XCAFDoc_ShapeTool) const & shapes() const { return m_shapes; }
    Handle(XCAFDoc_ColorTool) const & colours() const { return m_colours; }
    Handle(XCAFDoc_LayerTool) const & layers() const { return m_layers; }

    // What nothing else uses. One of them may be no more than a place of a definition that stands beside it
    // (XCAFDoc_ShapeTool::IsReference), when a shape was added that had a place of its own.
    TDF_LabelSequence free_shapes() const;
    // The free shapes that are not among those that were there before.
    TDF_LabelSequence free_shapes_since(TDF_LabelSequence const & before) const;
    // The definitions that are no assemblies, each once however often and wherever it is used.
    TDF_LabelSequence parts() const;
    // Those of them that the given shapes are or use.
    static TDF_LabelSequence parts_of(TDF_LabelSequence const & shapes);
    bool empty() const;

    sdkEntityCount count_entities() const;

    // Adds a free shape with a name, which may be empty. A null shape gives a null label.
    TDF_Label add_shape(TopoDS_Shape const & shape, std::string const & name);

    static std::string name(TDF_Label const & label);
    static void set_name(TDF_Label const & label, std::string const & name);

private:
    Handle(TDocStd_Document) m_document;
    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colours;
    Handle(XCAFDoc_LayerTool) m_layers;
};
