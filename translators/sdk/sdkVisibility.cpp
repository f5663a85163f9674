#include "sdk/sdkVisibility.h"

#include <TDF_ChildIterator.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_LayerTool.hxx>

#include <algorithm>

namespace {

bool lies_on_hidden_layers_only(sdkDocument const & document, TDF_Label const & label)
{
    TDF_LabelSequence layers;
    document.layers()->GetLayers(label, layers);
    return !layers.IsEmpty() && std::none_of(layers.begin(), layers.end(), [&](TDF_Label const & layer) {
        return document.layers()->IsVisible(layer);
    });
}

bool is_marked(sdkDocument const & document, TDF_Label const & label)
{
    // The toolkit's own test does not ask the layers of the label.
    return !document.colours()->IsVisible(label) || lies_on_hidden_layers_only(document, label);
}

} // namespace

void sdk_hide(sdkDocument & document, TDF_Label const & label)
{
    if (!label.IsNull()) {
        document.colours()->SetVisibility(label, Standard_False);
    }
}

bool sdk_hidden(sdkDocument const & document, TDF_Label const & label)
{
    if (label.IsNull()) {
        return false;
    }
    TDF_Label referred;
    return is_marked(document, label) ||
           (XCAFDoc_ShapeTool::GetReferredShape(label, referred) && is_marked(document, referred));
}

TDF_LabelSequence sdk_hidden_labels(sdkDocument const & document)
{
    TDF_LabelSequence hidden;
    for (TDF_ChildIterator child(document.shapes()->Label(), Standard_True); child.More(); child.Next()) {
        if (XCAFDoc_ShapeTool::IsShape(child.Value()) && is_marked(document, child.Value())) {
            hidden.Append(child.Value());
        }
    }
    return hidden;
}
