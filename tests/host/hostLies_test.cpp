#include "HostRun.h"
#include "hostSource.h"

#include "sdk/sdkDocument.h"
#include "translators/kit/kitParts.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeWedge.hxx>
#include <GeomAPI_PointsToBSplineSurface.hxx>
#include <Geom_BSplineSurface.hxx>
#include <TColgp_Array2OfPnt.hxx>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

using nlohmann::json;

namespace {

TopoDS_Shape waves()
{
    constexpr int points = 20;
    TColgp_Array2OfPnt grid(1, points, 1, points);
    for (int i = 1; i <= points; ++i) {
        for (int j = 1; j <= points; ++j) {
            double const x = 100. * (i - 1) / (points - 1);
            double const y = 100. * (j - 1) / (points - 1);
            grid(i, j) = gp_Pnt(x, y, 3 * std::sin(x / 15) * std::cos(y / 20));
        }
    }
    GeomAPI_PointsToBSplineSurface const surface(grid, 3, 3, GeomAbs_C2, 1.0e-3);
    return BRepBuilderAPI_MakeFace(surface.Surface(), 1.0e-7).Face();
}

TopoDS_Shape plate()
{
    auto const hole = BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(15, 12, 0), gp::DZ()), 4, 2).Shape();
    return BRepAlgoAPI_Cut(BRepPrimAPI_MakeBox(30., 20., 2.).Shape(), hole).Shape();
}

// A half of a block that was cut along a diagonal that runs through no plane of its own.
TopoDS_Shape wedge()
{
    return BRepPrimAPI_MakeWedge(20., 12., 10., 2., 1., 9., 8.).Shape();
}

// Two square bars that stand side by side, without a colour.
void add_twins(sdkDocument & document)
{
    auto const left = document.add_shape(BRepPrimAPI_MakeBox(10., 10., 30.).Shape(), "Left");
    auto const right = document.add_shape(BRepPrimAPI_MakeBox(10., 10., 30.).Shape(), "Right");
    auto const assembly = document.shapes()->NewShape();
    sdkDocument::set_name(assembly, "Pair");
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(40, 0, 0));
    document.shapes()->AddComponent(assembly, left, TopLoc_Location());
    document.shapes()->AddComponent(assembly, right, TopLoc_Location(shift));
    document.shapes()->UpdateAssemblies();
}

void fill(sdkDocument & document, std::string const & what)
{
    std::map<std::string, std::function<void()>> const sources{
        {"assembly", [&] { kit_add_assembly(document); }},
        {"twins", [&] { add_twins(document); }},
        {"waves", [&] { document.add_shape(waves(), "Waves"); }},
        {"plate", [&] { document.add_shape(plate(), "Plate"); }},
        {"wedge", [&] { document.add_shape(wedge(), "Wedge"); }},
        {"drum", [&] { document.add_shape(BRepPrimAPI_MakeCylinder(10, 20).Shape(), "Drum"); }}};
    sources.at(what)();
}

struct FineLie {
    std::string told;
    std::string source;
    std::string kind; // of a finding that has to be there
    std::string part; // that the finding names
    std::string verdict = "differs";
    std::string format = "LIE";
};

std::ostream & operator<<(std::ostream & stream, FineLie const & lie)
{
    return stream << lie.told;
}

} // namespace

class HostFineLies : public testing::TestWithParam<FineLie> {
protected:
    void run(std::string const & told)
    {
        HostJob job;
        job.input(
            host_write_source(folder, [&](sdkDocument & document) { fill(document, GetParam().source); }),
            TRANSLATORS "/step.so", "STEP");
        job.output(folder / "out.lie", LIES_MODULE, GetParam().format, {{"lieTold", told}});
        HostRun host;
        host.send(job.line());
        events = host.rest();
        ASSERT_TRUE(host.exits_with(0));
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.back().value("status", ""), "completed");
    }

    json all(std::string const & event) const
    {
        json found = json::array();
        std::copy_if(events.begin(), events.end(), std::back_inserter(found),
                     [&](json const & one) { return one["event"] == event; });
        return found;
    }

    kitTempFolder const folder;
    std::vector<json> events;
};

TEST_P(HostFineLies, AreFound)
{
    auto const & lie = GetParam();
    run(lie.told);
    ASSERT_EQ(all("verdict").size(), 1U);
    EXPECT_EQ(all("verdict")[0]["verdict"], lie.verdict);
    auto const findings = all("finding");
    auto const found = std::find_if(findings.begin(), findings.end(),
                                    [&](json const & finding) { return finding["kind"] == lie.kind; });
    ASSERT_NE(found, findings.end()) << findings.dump(1);
    EXPECT_EQ((*found)["part"], lie.part);
    EXPECT_NE((*found)["weight"], "note");
}

TEST_P(HostFineLies, AreNotSuspectedInAnHonestOutput)
{
    run("none");
    ASSERT_EQ(all("verdict").size(), 1U);
    EXPECT_EQ(all("verdict")[0]["verdict"], "verified") << all("finding").dump(1);
}

INSTANTIATE_TEST_SUITE_P(All, HostFineLies,
                         testing::Values(FineLie{"bump", "waves", "surface", "Waves"},
                                         FineLie{"fill-hole", "plate", "missing-face", "Plate", "losses"},
                                         FineLie{"swap-names", "twins", "name", "Left"},
                                         FineLie{"invent-colour", "twins", "colour", "Left"},
                                         FineLie{"forget-layer", "assembly", "layer", kit_red_name},
                                         FineLie{"shift-edge", "wedge", "edge-deviation", "Wedge"},
                                         FineLie{"turn-instance", "twins", "surface", "Right"},
                                         FineLie{"mirror", "wedge", "shape", "Wedge"},
                                         FineLie{"move-corner", "drum", "corner", "", "differs", "FACETS"}),
                         [](auto const & lie) {
                             auto name = lie.param.told;
                             std::erase(name, '-');
                             return name;
                         });
