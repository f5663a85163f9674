// What a command line shows of a verdict and its findings: the messages of the translator host and nothing
// else.

#include "cli_kit.h"

namespace {

/// An installation whose host translates nothing and says these lines.
class InstallationWithAHost : public cliTest {
protected:
    InstallationWithAHost()
    {
        namespace fs = std::filesystem;
        auto const built = fs::path(VMR_PROGRAM).parent_path().parent_path();
        fs::create_directories(folder / "installation/bin");
        fs::create_directories(folder / "installation/libexec/vmr");
        fs::copy_file(VMR_PROGRAM, folder / "installation/bin/vmr");
        for (auto const * name : {"lib", "share"})
            fs::create_directory_symlink(built / name, folder / (std::string("installation/") + name));
    }

    kitProgramResult run_host(std::string const & lines) const
    {
        namespace fs = std::filesystem;
        folder.write("said", lines);
        std::string const host = folder / "installation/libexec/vmr/vmr-host";
        folder.write("installation/libexec/vmr/vmr-host", "#!/bin/sh\n"
                                                          "read -r job\n"
                                                          "output=${job#*'\"output\":{'}\n"
                                                          "output=${output#*'\"file\":\"'}\n"
                                                          "echo translated > \"${output%%'\"'*}\"\n"
                                                          "cat '" +
                                                              folder / "said" + "'\n");
        fs::permissions(host, fs::perms::owner_all);
        kitProgram program;
        program.arguments = {
            folder / "installation/bin/vmr", "cube.stl", "-t", "BREP", "-o", "out/cube.brep"};
        program.folder = folder.path().string();
        program.environment = {{"HOME", folder / "home"}, {"PATH", "/usr/bin:/bin"}};
        return program.run();
    }
};

std::string const finding =
    R"({"event":"finding","weight":"loss","kind":"not-translated","part":"","place":"#12","domain":"vmrhost","key":"x::The solid %s has no shape","args":["#12"]})"
    "\n";
std::string const message =
    R"({"event":"message","stream":"output","domain":"vmrhost","key":"x::The verdict of the host\n","args":[]})"
    "\n";
std::string const end = R"({"event":"end","status":"completed","processed":1,"failed":0})"
                        "\n";

} // namespace

namespace Cli {

TEST_F(InstallationWithAHost, ShowsNeitherFindingsNorVerdictsThatAreNoMessages)
{
    auto const without = run_host(message + end);
    std::filesystem::remove(folder / "out/cube.brep");
    auto const with = run_host(finding + finding + message +
                               R"({"event":"verdict","verdict":"losses"})"
                               "\n" +
                               end);
    EXPECT_NE(without.output.find("\nThe verdict of the host\n"), std::string::npos) << without.output;
    EXPECT_EQ(with.output, without.output);
    EXPECT_EQ(with.errors, "");
    EXPECT_EQ(with.exit_status, 0);
    EXPECT_EQ(files_in("out"), std::set<std::string>{"cube.brep"});
}

} // namespace Cli
