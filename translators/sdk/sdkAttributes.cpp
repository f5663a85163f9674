#include "sdk/sdkAttributes.h"

#include "sdk/sdkMaterials.h"
#include "sdk/sdkVisibility.h"

void sdk_add_attributes(sdkDocument & document, TDF_Label const & from, TDF_Label const & to)
{
    if (sdkDocument::name(to).empty()) {
        sdkDocument::set_name(to, sdkDocument::name(from));
    }
    sdk_add_colours(document, from, to);
    if (sdk_material(to).IsNull()) {
        sdk_set_material(document, to, sdk_material(from));
    }
    if (sdk_hidden(document, from)) {
        sdk_hide(document, to);
    }
    TDF_LabelSequence layers;
    document.layers()->GetLayers(from, layers);
    for (auto const & layer : layers) {
        document.layers()->SetLayer(to, layer);
    }
}

void sdk_add_colours(sdkDocument & document, TDF_Label const & from, TDF_Label const & to)
{
    // The colour of surfaces hides the general one, so one of them keeps out both.
    auto const & colours = document.colours();
    bool const surfaces = colours->IsSet(to, XCAFDoc_ColorGen) || colours->IsSet(to, XCAFDoc_ColorSurf);
    for (auto const type : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
        bool const own = type == XCAFDoc_ColorCurv ? colours->IsSet(to, type) : surfaces;
        TDF_Label colour;
        if (!own && XCAFDoc_ColorTool::GetColor(from, type, colour)) {
            colours->SetColor(to, colour, type);
        }
    }
}
