#include "stepTextTest.h"

#include "sdk/sdkVisibility.h"

#include <STEPCAFControl_Reader.hxx>
#include <STEPControl_Controller.hxx>
#include <TCollection_AsciiString.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TDF_ChildIterator.hxx>

#include <algorithm>
#include <set>

// What single instances have and their parts do not: layers, visibility, colours.
class StepInstances : public stepTextTest {
protected:
    // An assembly of a part at 0, 20 and 40 and of an assembly at 60 and 80 which has the part at 0 and 20.
    void add_nested(sdkDocument & document)
    {
        m_part = document.add_shape(kit_cube(10), "part");
        auto const shapes = document.shapes();
        auto const inner = shapes->NewShape();
        sdkDocument::set_name(inner, "inner");
        auto const outer = shapes->NewShape();
        sdkDocument::set_name(outer, "outer");
        place(document, inner, m_part, 0, "i0");
        place(document, inner, m_part, 20, "i20");
        place(document, outer, m_part, 0, "o0");
        place(document, outer, m_part, 20, "o20");
        place(document, outer, m_part, 40, "o40");
        place(document, outer, inner, 60, "a60");
        place(document, outer, inner, 80, "a80");
        shapes->UpdateAssemblies();
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

    using Names = std::set<std::string>;

    static Names hidden(sdkDocument const & document)
    {
        Names names;
        for (auto const & label : sdk_hidden_labels(document)) {
            names.insert(sdkDocument::name(label));
        }
        return names;
    }

    static Names layers(sdkDocument const & document, std::string const & name)
    {
        Names names;
        TDF_LabelSequence labels;
        document.layers()->GetLayers(find(document, name), labels);
        for (auto const & label : labels) {
            TCollection_ExtendedString text;
            document.layers()->GetLayer(label, text);
            names.insert(TCollection_AsciiString(text).ToCString());
        }
        return names;
    }

    static void set_layer(sdkDocument & document, std::string const & name, char const * layer)
    {
        document.layers()->SetLayer(find(document, name), TCollection_ExtendedString(layer));
    }

    // What another reader makes of the file.
    static void read_bare(std::string const & file, sdkDocument & document)
    {
        STEPControl_Controller::Init();
        STEPCAFControl_Reader reader;
        reader.SetLayerMode(Standard_True);
        ASSERT_EQ(reader.ReadFile(file.c_str()), IFSelect_RetDone);
        Handle(TDocStd_Document) handle = document.handle();
        ASSERT_TRUE(reader.Transfer(handle));
    }

    // The nested assembly as a file in which these places, by their names, have a style of their own in the
    // form that the toolkit does not know: red, hidden and on a layer.
    std::string file_with_context(std::vector<std::string> const & places)
    {
        sdkDocument document;
        add_nested(document);
        EXPECT_TRUE(write(document, path("plain.stp")));
        auto text = kit_read_file(path("plain.stp"));
        std::string context;
        for (auto const & place : places) {
            auto const shape = entity_with(text, ",'" + place + "',", "NEXT_ASSEMBLY_USAGE_OCCURRENCE");
            auto const definition = entity_with(text, "," + shape + ")", "PRODUCT_DEFINITION_SHAPE");
            context += (context.empty() ? "" : ",") +
                       entity_with(text, "," + definition + ")", "CONTEXT_DEPENDENT_SHAPE_REPRESENTATION");
        }
        auto const solid = entity_with(text, "(", "MANIFOLD_SOLID_BREP");
        auto const whole = text.find("ADVANCED_BREP_SHAPE_REPRESENTATION(");
        auto const units = text.rfind('#', text.find(';', whole));
        auto const space = text.substr(units, text.find(')', units) - units);
        text.insert(
            text.rfind("ENDSEC;"),
            "#9000=STYLED_ITEM('',(#9010)," + solid + ");\n" +
                "#9001=CONTEXT_DEPENDENT_OVER_RIDING_STYLED_ITEM('',(#9020)," + solid + ",#9000,(" + context +
                "));\n#9002=INVISIBILITY((#9001));\n#9003=PRESENTATION_LAYER_ASSIGNMENT('own','',(#9001));"
                "\n" +
                "#9004=MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION('',(#9000,#9001)," + space +
                ");\n" + colour(9010, "0.,0.,1.") + colour(9020, "1.,0.,0."));
        return folder().write("context.stp", text);
    }

    TDF_Label m_part;

private:
    // The number of the entity of that kind that has the text among its parameters.
    static std::string entity_with(std::string text, std::string const & part, std::string const & kind)
    {
        for (auto at = text.find('\n'); at != std::string::npos; at = text.find('\n', at)) {
            text.erase(at, text.find_first_not_of("\n ", at) - at);
        }
        for (auto at = text.find(" = " + kind + "("); at != std::string::npos;
             at = text.find(" = " + kind + "(", at + 1)) {
            if (text.substr(at, text.find(';', at) - at).find(part) != std::string::npos) {
                auto const number = text.rfind('#', at);
                return text.substr(number, at - number);
            }
        }
        ADD_FAILURE() << kind << " with " << part << " is not there";
        return {};
    }

    static std::string colour(int first, std::string const & rgb)
    {
        auto const at = [first](int step) { return "#" + std::to_string(first + step); };
        return at(0) + "=PRESENTATION_STYLE_ASSIGNMENT((" + at(1) + "));\n" + at(1) +
               "=SURFACE_STYLE_USAGE(.BOTH.," + at(2) + ");\n" + at(2) + "=SURFACE_SIDE_STYLE('',(" + at(3) +
               "));\n" + at(3) + "=SURFACE_STYLE_FILL_AREA(" + at(4) + ");\n" + at(4) +
               "=FILL_AREA_STYLE('',(" + at(5) + "));\n" + at(5) + "=FILL_AREA_STYLE_COLOUR('',#" +
               std::to_string(first + 6) + ");\n" + at(6) + "=COLOUR_RGB(''," + rgb + ");\n";
    }

    static void place(sdkDocument & document, TDF_Label const & assembly, TDF_Label const & part, double x,
                      std::string const & name)
    {
        gp_Trsf move;
        move.SetTranslation(gp_Vec(x, 0, 0));
        sdkDocument::set_name(document.shapes()->AddComponent(assembly, part, TopLoc_Location(move)), name);
    }
};

TEST_F(StepInstances, ThatAreHiddenStayHiddenAndTheOthersAreSeen)
{
    for (Values const & writing :
         {Values{}, Values{{"stepWriteColours", "false"}, {"stepWriteLayers", "false"}}}) {
        for (Values const & reading :
             {Values{}, Values{{"stepReadColours", "false"}, {"stepReadLayers", "false"}}}) {
            sdkDocument document;
            add_nested(document);
            for (auto const * const name : {"o20", "i0", "a80"}) {
                sdk_hide(document, find(document, name));
            }
            ASSERT_TRUE(write(document, path("hidden.stp"), writing));
            EXPECT_TRUE(account().findings().empty());
            sdkDocument back;
            ASSERT_TRUE(read(path("hidden.stp"), back, reading));
            EXPECT_EQ(hidden(back), (Names{"a80", "i0", "o20"}));
            EXPECT_EQ(
                XCAFDoc_ShapeTool::GetLocation(find(back, "o20")).Transformation().TranslationPart().X(), 20);
            ASSERT_EQ(account().findings().size(), 1U);
            EXPECT_EQ(account().findings().front().weight, sdkWeight::note);
        }
    }
}

TEST_F(StepInstances, ThatAreHiddenAreSoForOtherReaders)
{
    sdkDocument document;
    add_nested(document);
    sdk_hide(document, find(document, "o20"));
    sdk_hide(document, find(document, "a80"));
    ASSERT_TRUE(write(document, path("hidden.stp")));
    sdkDocument back;
    read_bare(path("hidden.stp"), back);
    EXPECT_EQ(hidden(back), (Names{"a80", "o20"}));
}

TEST_F(StepInstances, ThatAreAllHiddenHideTheirPart)
{
    sdkDocument document;
    kit_add_assembly(document);
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(document.free_shapes().First(), components);
    sdk_hide(document, components.Value(1));
    ASSERT_TRUE(write(document, path("all.stp")));
    EXPECT_TRUE(account().findings().empty());
    sdkDocument back;
    ASSERT_TRUE(read(path("all.stp"), back));
    EXPECT_EQ(hidden(back), Names{kit_red_name});
}

TEST_F(StepInstances, OfAHiddenAssemblyAreHidden)
{
    sdkDocument document;
    add_nested(document);
    sdk_hide(document, find(document, "inner"));
    ASSERT_TRUE(write(document, path("hidden.stp")));
    sdkDocument back;
    ASSERT_TRUE(read(path("hidden.stp"), back));
    EXPECT_EQ(hidden(back), (Names{"a60", "a80", "i0", "i20"}));
}

TEST_F(StepInstances, KeepTheLayersThatTheyHaveAlone)
{
    for (auto const * const colours : {"true", "false"}) {
        sdkDocument document;
        add_nested(document);
        document.layers()->SetLayer(m_part, TCollection_ExtendedString("of the part"));
        set_layer(document, "o20", "first");
        set_layer(document, "o20", "second");
        set_layer(document, "i20", "first");
        set_layer(document, "a60", "Größe");
        set_layer(document, "o40", "of the part");
        ASSERT_TRUE(write(document, path("layers.stp"), {{"stepWriteColours", colours}}));
        sdkDocument back;
        ASSERT_TRUE(read(path("layers.stp"), back));
        EXPECT_EQ(layers(back, "o20"), (Names{"first", "second"}));
        EXPECT_EQ(layers(back, "i20"), Names{"first"});
        EXPECT_EQ(layers(back, "a60").size(), 1U);
        EXPECT_EQ(layers(back, "o40"), Names{"of the part"});
        EXPECT_EQ(layers(back, "part"), Names{"of the part"});
        for (auto const * const name : {"o0", "i0", "a80", "inner"}) {
            EXPECT_EQ(layers(back, name), Names{}) << name;
        }
        EXPECT_TRUE(hidden(back).empty());
    }
}

// Readers that know layers of shapes only must not take that of one instance for that of all.
TEST_F(StepInstances, PutNothingElseOnTheirLayersForOtherReaders)
{
    sdkDocument document;
    add_nested(document);
    set_layer(document, "o20", "first");
    ASSERT_TRUE(write(document, path("layers.stp")));
    sdkDocument back;
    read_bare(path("layers.stp"), back);
    TDF_LabelSequence shapes;
    for (TDF_ChildIterator child(back.shapes()->Label(), Standard_True); child.More(); child.Next()) {
        TDF_LabelSequence found;
        back.layers()->GetLayers(child.Value(), found);
        EXPECT_TRUE(found.IsEmpty());
    }
    EXPECT_TRUE(hidden(back).empty());
}

TEST_F(StepInstances, KeepTheirColoursBesideLayersAndVisibility)
{
    sdkDocument document;
    add_nested(document);
    document.colours()->SetColor(m_part, kit_blue(), XCAFDoc_ColorSurf);
    document.colours()->SetColor(find(document, "o20"), kit_red(), XCAFDoc_ColorSurf);
    set_layer(document, "o20", "first");
    sdk_hide(document, find(document, "o20"));
    ASSERT_TRUE(write(document, path("colours.stp")));
    sdkDocument back;
    ASSERT_TRUE(read(path("colours.stp"), back));
    EXPECT_TRUE(kit_colour(back, find(back, "o20")).IsEqual(kit_red()));
    EXPECT_TRUE(kit_colour(back, find(back, "part")).IsEqual(kit_blue()));
    EXPECT_EQ(layers(back, "o20"), Names{"first"});
    EXPECT_EQ(hidden(back), Names{"o20"});
    EXPECT_EQ(layers(back, "part"), Names{});
}

TEST_F(StepInstances, HaveTheLayerOfTheStyleThatGivesThemAColour)
{
    sdkDocument document;
    add_nested(document);
    document.colours()->SetColor(find(document, "o40"), kit_red(), XCAFDoc_ColorSurf);
    ASSERT_TRUE(write(document, path("colour.stp")));
    auto text = kit_read_file(path("colour.stp"));
    auto const styled = text.find("= STYLED_ITEM(");
    auto const number = text.rfind('#', styled);
    auto const style = text.substr(number, text.find(' ', number) - number);
    text.insert(number, "#9001 = PRESENTATION_LAYER_ASSIGNMENT('own','',(" + style + "));\n");
    sdkDocument back;
    ASSERT_TRUE(read(folder().write("own.stp", text), back));
    EXPECT_EQ(layers(back, "o40"), Names{"own"});
    EXPECT_EQ(layers(back, "part"), Names{});
}

// The document has a free shape that only places a part, for which files have no instance.
TEST_F(StepInstances, ThatCannotBeHiddenAreTold)
{
    sdkDocument document;
    add_nested(document);
    gp_Trsf move;
    move.SetTranslation(gp_Vec(0, 50, 0));
    auto const free = document.shapes()->AddShape(
        XCAFDoc_ShapeTool::GetShape(m_part).Moved(TopLoc_Location(move)), Standard_False);
    ASSERT_TRUE(XCAFDoc_ShapeTool::IsReference(free));
    sdk_hide(document, free);
    ASSERT_TRUE(write(document, path("free.stp")));
    ASSERT_EQ(account().findings().size(), 1U);
    EXPECT_EQ(account().findings().front().weight, sdkWeight::difference);
    EXPECT_EQ(account().findings().front().source, 1);
}

TEST_F(StepInstances, HaveTheStylesThatOverrideThoseOfTheirParts)
{
    sdkDocument document;
    ASSERT_TRUE(read(file_with_context({"o20"}), document));
    EXPECT_TRUE(kit_colour(document, find(document, "o20")).IsEqual(Quantity_Color(Quantity_NOC_RED)));
    EXPECT_TRUE(kit_colour(document, find(document, "part")).IsEqual(Quantity_Color(Quantity_NOC_BLUE1)));
    EXPECT_EQ(hidden(document), Names{"o20"});
    EXPECT_EQ(layers(document, "o20"), Names{"own"});
    EXPECT_EQ(layers(document, "part"), Names{});
    EXPECT_FALSE(said().says("not as the standard has them"));
}

// A style of a place in one place of an assembly is neither that of the part nor of the place in all of them.
TEST_F(StepInstances, AreNotStyledForOneOfTheirPlaces)
{
    sdkDocument document;
    ASSERT_TRUE(read(file_with_context({"a60", "i20"}), document));
    EXPECT_TRUE(kit_colour(document, find(document, "part")).IsEqual(Quantity_Color(Quantity_NOC_BLUE1)));
    EXPECT_EQ(hidden(document), Names{});
    for (auto const * const name : {"a60", "i20", "part"}) {
        EXPECT_EQ(layers(document, name), Names{});
    }
}

TEST_F(StepInstances, WithSuchStylesMakeOtherReadersHideThePart)
{
    sdkDocument document;
    read_bare(file_with_context({"o20"}), document);
    EXPECT_EQ(hidden(document), Names{"part"})
        << "the toolkit knows the form now: stepContextStyles is needed no more";
}
