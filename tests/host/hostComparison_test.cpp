#include "HostRun.h"

#include "kit/kitTempFolder.h"
#include "translators/kit/kitFault.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRepTools.hxx>

#include <gtest/gtest.h>

using nlohmann::json;

namespace {

class HostComparison : public testing::Test {
protected:
    json brep(std::string const & name, TopoDS_Shape const & shape) const
    {
        BRepTools::Write(shape, (folder / name).c_str());
        return side(folder / name, std::string(TRANSLATORS) + "/brep.so", "BREP");
    }

    static json side(std::string const & file, std::string const & module, std::string const & format)
    {
        return {{"file", file}, {"module", module}, {"format", format}};
    }

    static std::vector<json> run(json const & a, json const & b, json options = json::object())
    {
        options["a"] = a;
        options["b"] = b;
        HostRun host;
        host.send(json({{"job", 1}, {"compare", options}}).dump() + "\n");
        auto events = host.rest();
        EXPECT_TRUE(host.exits_with(0));
        EXPECT_FALSE(events.empty());
        return events;
    }

    static std::vector<json> of_kind(std::vector<json> const & events, std::string const & kind)
    {
        std::vector<json> found;
        std::copy_if(events.begin(), events.end(), std::back_inserter(found),
                     [&](json const & event) { return event["event"] == kind; });
        return found;
    }

    static std::string verdict(std::vector<json> const & events)
    {
        auto const found = of_kind(events, "verdict");
        return found.size() == 1 ? found[0]["verdict"].get<std::string>() : "";
    }

    kitTempFolder const folder;
};

TopoDS_Shape moved(TopoDS_Shape const & shape, double x)
{
    gp_Trsf place;
    place.SetTranslation(gp_Vec(x, 0, 0));
    return BRepBuilderAPI_Transform(shape, place, Standard_True).Shape();
}

} // namespace

TEST_F(HostComparison, TellsWhatBothFilesHoldAndThatTheyAreTheSame)
{
    auto const events = run(brep("a.brep", kit_cube(10)), brep("b.brep", kit_cube(10)));
    EXPECT_EQ(verdict(events), "verified");
    EXPECT_TRUE(of_kind(events, "finding").empty());

    auto const files = of_kind(events, "file");
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[1]["path"], folder / "b.brep");
    EXPECT_EQ(files[1]["direction"], "reading");

    auto const inventories = of_kind(events, "inventory");
    ASSERT_EQ(inventories.size(), 2U);
    EXPECT_EQ(inventories[0]["side"], "a");
    EXPECT_EQ(inventories[1]["side"], "b");
    EXPECT_EQ(inventories[0]["solids"], 1);
    EXPECT_EQ(inventories[0]["shells"], 1);
    EXPECT_EQ(inventories[0]["faces"], 6);
    EXPECT_EQ(inventories[0]["triangles"], 0);
    EXPECT_NEAR(inventories[0]["volume"].get<double>(), 1000, 1e-6);
    EXPECT_NEAR(inventories[0]["area"].get<double>(), 600, 1e-6);
    EXPECT_EQ(inventories[0]["box"].size(), 6U);
    EXPECT_NEAR(inventories[0]["box"][5].get<double>(), 10, 1e-6);

    auto const pairs = of_kind(events, "pair");
    ASSERT_EQ(pairs.size(), 1U);
    EXPECT_EQ(pairs[0]["kind"], "solid");
    EXPECT_EQ(pairs[0]["same"], true);
    EXPECT_NEAR(pairs[0]["a"]["volume"].get<double>(), 1000, 1e-6);
    EXPECT_NEAR(pairs[0]["b"]["area"].get<double>(), 600, 1e-6);
    EXPECT_NEAR(pairs[0]["distance"].get<double>(), 0, 1e-9);
    EXPECT_EQ(events.back()["event"], "end");
    EXPECT_EQ(events.back()["status"], "completed");
}

TEST_F(HostComparison, TellsHowTheyDiffer)
{
    auto const a = brep("a.brep", kit_compound({kit_cube(10), moved(kit_cube(5), 100)}));
    auto const b = brep("b.brep", kit_compound({kit_cube(10.01)}));
    auto const events = run(a, b);
    EXPECT_EQ(verdict(events), "differs");
    std::set<std::string> kinds;
    for (auto const & finding : of_kind(events, "finding")) {
        EXPECT_EQ(finding["weight"], "difference");
        kinds.insert(finding["kind"]);
    }
    EXPECT_EQ(kinds, (std::set<std::string>{"volume", "area", "centroid", "missing-solid"}));
    auto const pairs = of_kind(events, "pair");
    ASSERT_EQ(pairs.size(), 2U);
    EXPECT_EQ(pairs[1]["b"], nullptr);
    EXPECT_FALSE(pairs[1].contains("distance"));
}

