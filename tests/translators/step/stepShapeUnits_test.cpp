#include "stepTextTest.h"

class StepShapeUnits : public stepTextTest {
protected:
    std::vector<std::string> kinds() const
    {
        std::vector<std::string> result;
        for (auto const & finding : account().findings()) {
            EXPECT_EQ(finding.weight, sdkWeight::note);
            result.push_back(finding.kind);
        }
        return result;
    }

    static constexpr char const * block = "#100=CSG_SOLID('',#101);\n#101=BLOCK('',#16,6.,1.,1.);\n";
};

TEST_F(StepShapeUnits, PartsInDifferentUnitsAreEachConverted)
{
    expect_volumes(fault("mm_in_assy.step"), {6000, 6000});
    EXPECT_TRUE(said().says("Length unit of the file is mm"));
    EXPECT_TRUE(said().says("Length unit of the file is in"));
    EXPECT_EQ(kinds(), std::vector<std::string>{"unit-mixed"});
    EXPECT_NE(account().findings().front().text.formatted().find("in, mm"), std::string::npos);
}

TEST_F(StepShapeUnits, OneUnitIsNoFinding)
{
    expect_volumes(fault("nounit.step"), {6000});
    EXPECT_TRUE(said().says("Length unit of the file is mm"));
    EXPECT_TRUE(kinds().empty());
}

TEST_F(StepShapeUnits, AUnitWithoutASignIsToldByItsLength)
{
    expect_volumes(file_of("#100",
                           std::string("#90=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(2.5),#92);\n"
                                       "#91=DIMENSIONAL_EXPONENTS(1.,0.,0.,0.,0.,0.,0.);\n"
                                       "#92=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.));\n")
                               .append(block),
                           "(CONVERSION_BASED_UNIT('PITCH',#90)LENGTH_UNIT()NAMED_UNIT(#91))"),
                   {6 * 2.5 * 2.5 * 2.5});
    EXPECT_TRUE(said().says("Length unit of the file is 2.5 mm"));
}

TEST_F(StepShapeUnits, ShapesWithoutAUnitAreTakenForMillimetresAndToldSo)
{
    // The context has units of angle only; or it has no units.
    expect_volumes(file_of("#100", block, "(NAMED_UNIT(*)SI_UNIT($,.STERADIAN.)SOLID_ANGLE_UNIT())"), {6});
    EXPECT_EQ(kinds(), std::vector<std::string>{"unit-assumed"});
    auto text = kit_read_file(fault("nounit.step"));
    auto const units = text.find("GLOBAL_UNCERTAINTY_ASSIGNED_CONTEXT((#349))");
    text.erase(units, text.find("REPRESENTATION_CONTEXT('Context #1'") - units);
    expect_volumes(folder().write("nounit.stp", text), {6000});
    EXPECT_EQ(kinds(), std::vector<std::string>{"unit-assumed"});
    EXPECT_FALSE(said().says("Length unit of the file"));
}
