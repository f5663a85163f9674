#include "host/hostTold.h"
#include "kit/kitTempFolder.h"
#include "translators/faults_test/faultsShapes.h"
#include "translators/faults_test/faultsTable.h"

#include <TopExp_Explorer.hxx>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

int loose_faces(TopoDS_Shape const & shape)
{
    int number = 0;
    for (TopExp_Explorer face(shape, TopAbs_FACE, TopAbs_SOLID); face.More(); face.Next()) {
        ++number;
    }
    return number;
}

HostJob job_for(std::string const & input, std::string const & output, std::string const & format)
{
    HostJob job;
    auto const source = host_format(input);
    job.input(input, host_module(TRANSLATORS, source), source)
        .output(output, host_module(TRANSLATORS, format), format);
    return job;
}

// What one translation said.
struct Translation : HostTold {
    Translation(std::string const & input, std::string const & output, std::string const & format)
        : HostTold(job_for(input, output, format))
    {
    }

    bool tells(std::string const & text) const { return texts.find(text) != std::string::npos; }
};

std::string name_of(std::string const & file, std::string const & format)
{
    auto name = file + "To" + format;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

} // namespace

class Faults : public testing::TestWithParam<std::tuple<std::size_t, std::size_t>> {
protected:
    FaultsRow const & row = faults_table()[std::get<0>(GetParam())];
    std::size_t const column = std::get<1>(GetParam());
    std::string const format = faults_formats[column];
    kitTempFolder const folder;
    std::string const output = folder / "out";

    void expect_shapes() const
    {
        auto const shape = faults_read(output, format);
        ASSERT_FALSE(shape.IsNull());
        auto const volumes = faults_solid_volumes(shape);
        ASSERT_EQ(volumes.size(), row.solids.size());
        for (std::size_t at = 0; at < volumes.size(); ++at) {
            EXPECT_NEAR(volumes[at], row.solids[at], 1e-6 * row.solids[at]);
        }
        double const whole = std::accumulate(row.solids.begin(), row.solids.end(), 0.0);
        EXPECT_NEAR(faults_meshed_volume(shape), whole, 1e-3 * whole);
        EXPECT_EQ(loose_faces(shape), row.loose_faces);
        EXPECT_EQ(faults_loose_edges(shape), row.loose_edges);
        EXPECT_EQ(faults_loose_points(shape), row.loose_points);
        if (row.loose_faces == 0) {
            EXPECT_EQ(faults_shells(shape), row.shells ? row.shells : static_cast<int>(volumes.size()));
        }
    }

    void expect_triangles() const
    {
        // The triangles of loose faces enclose nothing, but seem to.
        if (row.loose_faces > 0) {
            return;
        }
        // Chords of small circles leave out that much.
        double const whole = std::accumulate(row.solids.begin(), row.solids.end(), -row.hidden);
        EXPECT_NEAR(faults_triangle_volume(output), whole, 0.03 * whole);
    }
};

TEST_P(Faults, AreTranslatedRightOrNamed)
{
    Translation const done(std::string(FAULTS "/") + row.file, output, format);
    EXPECT_EQ(done.status, "completed") << done.texts;
    EXPECT_EQ(done.verdict, row.verdicts[column]) << done.texts;
    auto told = row.told;
    if (auto const more = row.told_of_output.find(format); more != row.told_of_output.end()) {
        told.insert(told.end(), more->second.begin(), more->second.end());
    }
    for (auto const & text : told) {
        EXPECT_TRUE(done.tells(text)) << text << "\n-- is not in --\n" << done.texts;
    }
    bool const written = row.verdicts[column] != "not_verified";
    ASSERT_EQ(std::filesystem::exists(output), written);
    if (written) {
        format == "STL" ? expect_triangles() : expect_shapes();
    }
}

INSTANTIATE_TEST_SUITE_P(Table, Faults,
                         testing::Combine(testing::Range<std::size_t>(0, faults_table().size()),
                                          testing::Range<std::size_t>(0, faults_formats.size())),
                         [](auto const & one) {
                             return name_of(faults_table()[std::get<0>(one.param)].file,
                                            faults_formats[std::get<1>(one.param)]);
                         });

// A plane without end has a place in BREP only.
TEST(UnboundedPlane, IsRefusedWithTheReasonAndLeavesNoEmptyFile)
{
    kitTempFolder const folder;
    for (std::string const format : {"STEP", "IGES", "STL"}) {
        auto const output = folder / format;
        Translation const done(FAULTS "/f_infinite_plane.brep", output, format);
        EXPECT_EQ(done.verdict, "losses");
        EXPECT_TRUE(done.tells("face without end")) << done.texts;
        EXPECT_FALSE(std::filesystem::exists(output));
    }
    Translation const kept(FAULTS "/f_infinite_plane.brep", folder / "out.brep", "BREP");
    EXPECT_EQ(kept.verdict, "verified");
    EXPECT_EQ(faults_faces(faults_read(folder / "out.brep", "BREP")), 1);
}

TEST(EllipticEdges, LieOnTheirSurfacesInAllFormats)
{
    kitTempFolder const folder;
    for (auto const * const file : {"ellprism45.brep", "ellprism180.brep", "plate_oblique_hole.brep"}) {
        for (std::string const format : {"STEP", "IGES", "BREP"}) {
            auto const output = folder / format;
            Translation const done(std::string(FAULTS "/") + file, output, format);
            auto const shape = faults_read(output, format);
            ASSERT_FALSE(shape.IsNull());
            EXPECT_LT(faults_edges_off_surfaces(shape), 1e-4) << file << " " << format;
        }
    }
}

TEST(Attributes, AreInTheFileWhereTheFormatHasThem)
{
    kitTempFolder const folder;
    Translation const done(FAULTS "/attr.step", folder / "out.step", "STEP");
    auto const text = kit_read_file(folder / "out.step");
    for (auto const * const entity :
         {"SURFACE_STYLE_TRANSPARENT", "PRESENTATION_LAYER_ASSIGNMENT", "INVISIBILITY", "'density'"}) {
        EXPECT_NE(text.find(entity), std::string::npos) << entity;
    }
}

TEST(Blanked, StaysInvisibleWhereTheFormatCanSaySo)
{
    kitTempFolder const folder;
    Translation const step(FAULTS "/blank.igs", folder / "out.step", "STEP");
    EXPECT_NE(kit_read_file(folder / "out.step").find("INVISIBILITY"), std::string::npos);
    Translation const iges(FAULTS "/blank.igs", folder / "out.igs", "IGES");
    // The status of a solid in the directory begins with the blank status.
    std::istringstream lines(kit_read_file(folder / "out.igs"));
    int blanked = 0;
    for (std::string line; std::getline(lines, line);) {
        blanked += line.size() > 72 && line[72] == 'D' && line.compare(0, 8, "     186") == 0 &&
                           line.compare(64, 2, "01") == 0
                       ? 1
                       : 0;
    }
    EXPECT_EQ(blanked, 1);
}
