#include "iges/igesPoints.h"

#include <BRep_Tool.hxx>
#include <IGESBasic_Name.hxx>
#include <IGESCAFControl.hxx>
#include <IGESData_GlobalSection.hxx>
#include <IGESData_IGESModel.hxx>
#include <IGESGeom_Point.hxx>
#include <IGESGraph_Color.hxx>
#include <Quantity_Color.hxx>
#include <TCollection_AsciiString.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <TransferBRep.hxx>
#include <TransferBRep_ShapeMapper.hxx>
#include <Transfer_FinderProcess.hxx>
#include <Transfer_SimpleBinderOfTransient.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>

namespace {

using Point = Handle(IGESGeom_Point);

// Of the directory section.
constexpr int longest_label = 8;

// Takes the points of a model one by one, each for one shape at its place.
class Entities {
public:
    explicit Entities(Handle(IGESData_IGESModel) const & model)
    {
        double const unit = model->GlobalSection().UnitValue();
        for (int number = 1; number <= model->NbEntities(); ++number) {
            if (auto const point = Point::DownCast(model->Entity(number)); !point.IsNull()) {
                m_points[cell_of(point->TransformedValue().XYZ() * unit)].push_back(point);
            }
        }
    }

    bool empty() const { return m_points.empty(); }

    Point take(gp_Pnt const & place)
    {
        auto const middle = cell_of(place.XYZ());
        for (auto const & step : steps) {
            auto const found = m_points.find({middle[0] + step[0], middle[1] + step[1], middle[2] + step[2]});
            if (found != m_points.end() && !found->second.empty()) {
                auto const point = found->second.front();
                found->second.pop_front();
                return point;
            }
        }
        return {};
    }

private:
    using Cell = std::array<std::int64_t, 3>;

    // Their own cell first, then those about it, for a place may lie on the border of two.
    static std::array<Cell, 27> neighbours()
    {
        std::array<Cell, 27> result{};
        std::size_t at = 1;
        for (int x = -1; x <= 1; ++x) {
            for (int y = -1; y <= 1; ++y) {
                for (int z = -1; z <= 1; ++z) {
                    if (x != 0 || y != 0 || z != 0) {
                        result[at++] = {x, y, z};
                    }
                }
            }
        }
        return result;
    }

    static Cell cell_of(gp_XYZ const & place)
    {
        constexpr double size = 1e-6; // in millimetres
        return {std::llround(place.X() / size), std::llround(place.Y() / size),
                std::llround(place.Z() / size)};
    }

    std::array<Cell, 27> const steps = neighbours();
    std::map<Cell, std::deque<Point>> m_points;
};

// The numbers of layers in files: of those that are numbers themselves, and of the others behind them in the
// order of the document, as the toolkit gives them to other shapes.
class Levels {
public:
    explicit Levels(sdkDocument const & document) : m_document(document)
    {
        TDF_LabelSequence layers;
        document.layers()->GetLayerLabels(layers);
        int last = 0;
        for (auto const & layer : layers) {
            if (auto const text = name_of(layer); text.IsIntegerValue()) {
                m_numbers[text.ToCString()] = text.IntegerValue();
                last = std::max(last, text.IntegerValue());
            }
        }
        for (auto const & layer : layers) {
            if (auto const text = name_of(layer); !text.IsIntegerValue()) {
                m_numbers[text.ToCString()] = ++last;
            }
        }
    }

    int of(TDF_Label const & layer) const
    {
        auto const found = m_numbers.find(name_of(layer).ToCString());
        return found == m_numbers.end() ? 0 : found->second;
    }

private:
    TCollection_AsciiString name_of(TDF_Label const & layer) const
    {
        TCollection_ExtendedString name;
        m_document.layers()->GetLayer(layer, name);
        return TCollection_AsciiString(name);
    }

    sdkDocument const & m_document;
    std::map<std::string, int> m_numbers;
};

struct Look {
    std::optional<Quantity_Color> colour;
    int level = 0;
};

class Points {
public:
    Points(sdkDocument const & document, Handle(Transfer_FinderProcess) const & process,
           Handle(IGESData_IGESModel) const & model, igesPointAttributes const & wanted)
        : m_document(document), m_process(process), m_model(model), m_wanted(wanted), m_entities(model),
          m_levels(document)
    {
    }

