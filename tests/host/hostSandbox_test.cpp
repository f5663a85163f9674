#include "HostRun.h"

#include "kit/kitTempFolder.h"
#include "translators/kit/kitParts.h"

#include <STEPCAFControl_Writer.hxx>

#include <gtest/gtest.h>

#include <cerrno>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using nlohmann::json;

namespace {

long landlock_version()
{
    return ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
}

bool kernel_filters_calls()
{
    return ::prctl(PR_GET_SECCOMP, 0, 0, 0, 0) >= 0;
}

} // namespace

#define NEEDS_LANDLOCK()                                                                                     \
    if (landlock_version() < 1) {                                                                            \
        GTEST_SKIP() << "this kernel has no landlock";                                                       \
    }
#define NEEDS_SECCOMP()                                                                                      \
    if (!kernel_filters_calls()) {                                                                           \
        GTEST_SKIP() << "this kernel has no seccomp";                                                        \
    }

// A module that runs wild, as one does that a broken file has taken over, in a translation within a folder.
class HostSandbox : public testing::Test {
protected:
    enum class Where { reading, writing, reading_back };

    // The last event of a translation in which the module tries the deed.
    json translate(std::string const & deed, std::string const & target, Where where = Where::reading)
    {
        json const wild = {{"prowlDeed", deed},
                           {"prowlTarget", target},
                           {"prowlWhileReadBack", where == Where::reading_back ? "true" : "false"}};
        json const tame = json::object();
        HostJob job;
        job.input(input, PROWL_MODULE, "PROWL", where == Where::reading ? wild : tame)
            .output(output, PROWL_MODULE, "PROWL", where == Where::reading ? tame : wild);
        HostRun host;
        host.send(job.line());
        auto events = host.rest();
        EXPECT_TRUE(host.exits_with(0));
        json end;
        for (auto const & event : events) {
            if (event["event"] == "message" && event["key"] == "prowl::refused with error %d\n") {
                end["error"] = event["args"][0];
            }
            if (event["event"] == "verdict") {
                end["verdict"] = event["verdict"];
            }
            if (event["event"] == "end") {
                end["status"] = event["status"];
            }
        }
        return end;
    }

    json refused(int error, std::string const & status = "read_error") const
    {
        return {{"error", error}, {"verdict", "not_verified"}, {"status", status}};
    }

    kitTempFolder const folder;
    std::string const input = folder.write("in/part.prowl", "Point");
    std::string const beside = folder.write("in/parts/bolt.prowl", "Point");
    std::string const key = folder.write("keys/id", "secret");
    std::string const output =
        folder.write("out/older", "older").replace(folder.path().native().size(), 10, "/out/new");
};

TEST_F(HostSandbox, LetsAnHonestModuleTranslate)
{
    EXPECT_EQ(translate("nothing", "")["status"], "completed");
    EXPECT_EQ(kit_read_file(output), "Point");
}

TEST_F(HostSandbox, LetsReadersReadWhatLiesBesideAndBelowTheInput)
{
    EXPECT_EQ(translate("read", input)["status"], "completed");
    EXPECT_EQ(translate("read", beside)["status"], "completed");
    EXPECT_EQ(translate("list", folder / "in")["status"], "completed");
}

TEST_F(HostSandbox, LetsWritersMakeFilesBesideTheOutput)
{
    EXPECT_EQ(translate("make", folder / "out/companion", Where::writing)["status"], "completed");
    EXPECT_TRUE(folder.exists("out/companion"));
}

TEST_F(HostSandbox, LetsNobodyReadAnythingElse)
{
    NEEDS_LANDLOCK();
    EXPECT_EQ(translate("read", key), refused(EACCES));
    EXPECT_EQ(translate("list", folder / "keys"), refused(EACCES));
    EXPECT_EQ(translate("read", key, Where::writing), refused(EACCES, "write_error"));
    EXPECT_EQ(translate("read", "/etc/shadow"), refused(EACCES));
}

TEST_F(HostSandbox, LetsNobodyReadAnythingElseThroughALink)
{
    NEEDS_LANDLOCK();
    std::filesystem::create_symlink(key, folder / "in/link");
    EXPECT_EQ(translate("read", folder / "in/link"), refused(EACCES));
}

TEST_F(HostSandbox, ReadsAnInputThatIsALinkToElsewhere)
{
    auto const linked = folder / "in/linked.prowl";
    std::filesystem::create_symlink(key, linked);
    HostJob job;
    job.input(linked, PROWL_MODULE, "PROWL", {{"prowlDeed", "read"}, {"prowlTarget", key}})
        .output(output, PROWL_MODULE, "PROWL");
    HostRun host;
    host.send(job.line());
    EXPECT_EQ(host.rest().back()["status"], "completed");
}

TEST_F(HostSandbox, LetsNobodyChangeAnythingButTheOutput)
{
    NEEDS_LANDLOCK();
    NEEDS_SECCOMP();
    for (auto const & file : {input, key}) {
        for (auto const * deed : {"overwrite", "remove"}) {
            EXPECT_EQ(translate(deed, file), refused(EACCES)) << deed;
        }
        for (auto const * deed : {"cut", "chmod"}) {
            EXPECT_EQ(translate(deed, file), refused(EPERM)) << deed;
        }
    }
    EXPECT_EQ(translate("make", folder / "keys/new"), refused(EACCES));
    EXPECT_EQ(translate("make", folder / "in/new"), refused(EACCES));
    EXPECT_EQ(translate("link", folder / "out/link", Where::writing), refused(EPERM, "write_error"));
    EXPECT_EQ(kit_read_file(key), "secret");
    EXPECT_EQ(kit_read_file(input), "Point");
    EXPECT_EQ(folder.mode("keys/id") & 077U, folder.mode("in/part.prowl") & 077U);
}

