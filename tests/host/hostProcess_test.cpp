#include "HostRun.h"

#include "ap/apMarkedFolder.h"
#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

using nlohmann::json;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

class HostProcess : public testing::Test {
protected:
    HostJob job(std::string const & format)
    {
        HostJob job;
        job.input("/in/a.odd", ODD_MODULE, format).output(out, ODD_MODULE, "Box");
        return job;
    }

    // Sends the job and waits until its reader is at work.
    void begin(HostJob const & job)
    {
        host.send(job.line());
        ASSERT_TRUE(host.next("event", "message"));
    }

    // A folder as the engine makes it.
    apMarkedFolder make_staging(std::string const & name) const
    {
        return apMarkedFolder::make(apFolder::open(folder.path()), name);
    }

    // The job, with its output in the folder.
    HostJob job_in(std::string const & staging, std::string const & format)
    {
        auto made = job(format);
        made.output(staging + "/out.odd", ODD_MODULE, "Box");
        made.value()["staging"] = staging;
        made.value()["output"]["final"] = out;
        return made;
    }

    kitTempFolder const folder;
    std::string const out = folder / "out.odd";
    // Names as the engine gives them.
    std::string const one = ".vmr-1f-12-aB3dEf", two = ".vmr-1f-12-000000", three = ".vmr-1f-9-zZzZzZ";
    HostRun host;
};

TEST_F(HostProcess, RefusesWhatIsNoJobWithItsOwnExitStatus)
{
    host.send("hello\n");
    EXPECT_TRUE(host.rest().empty());
    EXPECT_TRUE(host.exits_with(3));
}

TEST_F(HostProcess, RefusesAJobOfAnotherVersion)
{
    auto other = job("Box");
    other.value()["job"] = 2;
    host.send(other.line());
    EXPECT_TRUE(host.rest().empty());
    EXPECT_TRUE(host.exits_with(3));
}

TEST_F(HostProcess, EndsWhenTheEngineGoesBeforeItHasSentAJob)
{
    host.send("{\"job\":");
    host.close();
    EXPECT_TRUE(host.exits_with(3));
}

TEST_F(HostProcess, CancelsAReaderThatListens)
{
    begin(job("Waits"));
    host.send("{\"command\": \"cancel\"}\n");
    auto const events = host.rest();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back()["event"], "end");
    EXPECT_EQ(events.back()["status"], "cancelled");
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostProcess, CancelsAReaderThatDoesNotListen)
{
    begin(job("Stubborn"));
    host.send("{\"command\": \"cancel\"}\n");
    auto const events = host.rest();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back()["status"], "cancelled");
    EXPECT_TRUE(host.exits_with(0));
}

TEST_F(HostProcess, TakesACancelThatComesWithTheJob)
{
    host.send(job("Waits").line() + "{\"command\": \"cancel\"}\n");
    auto const events = host.rest();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back()["status"], "cancelled");
}

TEST_F(HostProcess, PassesOverCommandsThatItDoesNotKnow)
{
    begin(job("Waits"));
    host.send("not json\n{\"command\": \"dance\"}\n[]\n{\"command\": \"cancel\"}\n");
    EXPECT_EQ(host.rest().back()["status"], "cancelled");
}

TEST_F(HostProcess, RemovesTheStagingFolderWhenTheEngineGoes)
{
    auto const staging = folder / one;
    make_staging(one);
    folder.write(one + "/deep/half-written", "x");
    begin(job_in(staging, "Stubborn"));
    host.close();
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_FALSE(folder.exists(one));
}

TEST_F(HostProcess, RemovesTheStagingFolderAlsoWhenItIsKilledWithTheEngine)
{
    make_staging(one);
    folder.write(one + "/half-written", "x");
    begin(job_in(folder / one, "Stubborn"));
    // What the host leaves behind belongs to this process then.
    ASSERT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    host.signal(SIGSTOP);
    int status = 0;
    ASSERT_GT(::waitpid(-1, &status, WUNTRACED), 0);
    ASSERT_TRUE(WIFSTOPPED(status));
    host.close();
    host.signal(SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(host.wait()));
    while (::waitpid(-1, nullptr, 0) > 0) {
    }
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
    EXPECT_FALSE(folder.exists(one));
}

