#include "sdb/sdbTranslatorInfo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "TranslatorFolder.h"

#include "vmr/vmrResourceRegistry.h"

namespace {

class TranslatorInfo : public testing::Test {
protected:
    TranslatorInfo()
    {
        auto step = format_value("STEP", {"stp", "step"});
        step["resources"] = {{{"name", "testInfoHealing"}, {"type", "boolean"}, {"default", true}}};
        folder.add("step", manifest_value({step}));
        folder.add("plain", manifest_value({format_value("Plain", {})}));
        folder.make();
    }
    sdbTranslatorInfo const & step() const { return *folder.input().translator_for_format("STEP"); }
    sdbTranslatorLoadStatus load() const
    {
        sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
        step().load(status);
        return status;
    }
    /// Loads and expects that it fails for this reason.
    void expect_failure(std::string const & reason) const
    {
        auto const status = load();
        EXPECT_TRUE(status.files_failed_to_load());
        EXPECT_EQ(reasons(status), reason + "\n");
        auto files = status.translator_files_failed_to_load();
        ASSERT_TRUE(++files);
        EXPECT_EQ(files().utf8(), folder.path("step.so"));
        EXPECT_FALSE(step().loaded());
    }

    TranslatorFolder folder;
};

bool mapped_into_this_process(std::string const & path)
{
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.ends_with(path))
            return true;
    return false;
}

} // namespace

TEST_F(TranslatorInfo, IsListedBeforeItIsLoaded)
{
    EXPECT_FALSE(step().loaded());
    EXPECT_EQ(step().format_name().string(), apString(L"STEP"));
    EXPECT_EQ(step().resource_file_name(), apFileName(L"STEP.rsc"));
}

TEST_F(TranslatorInfo, MakesTheResourcesOfItsFormatKnownWhenItIsLoaded)
{
    EXPECT_TRUE(load().ok());
    EXPECT_TRUE(step().loaded());
    auto const * const resource = vmr_look_up_resource("testInfoHealing");
    ASSERT_NE(resource, nullptr);
    EXPECT_EQ(resource->default_value, "true");
}

TEST_F(TranslatorInfo, TakesNoCodeOfTheModuleIntoThisProcess)
{
    EXPECT_TRUE(load().ok());
    EXPECT_FALSE(mapped_into_this_process(folder.path("step.so")));
}

TEST_F(TranslatorInfo, StaysLoaded)
{
    EXPECT_TRUE(load().ok());
    std::filesystem::remove(folder.path("step.so"));
    EXPECT_TRUE(load().ok());
}

TEST_F(TranslatorInfo, FailsWithoutItsModuleAndTriesAgain)
{
    std::filesystem::rename(folder.path("step.so"), folder.path("away"));
    expect_failure(folder.path("step.so") + ": there is no such file");
    std::filesystem::rename(folder.path("away"), folder.path("step.so"));
    EXPECT_TRUE(load().ok());
}

TEST_F(TranslatorInfo, FailsWhenItsModuleIsNoSharedObject)
{
    std::ofstream(folder.path("step.so")) << "gone";
    expect_failure(folder.path("step.so") + ": it is not a shared object");
}

TEST_F(TranslatorInfo, FailsWhenItsModuleHasAnotherInterfaceVersionNow)
{
    auto manifest = manifest_value({format_value("STEP", {"stp"})});
    manifest["interface"] = 7;
    folder.add_manifest("step", manifest.dump());
    expect_failure(folder.path("step.json") +
                   ": the module has version 7 of the module interface, and this program needs version 1");
}

TEST_F(TranslatorInfo, FailsWhenItsModuleHasLostTheFormat)
{
    folder.add_manifest("step", manifest_value({format_value("IGES", {"igs"})}).dump());
    expect_failure(folder.path("step.json") + ": the module has no format \"STEP\" any more");
}

TEST_F(TranslatorInfo, AddsItsFailureToThoseThatAStatusHas)
{
    std::filesystem::remove(folder.path("step.so"));
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    status.add_file_failure(L"/other.so", "broken");
    step().load(status);
    EXPECT_EQ(status.failures().size(), 2u);
}

TEST_F(TranslatorInfo, ChangesAnExtensionToTheFirstOfTheFormat)
{
    EXPECT_EQ(step().change_extension(L"/a.b/part.v2.igs"), apPathName(L"/a.b/part.v2.stp"));
    EXPECT_EQ(step().change_extension(L"part"), apPathName(L"part.stp"));
    EXPECT_EQ(step().change_extension(L"PART.STEP"), apPathName(L"PART.stp"));
}

TEST_F(TranslatorInfo, LeavesAPathAloneWhenTheFormatHasNoExtension)
{
    auto const & plain = *folder.input().translator_for_format("Plain");
    EXPECT_EQ(plain.change_extension(L"/a/part.igs"), apPathName(L"/a/part.igs"));
    EXPECT_EQ(plain.filter().filter_string(), utString("format.filter::Plain Files (*.*)|*.*"));
}
