#include "step/stepCopiedStyles.h"

#include "sdk/sdkVisibility.h"
#include "step/stepVisibility.h"

#include <Interface_InterfaceModel.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepVisual_Colour.hxx>
#include <StepVisual_HArray1OfLayeredItem.hxx>
#include <StepVisual_PresentationLayerAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopExp.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_DataMapOfShapeListOfShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

namespace {

class CopiedStyles {
public:
    CopiedStyles(Handle(XSControl_WorkSession) const & session,
                 std::vector<stepMappings::Copy> const & copies, sdkDocument & document)
        : m_session(session), m_styles(session), m_document(document)
    {
        for (auto const & [source, copy] : copies) {
            TopTools_IndexedMapOfShape before;
            TopTools_IndexedMapOfShape after;
            TopExp::MapShapes(source, before);
            TopExp::MapShapes(copy, after);
            for (int index = 1; before.Extent() == after.Extent() && index <= before.Extent(); ++index) {
                auto const key = before(index).Located(TopLoc_Location());
                m_copies.Bound(key, TopTools_ListOfShape())->Append(after(index));
            }
        }
    }

    void take_colours(StepVisual_StyledItem const & style)
    {
        Handle(StepVisual_Colour) surface;
        Handle(StepVisual_Colour) boundary;
        Handle(StepVisual_Colour) curve;
        Handle(StepVisual_Colour) rendering;
        double transparency = 0;
        bool of_component = false;
        Handle(StepVisual_StyledItem) const handle(&style);
        auto const item = step_item_of(handle, m_session->Graph());
        if (item.IsNull() ||
            !m_styles.GetColors(handle, surface, boundary, curve, rendering, transparency, of_component)) {
            return;
        }
        for (auto const & label : labels_of(item)) {
            Quantity_Color colour;
            auto const & face = rendering.IsNull() ? surface : rendering;
            if (!face.IsNull() && STEPConstruct_Styles::DecodeColor(face, colour)) {
                m_document.colours()->SetColor(
                    label, Quantity_ColorRGBA(colour, static_cast<float>(1 - transparency)),
                    XCAFDoc_ColorSurf);
            }
            auto const & line = curve.IsNull() ? boundary : curve;
            if (!line.IsNull() && STEPConstruct_Styles::DecodeColor(line, colour)) {
                m_document.colours()->SetColor(label, colour, XCAFDoc_ColorCurv);
            }
        }
    }

    void take_layer(StepVisual_PresentationLayerAssignment const & layer)
    {
        if (layer.Name().IsNull() || layer.AssignedItems().IsNull()) {
            return;
        }
        TCollection_ExtendedString const name(layer.Name()->ToCString(), Standard_True);
        for (auto const & item : *layer.AssignedItems()) {
            for (auto const & label : labels_of(step_item_of(item.Value(), m_session->Graph()))) {
                m_document.layers()->SetLayer(label, name);
            }
        }
    }

    void take_visibility()
    {
        for (auto const & item : step_hidden_items(m_session->Model(), m_session->Graph())) {
            for (auto const & label : labels_of(item)) {
                sdk_hide(m_document, label);
            }
        }
    }

private:
    // Of the copies of an item that are in the document, and of copies of these.
    std::vector<TDF_Label> labels_of(Handle(Standard_Transient) const & item)
    {
        std::vector<TDF_Label> labels;
        auto const process = m_session->TransferReader()->TransientProcess();
        TopTools_ListOfShape waiting;
        TopTools_MapOfShape seen;
        if (auto const shape = TransferBRep::ShapeResult(process->Find(item)); !shape.IsNull()) {
            waiting.Append(shape);
        }
        while (!waiting.IsEmpty()) {
            auto const * const copies = m_copies.Seek(waiting.First().Located(TopLoc_Location()));
            waiting.RemoveFirst();
            for (auto copy = copies ? copies->cbegin() : TopTools_ListOfShape::const_iterator();
                 copies != nullptr && copy != copies->cend(); ++copy) {
                if (!seen.Add(*copy)) {
                    continue;
                }
                waiting.Append(*copy);
                if (auto const label = step_label_of(m_document, *copy); !label.IsNull()) {
                    labels.push_back(label);
                }
            }
        }
        return labels;
    }

    Handle(XSControl_WorkSession) m_session;
    STEPConstruct_Styles m_styles;
    sdkDocument & m_document;
    // What became of a shape, wherever it stands in what was copied.
    TopTools_DataMapOfShapeListOfShape m_copies;
};

} // namespace

void step_style_copies(Handle(XSControl_WorkSession) const & session,
                       std::vector<stepMappings::Copy> const & copies, sdkDocument & document,
                       sdkOptions const & options)
{
    if (copies.empty()) {
        return;
    }
    bool const colours = options.boolean("stepReadColours");
    bool const layers = options.boolean("stepReadLayers");
    CopiedStyles styles(session, copies, document);
    auto const model = session->Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const & entity = model->Value(number);
        if (auto const style = Handle(StepVisual_StyledItem)::DownCast(entity);
            colours && !style.IsNull() && !style->Item().IsNull()) {
            styles.take_colours(*style);
        } else if (auto const layer = Handle(StepVisual_PresentationLayerAssignment)::DownCast(entity);
                   layers && !layer.IsNull()) {
            styles.take_layer(*layer);
        }
    }
    styles.take_visibility();
}
