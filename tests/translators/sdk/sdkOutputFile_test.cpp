#include "sdk/sdkOutputFile.h"

#include "kit/kitTempFolder.h"
#include "translators/kit/kitIndicator.h"

#include <gtest/gtest.h>

#include <ostream>

TEST(OutputFile, HoldsWhatWasWritten)
{
    kitTempFolder const folder;
    std::string const line(1000, 'y');
    sdkOutputFile file(folder / "out", {});
    std::ostream stream(&file);
    for (int count = 0; count < 1000; ++count) {
        stream << line << std::flush;
    }
    EXPECT_TRUE(file.close("out"));
    EXPECT_EQ(file.size(), 1'000'000U);
    EXPECT_EQ(kit_read_file(folder / "out").size(), 1'000'000U);
}

TEST(OutputFile, ReplacesAnOldFile)
{
    kitTempFolder const folder;
    folder.write("out", "much longer than the new content");
    sdkOutputFile file(folder / "out", {});
    std::ostream(&file) << "new";
    EXPECT_TRUE(file.close("out"));
    EXPECT_EQ(kit_read_file(folder / "out"), "new");
}

TEST(OutputFile, RemembersAFullDisk)
{
    sdkOutputFile file("/dev/full", {});
    std::ostream stream(&file);
    stream << "x";
    auto const result = file.close("part.stp");
    EXPECT_EQ(result.status(), sdkStatus::write_error);
    EXPECT_EQ(result.text().formatted(), "part.stp could not be written: No space left on device; make room "
                                         "on the disk or choose another folder");
}

TEST(OutputFile, StopsTakingDataAfterAnError)
{
    sdkOutputFile file("/dev/full", {});
    std::ostream stream(&file);
    stream << std::string(1'000'000, 'x');
    EXPECT_TRUE(stream.bad());
}

TEST(OutputFile, SaysWhyItCannotBeMade)
{
    kitTempFolder const folder;
    sdkOutputFile file(folder / "missing/out", {});
    std::ostream stream(&file);
    stream << "x";
    EXPECT_TRUE(stream.bad());
    EXPECT_NE(file.close("out").text().formatted().find("No such file or directory"), std::string::npos);
}

TEST(OutputFile, IsNoSuccessWithoutContent)
{
    kitTempFolder const folder;
    sdkOutputFile file(folder / "out", {});
    EXPECT_EQ(file.close("out").status(), sdkStatus::write_error);
}

TEST(OutputFile, StopsWhenItIsCancelled)
{
    kitTempFolder const folder;
    Handle(kitIndicator) const indicator = new kitIndicator;
    sdkOutputFile file(folder / "out", indicator->Start());
    std::ostream stream(&file);
    indicator->cancelled = true;
    stream << std::string(1'000'000, 'x');
    EXPECT_TRUE(stream.bad());
    EXPECT_EQ(file.close("out").status(), sdkStatus::cancelled);
}
