#include "stepFormatTest.h"

#include <TCollection_ExtendedString.hxx>

class StepLayers : public stepFormatTest {
protected:
    // A file with a red cube on each of these layers, which are assigned to the colours of the cubes.
    std::string write_styled(std::vector<std::string> const & layers)
    {
        sdkDocument document;
        double size = 10;
        for (auto const & layer : layers) {
            auto const label = document.add_shape(kit_cube(size++), "Cube");
            document.layers()->SetLayer(label, layer.c_str());
            document.colours()->SetColor(label, Quantity_Color(Quantity_NOC_RED), XCAFDoc_ColorSurf);
        }
        auto const file = path("layers.stp");
        EXPECT_TRUE(write(document, file));
        auto text = kit_read_file(file);
        std::size_t styled = 0;
        std::size_t at = 0;
        for (auto const & layer : layers) {
            // #40 = STYLED_ITEM(...
            styled = text.find("= STYLED_ITEM(", styled + 1);
            auto const number = text.rfind('#', styled);
            auto const style = text.substr(number, text.find(' ', number) - number);
            at = text.find("PRESENTATION_LAYER_ASSIGNMENT('" + layer, at + 1);
            auto const begin = text.find("(#", at) + 1;
            EXPECT_NE(styled, std::string::npos);
            EXPECT_NE(at, std::string::npos);
            text.replace(begin, text.find(')', begin) - begin, style);
        }
        return folder().write("styled.stp", text);
    }

    static std::vector<std::string> layers_of(sdkDocument const & document)
    {
        std::vector<std::string> names;
        TDF_LabelSequence layers;
        document.layers()->GetLayerLabels(layers);
        for (auto const & layer : layers) {
            TCollection_ExtendedString name;
            document.layers()->GetLayer(layer, name);
            names.push_back(TCollection_AsciiString(name).ToCString());
        }
        return names;
    }
};

TEST_F(StepLayers, ComeFromTheStylesOfShapesToo)
{
    sdkDocument document;
    ASSERT_TRUE(read(write_styled({"Outside"}), document));
    EXPECT_EQ(layers_of(document), (std::vector<std::string>{"Outside"}));
    EXPECT_FALSE(said().says("without a name"));
}

TEST_F(StepLayers, WithoutANameBecomeOneAndTheUserIsTold)
{
    auto const file = write_styled({"Outside", "Inside"});
    auto text = kit_read_file(file);
    for (std::string const name : {"'Outside'", "'Inside'"}) {
        text.replace(text.find(name, text.find("PRESENTATION_LAYER")), name.size(), "''");
    }
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("nameless.stp", text), document));
    EXPECT_EQ(layers_of(document), (std::vector<std::string>{""}));
    EXPECT_TRUE(said().says("2 layers without a name become one"));
}

TEST_F(StepLayers, AreNotCountedWhenTheyAreNotRead)
{
    sdkDocument document;
    ASSERT_TRUE(read(write_styled({"Outside"}), document, {{"stepReadLayers", "false"}}));
    EXPECT_TRUE(layers_of(document).empty());
}