    void describe()
    {
        for (auto const & label : m_document.free_shapes()) {
            if (!m_entities.empty()) {
                describe(label, label, XCAFDoc_ShapeTool::GetShape(label), {});
            }
        }
    }

private:
    void describe(TDF_Label const & part, TDF_Label const & label, TopoDS_Shape const & shape, Look look)
    {
        if (!label.IsNull()) {
            add_look(label, look);
        }
        if (shape.ShapeType() == TopAbs_VERTEX) {
            auto const point = m_entities.take(BRep_Tool::Pnt(TopoDS::Vertex(shape)));
            if (!point.IsNull()) {
                apply(*point, label, look);
                remember(shape, point);
            }
        } else if (shape.ShapeType() == TopAbs_COMPOUND) {
            for (TopoDS_Iterator member(shape); member.More(); member.Next()) {
                TDF_Label detail;
                m_document.shapes()->FindSubShape(part, member.Value(), detail);
                describe(part, detail, member.Value(), look);
            }
        }
    }

    void add_look(TDF_Label const & label, Look & look) const
    {
        Quantity_Color colour;
        for (auto const type : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
            if (m_document.colours()->GetColor(label, type, colour)) {
                look.colour = colour;
            }
        }
        TDF_LabelSequence layers;
        m_document.layers()->GetLayers(label, layers);
        if (!layers.IsEmpty()) {
            look.level = m_levels.of(layers.First());
        }
    }

    void apply(IGESGeom_Point & point, TDF_Label const & label, Look const & look)
    {
        auto const name = label.IsNull() ? std::string() : sdkDocument::name(label);
        if (m_wanted.names && !name.empty()) {
            Handle(TCollection_HAsciiString) const text = new TCollection_HAsciiString(name.c_str());
            Handle(IGESBasic_Name) const property = new IGESBasic_Name();
            property->Init(1, text);
            point.AddProperty(property);
            if (text->Length() <= longest_label) {
                Handle(TCollection_HAsciiString) const short_text = new TCollection_HAsciiString(text);
                short_text->RightJustify(longest_label, ' ');
                point.SetLabel(short_text);
            }
            m_model->AddWithRefs(property);
        }
        if (m_wanted.colours && look.colour) {
            colour(point, *look.colour);
        }
        if (m_wanted.levels && look.level > 0) {
            point.InitLevel({}, look.level);
        }
    }

    void colour(IGESGeom_Point & point, Quantity_Color const & colour)
    {
        if (auto const number = IGESCAFControl::EncodeColor(colour); number > 0) {
            point.InitColor({}, number);
            return;
        }
        auto & entity = m_colours[{colour.Red(), colour.Green(), colour.Blue()}];
        if (entity.IsNull()) {
            entity = new IGESGraph_Color();
            double red = 0;
            double green = 0;
            double blue = 0;
            colour.Values(red, green, blue, Quantity_TOC_sRGB);
            entity->Init(100 * red, 100 * green, 100 * blue,
                         new TCollection_HAsciiString(Quantity_Color::StringName(colour.Name())));
            constexpr int definition = 2;
            entity->InitStatus(0, 0, definition, 0);
            m_model->AddWithRefs(entity);
        }
        point.InitColor(entity);
    }

    void remember(TopoDS_Shape const & shape, Point const & point)
    {
        auto const mapper = TransferBRep::ShapeMapper(m_process, shape);
        if (!m_process->IsBound(mapper)) {
            Handle(Transfer_SimpleBinderOfTransient) const binder = new Transfer_SimpleBinderOfTransient();
            binder->SetResult(point);
            m_process->Bind(mapper, binder);
        }
    }

    sdkDocument const & m_document;
    Handle(Transfer_FinderProcess) m_process;
    Handle(IGESData_IGESModel) m_model;
    igesPointAttributes m_wanted;
    Entities m_entities;
    Levels m_levels;
    std::map<std::array<double, 3>, Handle(IGESGraph_Color)> m_colours;
};

} // namespace

void iges_describe_points(sdkDocument const & document, Handle(Transfer_FinderProcess) const & process,
                          Handle(IGESData_IGESModel) const & model, igesPointAttributes const & wanted)
{
    Points(document, process, model, wanted).describe();
}
