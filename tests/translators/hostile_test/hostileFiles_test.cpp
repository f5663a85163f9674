#include "host/hostTold.h"
#include "kit/kitTempFolder.h"
#include "translators/faults_test/faultsShapes.h"
#include "translators/hostile_test/hostileTable.h"

#include <TopExp_Explorer.hxx>

#include <gtest/gtest.h>

#include <regex>
#include <tuple>

namespace {

int bodies_of(TopoDS_Shape const & shape)
{
    int number = 0;
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
        ++number;
    }
    return number;
}

// Numbers of all formats stand between blanks, commas and brackets.
bool has_number_that_is_none(std::string const & text)
{
    static std::regex const none(R"([,( \n][-+]?(nan|inf)[,) \n;])", std::regex::icase);
    return std::regex_search(text, none);
}

} // namespace

class HostileFiles : public testing::TestWithParam<std::tuple<std::size_t, std::size_t>> {
protected:
    HostileRow const & row = hostile_table()[std::get<0>(GetParam())];
    std::string const format = hostile_formats[std::get<1>(GetParam())];
    kitTempFolder const folder;
    std::string const output = folder / "out";
    std::string status;
    std::string verdict;
    std::string texts;

    void translate()
    {
        constexpr std::int64_t memory = 4LL * 1024 * 1024 * 1024;
        HostJob job;
        auto const source = host_format(row.file);
        job.input(HOSTILE "/" + row.file, host_module(TRANSLATORS, source), source)
            .output(output, host_module(TRANSLATORS, format), format,
                    {{"vmrOptVerify", row.verdict.empty() ? "none" : "full"}})
            .value()["memory_limit"] = memory;
        HostTold const told(job);
        status = told.status;
        verdict = told.verdict;
        texts = told.texts;
        EXPECT_TRUE(told.ended_well);
    }

    void expect_shapes() const
    {
        auto const text = kit_read_file(output);
        if (format == "STL") {
            EXPECT_GT(text.size(), 84u);
            return;
        }
        EXPECT_FALSE(has_number_that_is_none(text));
        auto const shape = faults_read(output, format);
        ASSERT_FALSE(shape.IsNull());
        EXPECT_EQ(faults_faces(shape), row.faces);
        if (row.bodies > 0) {
            EXPECT_EQ(bodies_of(shape), row.bodies);
        }
    }
};

TEST_P(HostileFiles, AreTranslatedAsFarAsTheyAreSoundOrRefusedWithTheReason)
{
    translate();
    EXPECT_EQ(status, row.status) << texts;
    for (auto const & text : row.told) {
        EXPECT_NE(texts.find(text), std::string::npos) << text << "\n-- is not in --\n" << texts;
    }
    bool const written = row.status == "completed";
    ASSERT_EQ(std::filesystem::exists(output), written) << texts;
    if (written) {
        EXPECT_EQ(verdict, row.verdict) << texts;
        expect_shapes();
    }
}

INSTANTIATE_TEST_SUITE_P(Table, HostileFiles,
                         testing::Combine(testing::Range<std::size_t>(0, hostile_table().size()),
                                          testing::Range<std::size_t>(0, hostile_formats.size())),
                         [](auto const & one) {
                             auto name = hostile_table()[std::get<0>(one.param)].file + "To" +
                                         hostile_formats[std::get<1>(one.param)];
                             std::replace(name.begin(), name.end(), '.', '_');
                             return name;
                         });
