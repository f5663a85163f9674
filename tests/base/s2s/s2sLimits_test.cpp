#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "batchKit.h"
#include "s2s/s2sLimits.h"
#include "s2s/s2sMemory.h"
#include "sdu/sduStartupInfo.h"

namespace {

using nlohmann::json;
using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::AllOf;
using ::testing::Gt;
using ::testing::Le;

constexpr std::uint64_t megabyte = 1024 * 1024;

class Limits : public BatchTest {
protected:
    json job_of(std::string const & name) const { return json::parse(read_text(folder / name)); }
    s2sAllowance allowance(s2sLimits const & limits, std::size_t input_size)
    {
        auto const in = make_input("in.cad", std::string(input_size, 'x'));
        return s2s_allowance(limits, translation(in, folder / "out/part.cad", ""), folder.path(), 1);
    }
};

TEST_F(Limits, AreThoseOfTheSettings)
{
    sduStartupInfo settings;
    settings.add_field_without_saving("translation_patience", "7");
    settings.add_field_without_saving("translation_memory", "300");
    settings.add_field_without_saving("translation_output_size", "5");
    auto const limits = s2s_limits(settings);
    EXPECT_EQ(limits.patience, seconds(7));
    EXPECT_EQ(limits.memory, 300 * megabyte);
    EXPECT_EQ(limits.output_size, 5 * megabyte);
}

TEST_F(Limits, LeaveATranslationEnoughMemoryToBegin)
{
    sduStartupInfo settings;
    settings.add_field_without_saving("translation_memory", "1");
    EXPECT_EQ(s2s_limits(settings).memory, 64 * megabyte);
    settings.add_field_without_saving("translation_memory", "0");
    EXPECT_EQ(s2s_limits(settings).memory, 0u);
}

TEST_F(Limits, HaveDefaultsForWhatIsNoNumber)
{
    for (char const * text : {"", "-1", "12 s", "many", "99999999999999999999999"}) {
        sduStartupInfo settings;
        for (char const * key : {"translation_patience", "translation_memory", "translation_output_size"})
            settings.add_field_without_saving(key, text);
        auto const limits = s2s_limits(settings);
        EXPECT_EQ(limits.patience, seconds(120)) << text;
        EXPECT_EQ(limits.memory, 0u) << text;
        EXPECT_EQ(limits.output_size, 0u) << text;
    }
}

TEST_F(Limits, GiveALargeInputMorePatience)
{
    EXPECT_EQ(allowance({.patience = seconds(100)}, 0).patience, milliseconds(100000));
    EXPECT_EQ(allowance({.patience = seconds(100)}, 2 * megabyte).patience, milliseconds(150000));
    EXPECT_EQ(allowance({.patience = seconds(0)}, megabyte).patience, std::nullopt);
    sduStartupInfo settings;
    settings.add_field_without_saving("translation_patience", "18446744073709551615");
    EXPECT_GT(allowance(s2s_limits(settings), megabyte).patience, milliseconds(1000000));
}

TEST_F(Limits, LeaveAReserveOnTheDisk)
{
    EXPECT_EQ(s2s_file_size_for(1000 * megabyte), 744 * megabyte);
    EXPECT_EQ(s2s_file_size_for(512 * megabyte), 256 * megabyte);
    EXPECT_EQ(s2s_file_size_for(511 * megabyte), 0u);
    EXPECT_EQ(s2s_file_size_for(0), 0u);
    EXPECT_EQ(allowance({.output_size = 12}, 0).file_size, 12u);
}

TEST_F(Limits, ReachTheHost)
{
    context.set_limits({.patience = seconds(4), .memory = 1000, .output_size = 2000});
    run_script("keep-job " + folder / "job" + "\nend completed 0 0");
    auto const job = job_of("job");
    EXPECT_EQ(job["memory_limit"], 1000);
    EXPECT_EQ(job["file_size_limit"], 2000);
    EXPECT_GE(job["silence"], 4.0);
    context.set_limits({.patience = seconds(0)});
    comm.reset();
    run_script("keep-job " + folder / "job" + "\nend completed 0 0");
    EXPECT_FALSE(job_of("job").contains("silence"));
}

TEST_F(Limits, GiveATranslationOfItsOwnWhatIsFree)
{
    run_script("keep-job " + folder / "job" + "\nend completed 0 0");
    EXPECT_THAT(job_of("job")["memory_limit"].get<std::uint64_t>(), AllOf(Gt(0u), Le(s2s_memory().total)));
}

TEST_F(Limits, DivideWhatIsFreeAmongThoseThatRunAheadAndGiveItAllWhenTheirTurnComes)
{
    context.set_hosts(2);
    auto const pipe = fifo("pipe");
    auto const turn = fifo("turn");
    run_batch({entry("a", "keep-job " + folder / "job-a" + "\nawait " + pipe + "\nend completed 0 0"),
               entry("b", "keep-job " + folder / "job-b" + "\ntell " + pipe + "\nkeep-command " +
                              folder / "command" + "\nend completed 0 0")});
    auto const first = job_of("job-a")["memory_limit"].get<std::uint64_t>();
    auto const ahead = job_of("job-b")["memory_limit"].get<std::uint64_t>();
    EXPECT_THAT(ahead, AllOf(Gt(0u), Le(s2s_memory().total / 2)));
    EXPECT_GT(first, ahead);
    auto const command = job_of("command");
    EXPECT_EQ(command["command"], "memory");
    EXPECT_GT(command["limit"].get<std::uint64_t>(), ahead);
}

} // namespace