TEST_F(HostSandbox, RefusesSocketsProgramsAndProcesses)
{
    NEEDS_SECCOMP();
    for (auto const * deed : {"socket", "start", "become", "fork", "trace", "signal", "unshare"}) {
        EXPECT_EQ(translate(deed, ""), refused(EPERM)) << deed;
        EXPECT_EQ(translate(deed, "", Where::writing), refused(EPERM, "write_error")) << deed;
    }
}

TEST_F(HostSandbox, HoldsWhileTheOutputIsReadBack)
{
    NEEDS_LANDLOCK();
    NEEDS_SECCOMP();
    for (auto const * deed : {"socket", "become", "fork", "signal"}) {
        EXPECT_EQ(translate(deed, "", Where::reading_back), refused(EPERM, "write_error")) << deed;
    }
    EXPECT_EQ(translate("read", key, Where::reading_back), refused(EACCES, "write_error"));
}

TEST_F(HostSandbox, HoldsForComparisons)
{
    NEEDS_LANDLOCK();
    NEEDS_SECCOMP();
    for (auto const & [deed, error] :
         {std::pair{"fork", EPERM}, std::pair{"socket", EPERM}, std::pair{"read", EACCES}}) {
        json const side = {
            {"file", input}, {"module", PROWL_MODULE}, {"format", "PROWL"}, {"options", json::object()}};
        auto wild = side;
        wild["options"] = {{"prowlDeed", deed}, {"prowlTarget", key}};
        HostRun host;
        host.send(json({{"job", 1}, {"compare", {{"a", side}, {"b", wild}}}}).dump() + "\n");
        auto const message = host.next("key", "prowl::refused with error %d\n");
        ASSERT_TRUE(message) << deed;
        EXPECT_EQ((*message)["args"][0], error) << deed;
        EXPECT_EQ(host.rest().back()["status"], "read_error");
    }
}

TEST_F(HostSandbox, KeepsTheHiddenFilesOfAHomeToItself)
{
    NEEDS_LANDLOCK();
    auto const part = folder.write("home/part.prowl", "Point");
    auto const hidden = folder.write("home/.ssh/id", "secret");
    auto const bolt = folder.write("home/parts/bolt.prowl", "Point");
    ::setenv("HOME", (folder / "home").c_str(), 1);
    for (auto const & [target, status] : {std::pair{hidden, "read_error"}, std::pair{bolt, "completed"}}) {
        HostJob job;
        job.input(part, PROWL_MODULE, "PROWL", {{"prowlDeed", "read"}, {"prowlTarget", target}})
            .output(output, PROWL_MODULE, "PROWL");
        HostRun host;
        host.send(job.line());
        EXPECT_EQ(host.rest().back()["status"], status) << target;
    }
}

// An assembly whose parts are in files of their own: in its folder, below it, and above it.
class HostSandboxAssembly : public testing::Test {
protected:
    HostSandboxAssembly()
    {
        sdkDocument document;
        kit_add_assembly(document);
        for (auto const & part : document.parts()) {
            sdkDocument::set_name(part, sdkDocument::name(part) == kit_blue_name ? "Blue" : "Red");
        }
        std::filesystem::create_directories(folder / "in/below");
        auto const old = std::filesystem::current_path();
        std::filesystem::current_path(folder / "in");
        STEPCAFControl_Writer writer;
        writer.Transfer(document.handle(), STEPControl_AsIs, "part_");
        writer.Write("assembly.stp");
        std::filesystem::current_path(old);
    }

    // Moves a part, seen from the folder of the assembly, which then names it there.
    void move_blue(std::string const & to)
    {
        std::filesystem::rename(folder / "in/part_Blue.stp", folder / ("in/" + to));
        auto text = folder.read("in/assembly.stp");
        std::string const name = "part_Blue.stp";
        for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + to.size())) {
            text.replace(at, name.size(), to);
        }
        folder.write("in/assembly.stp", text);
    }

    // The parts of findings about files that are missing.
    std::vector<std::string> missing()
    {
        HostJob job;
        job.input(folder / "in/assembly.stp", TRANSLATORS "/step.so", "STEP")
            .output(folder.write("out/older", "").replace(folder.path().native().size(), 10, "/out/a.brep"),
                    TRANSLATORS "/brep.so", "BREP");
        HostRun host;
        host.send(job.line());
        std::vector<std::string> parts;
        auto const events = host.rest();
        for (auto const & event : events) {
            if (event.value("kind", "") == "missing-file") {
                parts.push_back(event["part"]);
            }
        }
        EXPECT_EQ(events.back()["status"], "completed");
        return parts;
    }

    kitTempFolder const folder;
};

TEST_F(HostSandboxAssembly, HasItsPartsReadBesideIt)
{
    EXPECT_TRUE(missing().empty());
}

TEST_F(HostSandboxAssembly, HasItsPartsReadBelowIt)
{
    move_blue("below/part_Blue.stp");
    EXPECT_TRUE(missing().empty());
}

TEST_F(HostSandboxAssembly, IsToldWhichPartsLieElsewhere)
{
    NEEDS_LANDLOCK();
    move_blue("../part_Blue.stp");
    EXPECT_EQ(missing(), std::vector<std::string>{"Blue"});
}