TEST_F(HostProcess, RemovesTheFoldersOfItsArgumentsAlsoWithoutAJob)
{
    for (auto const & name : {one, two, three}) {
        make_staging(name);
        folder.write(name + "/deep/file", "x");
    }
    HostRun early({"--remove-when-alone", folder / one, "--remove-when-alone", folder / two});
    early.close();
    early.wait();
    EXPECT_FALSE(folder.exists(one));
    EXPECT_FALSE(folder.exists(two));
    EXPECT_TRUE(folder.exists(three));
}

TEST_F(HostProcess, RemovesTheFoldersThatItIsToGuardWhenTheEngineGoes)
{
    for (auto const & name : {one, two, three}) {
        make_staging(name);
        folder.write(name + "/file", "x");
    }
    begin(job("Stubborn"));
    host.send(R"({"command": "guard", "folder": ")" + folder / one + "\"}\n");
    host.send("{\"command\": \"guard\"}\n" + (R"({"command": "guard", "folder": ")" + folder / two) +
              "\"}\n");
    host.close();
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_FALSE(folder.exists(one));
    EXPECT_FALSE(folder.exists(two));
    EXPECT_TRUE(folder.exists(three));
}

TEST_F(HostProcess, RemovesNothingByHand)
{
    make_staging(one);
    folder.write(one + "/file", "x");
    auto const run = [](std::string const & words) {
        return WEXITSTATUS(
            std::system((std::string(HOST_PROGRAM) + ' ' + words + " > /dev/null 2>&1").c_str()));
    };
    EXPECT_EQ(run("part.step " + folder / one + " < /dev/null"), 2);
    EXPECT_EQ(run("--remove-when-alone " + folder / one + " < /dev/null"), 3);
    EXPECT_EQ(run("--remove-when-alone " + folder / one + " --help"), 0);
    auto named = job("Box");
    named.value()["staging"] = folder / one;
    EXPECT_EQ(run("< " + folder.write("job.json", named.line())), 0);
    EXPECT_TRUE(folder.exists(one + "/file"));
}

TEST_F(HostProcess, RemovesNoFolderThatNoEngineHasMade)
{
    folder.write("results/part.odd", "mine");
    make_staging("of another name");
    std::filesystem::rename(folder / "of another name", folder / "renamed");
    begin(job("Stubborn"));
    host.send(R"({"command": "guard", "folder": ")" + folder / "results" + "\"}\n");
    host.send(R"({"command": "guard", "folder": ")" + folder / "renamed" + "\"}\n");
    host.close();
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_EQ(folder.read("results/part.odd"), "mine");
    EXPECT_TRUE(folder.exists("renamed"));

    HostRun early({"--remove-when-alone", folder / "results", "--remove-when-alone", folder / "renamed"});
    early.close();
    early.wait();
    EXPECT_EQ(folder.read("results/part.odd"), "mine");
    EXPECT_TRUE(folder.exists("renamed"));
}

TEST_F(HostProcess, RemovesWhatItWasGivenAndNotWhatTookItsPlace)
{
    make_staging("staging");
    folder.write("results/part.odd", "mine");
    begin(job_in(folder / "staging", "Stubborn"));
    std::filesystem::rename(folder / "staging", folder / "away");
    std::filesystem::create_directory_symlink("results", folder / "staging");
    host.close();
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_EQ(folder.read("results/part.odd"), "mine");
    EXPECT_TRUE(std::filesystem::is_empty(folder / "away"));
}

TEST_F(HostProcess, WritesIntoItsFolderWhateverTakesTheFoldersPlace)
{
    make_staging("staging");
    folder.write("results/out.odd", "mine");
    ASSERT_EQ(::mkfifo((folder / "in.odd").c_str(), 0600), 0);
    auto released = job_in(folder / "staging", "Released");
    released.value()["inputs"][0]["file"] = folder / "in.odd";
    begin(released);
    std::filesystem::rename(folder / "staging", folder / "away");
    std::filesystem::create_directory_symlink("results", folder / "staging");
    std::ofstream(folder / "in.odd").close();
    EXPECT_EQ(host.rest().back()["status"], "completed");
    EXPECT_EQ(folder.read("results/out.odd"), "mine");
    EXPECT_EQ(folder.read("away/out.odd"), "Point");
}