TEST_F(HostComparison, HasTheTolerancesOfTheJob)
{
    auto const a = brep("a.brep", kit_cube(10));
    auto const b = brep("b.brep", kit_cube(10.01));
    EXPECT_EQ(verdict(run(a, b)), "differs");
    EXPECT_EQ(verdict(run(a, b, {{"relative", 0.01}, {"absolute", 0.02}})), "verified");
    EXPECT_EQ(verdict(run(a, b, {{"relative", 0.01}, {"absolute", 0.001}, {"level", "full"}})), "verified")
        << "places may differ by ten times the share of the size as well";
    EXPECT_EQ(verdict(run(a, b, {{"level", "counts"}})), "verified");
    auto const counted = run(a, b, {{"level", "counts"}});
    EXPECT_EQ(of_kind(counted, "inventory")[0]["box"], nullptr);
}

TEST_F(HostComparison, ComparesNamesWhenAskedTo)
{
    auto const a = brep("a.brep", kit_cube(10));
    auto const b = brep("b.brep", kit_cube(10));
    EXPECT_EQ(verdict(run(a, b, {{"names", true}})), "verified") << "each part is called after its file";
    EXPECT_EQ(verdict(run(a, a, {{"names", true}, {"colours", true}, {"layers", true}, {"structure", true}})),
              "verified");
}

TEST_F(HostComparison, HoldsTrianglesAgainstSurfaces)
{
    auto const a = brep("a.brep", kit_cube(10));
    auto const facets = brep("facets.brep", kit_facet_cube());
    EXPECT_EQ(verdict(run(a, facets)), "verified");
    EXPECT_EQ(verdict(run(brep("large.brep", kit_cube(11)), facets)), "differs");
    auto const counted = run(a, facets, {{"level", "counts"}});
    EXPECT_EQ(verdict(counted), "not_verified");
    EXPECT_EQ(of_kind(counted, "message").back()["stream"], "error");
}

TEST_F(HostComparison, EndsWithAnErrorWhenAFileCannotBeRead)
{
    auto const a = brep("a.brep", kit_cube(10));
    auto const none = side(folder / "none.brep", std::string(TRANSLATORS) + "/brep.so", "BREP");
    auto const events = run(a, none);
    EXPECT_EQ(verdict(events), "");
    EXPECT_EQ(events.back()["status"], "read_error");
    EXPECT_EQ(of_kind(events, "message").back()["stream"], "error");

    auto const thrown = run(a, side("/in/b.odd", ODD_MODULE, "Throws"));
    EXPECT_EQ(thrown.back()["status"], "read_error");
    EXPECT_EQ(of_kind(thrown, "message").back()["args"][0], "/in/b.odd");
}

TEST_F(HostComparison, GivesNoVerdictOnWhatWasNotReadWhole)
{
    // A block, and beside it a solid that no reader translates.
    auto const partly = side(kit_fault_file("boolsolid.step"), std::string(TRANSLATORS) + "/step.so", "STEP");
    auto const events = run(partly, partly);
    EXPECT_EQ(verdict(events), "not_verified");
    EXPECT_EQ(of_kind(events, "finding").size(), 2U) << "one for each file";
    EXPECT_EQ(of_kind(events, "message").back()["args"], json({2}));
    // What is known to differ, differs.
    EXPECT_EQ(verdict(run(partly, brep("a.brep", kit_cube(10)))), "differs");
}

TEST_F(HostComparison, DoesNotCompareAnnotation)
{
    auto text = kit_read_file(kit_fault_file("csg_block.step"));
    text.insert(text.find("DATA;") + 5, "\n#90001=SHAPE_ASPECT('','',#90002,.F.);\n"
                                        "#90002=PRODUCT_DEFINITION_SHAPE('','',$);\n"
                                        "#90003=DIMENSIONAL_SIZE(#90001,'diameter');\n");
    auto const file = side(folder.write("a.step", text), std::string(TRANSLATORS) + "/step.so", "STEP");
    auto const events = run(file, file);
    EXPECT_EQ(verdict(events), "verified");
    auto const findings = of_kind(events, "finding");
    ASSERT_FALSE(findings.empty()) << "but it is told";
    EXPECT_EQ(findings[0]["kind"], "annotation");
}

TEST_F(HostComparison, GivesNoVerdictOnNothing)
{
    auto const nothing = brep("a.brep", kit_compound({}));
    EXPECT_NE(verdict(run(nothing, nothing)), "verified");
}

TEST_F(HostComparison, NamesTheFileBeforeItsReaderCrashes)
{
    auto const a = brep("a.brep", kit_cube(10));
    auto const b = side("/in/b.odd", ODD_MODULE, "Crashes");
    HostRun host;
    host.send(json({{"job", 1}, {"compare", {{"a", a}, {"b", b}}}}).dump() + "\n");
    auto const events = host.rest();
    auto const files = of_kind(events, "file");
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[1]["path"], "/in/b.odd");
    EXPECT_TRUE(WIFSIGNALED(host.wait()));
}

TEST_F(HostComparison, IsCancelled)
{
    HostRun host;
    auto const waits = side("/in/a.odd", ODD_MODULE, "Waits");
    host.send(json({{"job", 1}, {"compare", {{"a", waits}, {"b", waits}}}}).dump() + "\n");
    ASSERT_TRUE(host.next("event", "file"));
    host.send("{\"command\":\"cancel\"}\n");
    EXPECT_EQ(host.rest().back()["status"], "cancelled");
}
