#include "sdk/sdkVisibility.h"

#include <TDF_ChildIterator.hxx>
#include <TDF_LabelMap.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_LayerTool.hxx>

#include <algorithm>
#include <utility>
#include <vector>

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

// Which parts are seen at some place, and which are hidden at some.
class Places {
public:
    explicit Places(sdkDocument const & document) : m_document(document) {}

    void follow(TDF_Label const & shape)
    {
        m_waiting.emplace_back(shape, false);
        while (!m_waiting.empty()) {
            auto const [label, inherited] = m_waiting.back();
            m_waiting.pop_back();
            bool const hidden = inherited || is_marked(m_document, label);
            if (!(hidden ? m_hidden : m_seen).Add(label)) {
                continue;
            }
            if (TDF_Label referred; XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
                m_waiting.emplace_back(referred, hidden);
            }
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(label, components);
            for (auto const & component : components) {
                m_waiting.emplace_back(component, hidden);
            }
        }
    }

    // True when the label, or something that it places or is made of, is both seen and hidden.
    bool differ_within(TDF_Label const & label)
    {
        bool differ = seen(label) && hidden(label);
        if (differ || m_alike.Contains(label)) {
            return differ;
        }
        TDF_LabelSequence inner;
        XCAFDoc_ShapeTool::GetComponents(label, inner);
        if (TDF_Label referred; XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
            inner.Append(referred);
        }
        differ = std::any_of(inner.begin(), inner.end(),
                             [this](TDF_Label const & one) { return differ_within(one); });
        if (!differ) {
            m_alike.Add(label);
        }
        return differ;
    }

    bool seen(TDF_Label const & label) const { return m_seen.Contains(label); }
    bool hidden(TDF_Label const & label) const { return m_hidden.Contains(label); }

private:
    sdkDocument const & m_document;
    std::vector<std::pair<TDF_Label, bool>> m_waiting;
    TDF_LabelMap m_seen;
    TDF_LabelMap m_hidden;
    TDF_LabelMap m_alike; // without anything within that is both
};

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

TDF_LabelSequence sdk_hidden_instances(sdkDocument const & document)
{
    TDF_LabelSequence hidden;
    Places places(document);
    for (auto const & shape : document.free_shapes()) {
        places.follow(shape);
    }
    for (TDF_ChildIterator child(document.shapes()->Label(), Standard_True); child.More(); child.Next()) {
        auto const & label = child.Value();
        TDF_Label referred;
        if (!XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
            continue;
        }
        bool const marked = is_marked(document, label) ||
                            (XCAFDoc_ShapeTool::IsComponent(label) && is_marked(document, label.Father())) ||
                            (XCAFDoc_ShapeTool::IsAssembly(referred) && is_marked(document, referred));
        if (marked && places.differ_within(referred)) {
            hidden.Append(label);
        }
    }
    return hidden;
}

std::int64_t sdk_hide_parts_for_instances(sdkDocument & document)
{
    Places places(document);
    for (auto const & shape : document.free_shapes()) {
        places.follow(shape);
    }
    std::int64_t both = 0;
    for (auto const & part : document.parts()) {
        both += places.seen(part) && places.hidden(part) ? 1 : 0;
        if (places.hidden(part) && !places.seen(part)) {
            sdk_hide(document, part);
        }
    }
    for (auto const & label : sdk_hidden_labels(document)) {
        if (XCAFDoc_ShapeTool::IsReference(label) || XCAFDoc_ShapeTool::IsAssembly(label)) {
            document.colours()->SetVisibility(label, Standard_True);
        }
    }
    return both;
}