TEST_F(HostProcess, WritesNothingWhereSomethingElseHasTakenThePlaceOfItsFolder)
{
    folder.write("results/out.odd", "mine");
    std::filesystem::create_directory_symlink("results", folder / "staging");
    for (auto const name : {"staging", "results"}) {
        HostRun fresh;
        fresh.send(job_in(folder / name, "Box").line());
        auto const events = fresh.rest();
        ASSERT_GE(events.size(), 2U);
        EXPECT_EQ(events.back()["status"], "write_error");
        EXPECT_EQ(events[0]["args"], json({out, folder / name}));
        EXPECT_EQ(folder.read("results/out.odd"), "mine");
    }
}

TEST_F(HostProcess, LeavesTheFoldersThatItGuardsAloneWhenItsTranslationEnds)
{
    make_staging(one);
    folder.write(one + "/file", "x");
    begin(job("Waits"));
    host.send(R"({"command": "guard", "folder": ")" + folder / one + "\"}\n{\"command\": \"cancel\"}\n");
    host.rest();
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_TRUE(folder.exists(one + "/file"));
}

TEST_F(HostProcess, ClosesTheConnectionWithoutAnEndWhenItIsKilled)
{
    begin(job("Waits"));
    host.signal(SIGKILL);
    for (auto const & event : host.rest()) {
        EXPECT_NE(event["event"], "end");
    }
    EXPECT_TRUE(WIFSIGNALED(host.wait()));
}

TEST_F(HostProcess, DiesOfACrashWithoutAnEnd)
{
    host.send(job("Crashes").line());
    for (auto const & event : host.rest()) {
        EXPECT_NE(event["event"], "end");
    }
    EXPECT_TRUE(WIFSIGNALED(host.wait()));
}

TEST_F(HostProcess, SaysEverythingBeforeItCrashes)
{
    for (auto const & [format, signal] :
         {std::pair("ChattersAndCrashes", SIGSEGV), std::pair("ChattersAndOverflows", SIGSEGV),
          std::pair("ChattersAndIsTold", SIGTERM)}) {
        HostRun run;
        run.send(job(format).line());
        int next = 0;
        for (auto const & event : run.rest()) {
            if (event["event"] == "message" && event["stream"] == "error") {
                EXPECT_EQ(event["args"][0], next++);
            }
        }
        EXPECT_EQ(next, 1000) << format;
        auto const status = run.wait();
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << format;
    }
}

TEST_F(HostProcess, HasSaidWhatItWasAboutToSayWhenItIsKilled)
{
    host.send(job("IsKilled").line());
    auto const events = host.rest();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back().value("key", ""), "odd::The reader %s has begun\n");
}

TEST_F(HostProcess, IgnoresTheSignalsOfATerminal)
{
    begin(job("Waits"));
    host.signal(SIGINT);
    host.signal(SIGHUP);
    host.signal(SIGPIPE);
    host.send("{\"command\": \"cancel\"}\n");
    EXPECT_EQ(host.rest().back()["status"], "cancelled");
    EXPECT_TRUE(host.exits_with(0));
}

TEST_F(HostProcess, SaysThatAFileIsTooBigForTheMemoryAllowed)
{
    if (sanitized) {
        GTEST_SKIP() << "sanitizers reserve more address space than any limit allows";
    }
    auto limited = job("Hungry");
    limited.value()["memory_limit"] = 1ULL << 30;
    host.send(limited.line());
    auto const events = host.rest();
    ASSERT_GE(events.size(), 2U);
    EXPECT_EQ(events.back()["status"], "too_big");
    EXPECT_EQ(events[events.size() - 2]["key"], "host::Not verified: %s was not written\n");
    EXPECT_EQ(events[events.size() - 3], json({{"event", "verdict"}, {"verdict", "not_verified"}}));
    EXPECT_EQ(events[events.size() - 5]["args"], json({1024, "/in/a.odd", "translation_memory"}));
    EXPECT_TRUE(host.exits_with(0));
}

