#pragma once

#include "stepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>

// The base of tests that read files whose text they have, not our writer.
class stepTextTest : public stepFormatTest {
protected:
    static std::string fault(std::string const & name) { return FAULTS "/" + name; }

    // A file in the unit, millimetres otherwise, with these entities, of which the items make the shape.
    std::string file_of(std::string const & items, std::string const & entities,
                        std::string const & unit = "(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.))")
    {
        return folder().write(
            "solids.stp",
            "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
            "FILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n"
            "#1=APPLICATION_CONTEXT('');\n#2=PRODUCT_CONTEXT('',#1,'mechanical');\n"
            "#3=PRODUCT_DEFINITION_CONTEXT('part definition',#1,'design');\n"
            "#4=PRODUCT('Part','Part','',(#2));\n#5=PRODUCT_DEFINITION_FORMATION('','',#4);\n"
            "#6=PRODUCT_DEFINITION('design','',#5,#3);\n#7=PRODUCT_DEFINITION_SHAPE('','',#6);\n"
            "#8=SHAPE_DEFINITION_REPRESENTATION(#7,#9);\n#9=SHAPE_REPRESENTATION('',(" +
                items +
                "),#10);\n"
                "#10=(GEOMETRIC_REPRESENTATION_CONTEXT(3)GLOBAL_UNIT_ASSIGNED_CONTEXT((#11,#12))"
                "REPRESENTATION_CONTEXT('',''));\n#11=" +
                unit +
                ";\n#12=(NAMED_UNIT(*)PLANE_ANGLE_UNIT()SI_UNIT($,.RADIAN.));\n"
                "#13=CARTESIAN_POINT('',(1.,2.,3.));\n#14=DIRECTION('',(0.,0.,1.));\n"
                "#15=DIRECTION('',(1.,0.,0.));\n#16=AXIS2_PLACEMENT_3D('',#13,#14,#15);\n"
                "#17=AXIS1_PLACEMENT('',#13,#14);\n" +
                entities + "ENDSEC;\nEND-ISO-10303-21;\n");
    }

    // The volumes of the solids of all places, in the order of the document.
    static std::vector<double> volumes(sdkDocument const & document)
    {
        std::vector<double> result;
        for (auto const & label : document.free_shapes()) {
            for (TopExp_Explorer solid(XCAFDoc_ShapeTool::GetShape(label), TopAbs_SOLID); solid.More();
                 solid.Next()) {
                GProp_GProps properties;
                BRepGProp::VolumeProperties(solid.Current(), properties);
                result.push_back(properties.Mass());
                EXPECT_TRUE(BRepCheck_Analyzer(solid.Current()).IsValid());
            }
        }
        return result;
    }

    void expect_volumes(std::string const & file, std::vector<double> const & expected)
    {
        sdkDocument document;
        auto const result = read(file, document);
        ASSERT_TRUE(result) << result.text().formatted();
        auto const found = volumes(document);
        ASSERT_EQ(found.size(), expected.size());
        for (std::size_t at = 0; at < found.size(); ++at) {
            EXPECT_NEAR(found[at], expected[at], 1e-6 * expected[at]);
        }
    }
};
