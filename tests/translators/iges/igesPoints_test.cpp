#include "igesFormatTest.h"

#include "sdk/sdkVisibility.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <IGESCAFControl_Writer.hxx>
#include <IGESControl_Controller.hxx>
#include <IGESData_IGESEntity.hxx>
#include <IGESData_IGESModel.hxx>
#include <TCollection_AsciiString.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TDF_ChildIterator.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Vertex.hxx>

class IgesPoints : public igesFormatTest {
protected:
    static TopoDS_Shape point(double x, double y = 2, double z = 3)
    {
        return BRepBuilderAPI_MakeVertex(gp_Pnt(x, y, z)).Vertex();
    }

    static TopoDS_Shape line() { return BRepBuilderAPI_MakeEdge(gp_Pnt(1, 2, 3), gp_Pnt(5, 6, 7)).Edge(); }

    static Quantity_Color odd_colour() { return {0.1, 0.4, 0.7, Quantity_TOC_RGB}; }

    static TDF_Label add(sdkDocument & document, TopoDS_Shape const & shape, char const * name,
                         Quantity_Color const & colour, char const * layer)
    {
        auto const label = document.add_shape(shape, name);
        document.colours()->SetColor(label, colour, XCAFDoc_ColorCurv);
        document.layers()->SetLayer(label, TCollection_ExtendedString(layer));
        return label;
    }

    static TDF_Label find(sdkDocument const & document, std::string const & name)
    {
        for (TDF_ChildIterator child(document.shapes()->Label(), Standard_True); child.More(); child.Next()) {
            if (XCAFDoc_ShapeTool::IsShape(child.Value()) && sdkDocument::name(child.Value()) == name) {
                return child.Value();
            }
        }
        ADD_FAILURE() << name << " is not there";
        return {};
    }

    static Quantity_Color colour(sdkDocument const & document, TDF_Label const & label)
    {
        Quantity_Color result(Quantity_NOC_BLACK);
        for (auto const type : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
            document.colours()->GetColor(label, type, result);
        }
        return result;
    }

    static std::string level(sdkDocument const & document, TDF_Label const & label)
    {
        TDF_LabelSequence layers;
        document.layers()->GetLayers(label, layers);
        TCollection_ExtendedString text;
        return layers.Length() == 1 && document.layers()->GetLayer(layers.First(), text)
                   ? TCollection_AsciiString(text).ToCString()
                   : "";
    }
};

TEST_F(IgesPoints, HaveTheNamesColoursAndLevelsThatCurvesWouldHave)
{
    for (auto const * const unit : {"mm", "in"}) {
        sdkDocument document;
        add(document, line(), "a line", odd_colour(), "Named");
        add(document, point(0.1, 1e6 / 3), "a point", odd_colour(), "Named");
        add(document, point(2), "red", kit_red(), "7");
        add(document, line(), "another", kit_red(), "7");
        add(document, point(3), "alone", kit_blue(), "of points");
        ASSERT_TRUE(write(document, path("points.igs"), {{"vmrOptOutputUnits", unit}}));
        sdkDocument back;
        ASSERT_TRUE(read(path("points.igs"), back));
        EXPECT_EQ(kit_part_names(back),
                  (std::vector<std::string>{"a line", "a point", "alone", "another", "red"}));
        EXPECT_TRUE(colour(back, find(back, "a point")).IsEqual(colour(back, find(back, "a line"))));
        EXPECT_TRUE(colour(back, find(back, "a point")).IsEqual(odd_colour()));
        EXPECT_TRUE(colour(back, find(back, "red")).IsEqual(kit_red()));
        EXPECT_TRUE(colour(back, find(back, "alone")).IsEqual(kit_blue()));
        EXPECT_EQ(level(back, find(back, "a point")), level(back, find(back, "a line")));
        EXPECT_EQ(level(back, find(back, "red")), "7");
        EXPECT_EQ(level(back, find(back, "alone")), "9");
    }
}

TEST_F(IgesPoints, OfAGroupHaveItsColourUnlessTheyHaveTheirOwn)
{
    sdkDocument document;
    auto const group = add(document, kit_compound({point(1), point(2), line()}), "group", kit_red(), "4");
    auto const own =
        document.shapes()->AddSubShape(group, TopoDS_Iterator(XCAFDoc_ShapeTool::GetShape(group)).Value());
    sdkDocument::set_name(own, "own");
    document.colours()->SetColor(own, kit_blue(), XCAFDoc_ColorGen);
    ASSERT_TRUE(write(document, path("group.igs")));
    sdkDocument back;
    ASSERT_TRUE(read(path("group.igs"), back));
    EXPECT_TRUE(colour(back, find(back, "own")).IsEqual(kit_blue()));
    EXPECT_EQ(level(back, find(back, "own")), "4");
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(find(back, "group"), details);
    int red = 0;
    for (auto const & detail : details) {
        bool const is_point = XCAFDoc_ShapeTool::GetShape(detail).ShapeType() == TopAbs_VERTEX;
        red += is_point && colour(back, detail).IsEqual(kit_red()) ? 1 : 0;
    }
    EXPECT_EQ(red, 1);
}

TEST_F(IgesPoints, ThatLieOnEachOtherKeepTheirNames)
{
    sdkDocument document;
    document.add_shape(point(1), "one");
    document.add_shape(point(1), "two");
    ASSERT_TRUE(write(document, path("same.igs")));
    sdkDocument back;
    ASSERT_TRUE(read(path("same.igs"), back));
    EXPECT_EQ(kit_part_names(back), (std::vector<std::string>{"one", "two"}));
}

TEST_F(IgesPoints, ThatAreHiddenAreBlanked)
{
    sdkDocument document;
    document.add_shape(point(1), "seen");
    sdk_hide(document, document.add_shape(point(2), "hidden"));
    ASSERT_TRUE(write(document, path("hidden.igs")));
    EXPECT_TRUE(account().findings().empty());
    sdkDocument back;
    ASSERT_TRUE(read(path("hidden.igs"), back));
    ASSERT_EQ(sdk_hidden_labels(back).Length(), 1);
    EXPECT_EQ(sdkDocument::name(sdk_hidden_labels(back).First()), "hidden");
}

TEST_F(IgesPoints, HaveNothingThatIsNotWanted)
{
    sdkDocument document;
    add(document, point(1), "one", odd_colour(), "7");
    ASSERT_TRUE(
        write(document, path("bare.igs"),
              {{"igesWriteNames", "false"}, {"igesWriteColours", "false"}, {"igesWriteLayers", "false"}}));
    EXPECT_NE(kit_read_file(path("bare.igs")).find("116,1.,2.,3.,0;"), std::string::npos);
}

// Should this fail one day, the toolkit's writer does what igesPoints does.
TEST(IgesPointsOfTheToolkit, HaveNoNames)
{
    IGESControl_Controller::Init();
    sdkDocument document;
    document.add_shape(BRepBuilderAPI_MakeVertex(gp_Pnt(1, 2, 3)).Vertex(), "point");
    IGESCAFControl_Writer writer;
    ASSERT_TRUE(writer.Transfer(document.handle()));
    EXPECT_EQ(writer.Model()->NbEntities(), 1);
}