TEST_F(HostProcess, NeverTakesMoreMemoryThanItWasGivenFromOutside)
{
    if (sanitized) {
        GTEST_SKIP() << "sanitizers reserve more address space than any limit allows";
    }
    for (auto const kind : {RLIMIT_DATA, RLIMIT_AS}) {
        rlimit before{};
        ASSERT_EQ(::getrlimit(kind, &before), 0);
        rlimit const given{1ULL << 30, before.rlim_max};
        ASSERT_EQ(::setrlimit(kind, &given), 0);
        HostRun run;
        ::setrlimit(kind, &before);
        auto generous = job("Hungry");
        generous.value()["memory_limit"] = 8ULL << 30;
        run.send(generous.line());
        auto const events = run.rest();
        ASSERT_GE(events.size(), 5U);
        EXPECT_EQ(events.back()["status"], "too_big");
        EXPECT_EQ(events[events.size() - 5]["args"], json({1024, "/in/a.odd", "translation_memory"}));
    }
}

TEST_F(HostProcess, TakesMoreMemoryWhenItIsAllowedMore)
{
    if (sanitized) {
        GTEST_SKIP() << "sanitizers reserve more address space than any limit allows";
    }
    auto limited = job("WaitsForMemory");
    limited.value()["memory_limit"] = 1ULL << 30;
    begin(limited);
    host.send("{\"command\": \"memory\", \"limit\": \"all\"}\n");
    host.send("{\"command\": \"memory\", \"limit\": " + std::to_string(2ULL << 30) + "}\n");
    EXPECT_EQ(host.rest().back()["status"], "completed");
}

TEST_F(HostProcess, WritesNoFileLargerThanAllowed)
{
    auto limited = job("Box");
    limited.value()["output"]["format"] = "WritesMuch";
    limited.value()["file_size_limit"] = 3 << 20;
    host.send(limited.line());
    auto const events = host.rest();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back()["status"], "write_error");
    auto const told = std::find_if(events.begin(), events.end(),
                                   [](json const & event) { return event.value("stream", "") == "error"; });
    ASSERT_NE(told, events.end());
    EXPECT_EQ((*told)["args"], json({out, 3.0, "translation_output_size"}));
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostProcess, WritesNoFileLargerThanItWasGivenFromOutside)
{
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit const given{2 << 20, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &given), 0);
    HostRun run;
    ::setrlimit(RLIMIT_FSIZE, &before);
    auto generous = job("Box");
    generous.value()["output"]["format"] = "WritesMuch";
    generous.value()["file_size_limit"] = 3 << 20;
    run.send(generous.line());
    EXPECT_EQ(run.rest().back()["status"], "write_error");
    EXPECT_TRUE(run.exits_with(0)) << "and not by a signal";
}

TEST_F(HostProcess, DoesNotBlameTheFileWhenALibraryHidesThatTheMemoryRanOut)
{
    if (sanitized) {
        GTEST_SKIP() << "sanitizers reserve more address space than any limit allows";
    }
    auto limited = job("Swallows");
    limited.value()["memory_limit"] = 1ULL << 30;
    host.send(limited.line());
    EXPECT_EQ(host.rest().back()["status"], "too_big");
}

TEST_F(HostProcess, KeepsWhatLibrariesPrintOutOfTheEvents)
{
    host.send(job("Prints").line());
    auto const events = host.rest();
    EXPECT_EQ(events.back()["status"], "completed");
    EXPECT_TRUE(host.exits_with(0));
}

TEST_F(HostProcess, RunsAJobFromAFileThatStretchesOverSeveralLines)
{
    auto const file = folder.write("job.json", job("Box").value().dump(4));
    auto const command = std::string(HOST_PROGRAM) + " < " + file + " > " + (folder / "events");
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 0);
    EXPECT_NE(kit_read_file(folder / "events").find("\"status\":\"completed\""), std::string::npos);
    EXPECT_EQ(kit_read_file(out), "Point");
}
