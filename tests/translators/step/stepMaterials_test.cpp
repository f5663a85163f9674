#include "stepTextTest.h"

#include "sdk/sdkMaterials.h"

#include <TCollection_HAsciiString.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_MaterialTool.hxx>

class StepMaterials : public stepTextTest {
protected:
    // Name and density of the materials of the parts, in their order.
    static std::vector<std::string> materials(sdkDocument const & document)
    {
        std::vector<std::string> result;
        auto const tool = XCAFDoc_DocumentTool::MaterialTool(document.handle()->Main());
        for (auto const & part : document.parts()) {
            Handle(TCollection_HAsciiString) name;
            Handle(TCollection_HAsciiString) description;
            Handle(TCollection_HAsciiString) density_name;
            Handle(TCollection_HAsciiString) density_type;
            double density = 0;
            auto const material = sdk_material(part);
            if (!material.IsNull() &&
                tool->GetMaterial(material, name, description, density, density_name, density_type)) {
                result.push_back(std::string(name->ToCString()) + " " + std::to_string(density));
            }
        }
        return result;
    }
};

TEST_F(StepMaterials, GoFromStepToStepAsTransparencyAndLayersDo)
{
    sdkDocument document;
    ASSERT_TRUE(read(fault("attr.step"), document));
    EXPECT_EQ(materials(document), std::vector<std::string>{"Steel 7.850000"});
    for (auto const & finding : account().findings()) {
        EXPECT_NE(finding.kind, "material");
    }
    ASSERT_TRUE(write(document, path("attr.stp")));
    auto const text = kit_read_file(path("attr.stp"));
    EXPECT_NE(text.find("SURFACE_STYLE_TRANSPARENT(0.69999"), std::string::npos);
    EXPECT_NE(text.find("PRESENTATION_LAYER_ASSIGNMENT('Schicht "), std::string::npos);
    sdkDocument back;
    ASSERT_TRUE(read(path("attr.stp"), back));
    EXPECT_EQ(materials(back), std::vector<std::string>{"Steel 7.850000"});
}

TEST_F(StepMaterials, StayWithPartsThatAreTakenOutOfTheirAssembly)
{
    sdkDocument document;
    ASSERT_TRUE(read(fault("attr.step"), document, {{"stepReadStructure", "flat"}}));
    EXPECT_FALSE(materials(document).empty());
    EXPECT_EQ(materials(document).front(), "Steel 7.850000");
}

TEST_F(StepMaterials, ThatCannotBeReadAreALoss)
{
    sdkDocument document;
    ASSERT_TRUE(
        read(file_of("#100", "#100=CSG_SOLID('',#101);\n#101=BLOCK('',#16,6.,1.,1.);\n"
                             "#110=PROPERTY_DEFINITION('material property','density',#6);\n"
                             "#111=PROPERTY_DEFINITION_REPRESENTATION(#110,#112);\n"
                             "#112=REPRESENTATION('density',(#113),#10);\n"
                             "#113=VALUE_REPRESENTATION_ITEM('density',POSITIVE_RATIO_MEASURE(7.85));\n"),
             document));
    ASSERT_EQ(account().findings().size(), 1U);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.weight, sdkWeight::loss);
    EXPECT_EQ(finding.kind, "material");
    EXPECT_EQ(finding.source, 1);
    EXPECT_EQ(finding.output, 0);
}
