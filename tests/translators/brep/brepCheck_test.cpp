#include "brep/brepCheck.h"

#include "brepFormatTest.h"

#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <TopoDS_Compound.hxx>

#include <algorithm>
#include <cstring>
#include <limits>
#include <sstream>

class BrepCheck : public brepFormatTest {
protected:
    static std::string said_of(std::string const & content)
    {
        auto const result = brep_check(content, "a.brep");
        return result ? std::string() : result.text().formatted();
    }

    static std::string with(std::string text, std::string const & from, std::string const & to)
    {
        auto const at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return at == std::string::npos ? text : text.replace(at, from.size(), to);
    }

    // Each compound has the one before it twice.
    static TopoDS_Shape doubled(int times)
    {
        TopoDS_Shape shape = kit_cube(1);
        BRep_Builder builder;
        for (int level = 0; level < times; ++level) {
            TopoDS_Compound compound;
            builder.MakeCompound(compound);
            builder.Add(compound, shape);
            builder.Add(compound, shape);
            shape = compound;
        }
        return shape;
    }
};

TEST_F(BrepCheck, PassesWhatTheLibraryWritesInEachVersion)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    for (auto const * const mesh : {"false", "true"}) {
        for (auto const * const version : {"1", "2", "3"}) {
            EXPECT_EQ(said_of(written(cylinder,
                                      {{"brepWriteTextVersion", version}, {"brepWriteTriangulation", mesh}})),
                      "");
        }
        for (auto const * const version : {"1", "2", "3", "4"}) {
            EXPECT_EQ(said_of(written(cylinder, {{"brepWriteForm", "binary"},
                                                 {"brepWriteBinaryVersion", version},
                                                 {"brepWriteTriangulation", mesh}})),
                      "");
        }
    }
}

TEST_F(BrepCheck, RefusesCountsThatDoNotFitTheFile)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    for (auto const * const form : {"text", "binary"}) {
        auto const content = written(cylinder, {{"brepWriteForm", form}, {"brepWriteTriangulation", "true"}});
        for (std::string const section :
             {"Locations ", "Curve2ds ", "Curves ", "Polygon3D ", "PolygonOnTriangulations ", "Surfaces ",
              "Triangulations ", "TShapes "}) {
            auto const at = section == "Triangulations " ? content.rfind(section) : content.find(section);
            ASSERT_NE(at, std::string::npos) << section;
            auto const end = content.find('\n', at);
            for (auto const * const count : {"2000000000", "3000000000", "-1"}) {
                auto lying = content;
                lying.replace(at, end - at, section + count);
                auto const said = said_of(lying);
                EXPECT_NE(said.find("the count " + std::string(count) + " does not fit a file of this size"),
                          std::string::npos)
                    << form << " " << section << said;
            }
        }
    }
}

TEST_F(BrepCheck, RefusesNumbersThatAreNone)
{
    auto const text = written(kit_cube(10));
    EXPECT_NE(said_of(with(text, "1 0 0 1 0", "1 NaN 0 1 0")).find("line "), std::string::npos);
    EXPECT_NE(said_of(with(text, "1 0 0 1 0", "1 1e400 0 1 0")).find("the number 1e400 is not finite"),
              std::string::npos);
    EXPECT_NE(said_of(with(text, "1 0 0 1 0", "1 -1e300 0 1 0")).find("too large"), std::string::npos);
    EXPECT_EQ(said_of(with(text, "1 0 0 1 0", "1 1e-400 0 1 0")), "");
    auto binary = written(kit_cube(10), {{"brepWriteForm", "binary"}});
    double const none = std::numeric_limits<double>::quiet_NaN();
    std::memcpy(binary.data() + binary.find("Curve2ds") + 12, &none, sizeof none);
    EXPECT_NE(said_of(binary).find("byte "), std::string::npos) << said_of(binary);
}

TEST_F(BrepCheck, RefusesIndicesBeyondTheirLists)
{
    auto const text = written(kit_cube(10));
    auto const edge = text.find("\nEd\n");
    auto const curve = text.find("\n1  ", edge);
    auto broken = text;
    EXPECT_NE(said_of(broken.replace(curve, 4, "\n1  9999")).find("the file has no curve 9999"),
              std::string::npos);
    // The solid, which is the first by the numbers of the file, has itself in place of its shell.
    auto const list = text.rfind("+2 0 *");
    ASSERT_NE(list, std::string::npos);
    broken = text;
    EXPECT_NE(said_of(broken.replace(list, 2, "+1")).find("a shape has the part 1, which is not before it"),
              std::string::npos);
}

TEST_F(BrepCheck, CountsNestsBeforeTheyAreSpreadOut)
{
    auto const small = written(doubled(10), {{"brepWriteStructure", "nested"}, {"vmrOptVerify", "none"}});
    EXPECT_EQ(said_of(small), "");
    std::ostringstream stream;
    BRepTools::Write(doubled(20), stream);
    auto const result = brep_check(stream.str(), "a.brep");
    EXPECT_EQ(result.status(), sdkStatus::too_big);
    EXPECT_NE(result.text().formatted().find("stand for 9437183 shapes"), std::string::npos)
        << result.text().formatted();
}

TEST_F(BrepCheck, RefusesNestsThatAreTooDeep)
{
    TopoDS_Shape shape = kit_cube(1);
    BRep_Builder builder;
    for (int level = 0; level < 1100; ++level) {
        TopoDS_Compound compound;
        builder.MakeCompound(compound);
        builder.Add(compound, shape);
        shape = compound;
    }
    std::ostringstream stream;
    BRepTools::Write(shape, stream);
    auto const result = brep_check(stream.str(), "a.brep");
    EXPECT_EQ(result.status(), sdkStatus::too_big);
    EXPECT_NE(result.text().formatted().find("levels deep"), std::string::npos) << result.text().formatted();
}
