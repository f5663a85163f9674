#include "sdk/measure/sdkInventoryColours.h"

#include "sdk/sdkVisibility.h"

#include <Quantity_ColorRGBA.hxx>
#include <TColStd_HSequenceOfExtendedString.hxx>
#include <TCollection_AsciiString.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <array>
#include <cmath>
#include <cstdio>

namespace {

// Formats round what they store; a step of 1/255 is what can be told apart.
std::string text_of(Quantity_ColorRGBA const & colour)
{
    std::array<double, 3> rgb{};
    colour.GetRGB().Values(rgb[0], rgb[1], rgb[2], Quantity_TOC_sRGB);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "#%02lx%02lx%02lx%02lx", std::lround(rgb[0] * 255),
                  std::lround(rgb[1] * 255), std::lround(rgb[2] * 255),
                  std::lround(static_cast<double>(colour.Alpha()) * 255));
    return text.data();
}

} // namespace

std::optional<std::string> sdk_label_colour(sdkDocument const & document, TDF_Label const & label)
{
    for (auto const type : {XCAFDoc_ColorSurf, XCAFDoc_ColorGen, XCAFDoc_ColorCurv}) {
        if (Quantity_ColorRGBA colour; document.colours()->GetColor(label, type, colour)) {
            return text_of(colour);
        }
    }
    return std::nullopt;
}

std::set<std::string> sdk_label_layers(sdkDocument const & document, TDF_Label const & label)
{
    std::set<std::string> names;
    TDF_LabelSequence layers;
    document.layers()->GetLayers(label, layers);
    for (auto const & layer : layers) {
        TCollection_ExtendedString name;
        if (document.layers()->GetLayer(layer, name)) {
            names.insert(TCollection_AsciiString(name).ToCString());
        }
    }
    return names;
}

sdkPartAttributes::sdkPartAttributes(sdkDocument const & document, TDF_Label const & part)
    : m_part(read(document, part))
{
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(part, details);
    for (auto const & label : details) {
        auto const shape = XCAFDoc_ShapeTool::GetShape(label);
        if (!shape.IsNull()) {
            m_details.Bind(shape, read(document, label));
        }
    }
}

sdkPartAttributes::Detail sdkPartAttributes::read(sdkDocument const & document, TDF_Label const & label)
{
    return {sdkDocument::name(label), sdk_label_colour(document, label), sdk_label_layers(document, label),
            sdk_hidden(document, label)};
}

sdkPartAttributes::Detail const * sdkPartAttributes::of(TopoDS_Shape const & shape) const
{
    return m_details.Seek(shape);
}

void sdkPartAttributes::apply(TopoDS_Shape const & shape, std::optional<std::string> const & painted,
                              std::optional<std::string> const & placed_colour, sdkBody & body) const
{
    auto colour = painted ? painted : m_part.colour ? m_part.colour : placed_colour;
    auto const take = [&](Detail const & detail) {
        colour = detail.colour ? detail.colour : colour;
        body.layers.insert(detail.layers.begin(), detail.layers.end());
        body.hidden = body.hidden || detail.hidden;
        if (!detail.name.empty()) {
            body.names.insert(detail.name);
        }
    };
    body.layers.insert(m_part.layers.begin(), m_part.layers.end());
    body.hidden = body.hidden || m_part.hidden;
    if (auto const * own = of(shape)) {
        take(*own);
    }
    auto const base = colour.value_or(std::string());
    auto const & faces = body.measure.faces;
    if (faces.empty()) {
        body.colours[base] += body.kind == sdkBodyKind::curve ? body.measure.length : 1;
        return;
    }
    std::size_t at = 0;
    auto & each = body.face_colours;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More() && at < faces.size(); face.Next(), ++at) {
        auto const * own = m_details.IsEmpty() ? nullptr : of(face.Current());
        auto const & its = own && own->colour ? *own->colour : base;
        body.colours[its] += faces[at].area;
        if (!m_details.IsEmpty()) {
            each.push_back(its);
        }
        if (own) {
            body.layers.insert(own->layers.begin(), own->layers.end());
        }
    }
    if (body.colours.size() < 2) {
        each.clear();
    }
}
