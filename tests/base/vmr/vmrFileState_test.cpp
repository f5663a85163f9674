#include "vmr/vmrFileState.h"

#include "kit/kitTempFolder.h"

#include <chrono>
#include <gtest/gtest.h>

namespace {

/// The state of a file that was written long enough ago.
vmrFileState calm_state(std::string const & file)
{
    auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    auto state = vmrFileState::of(file);
    while (!state.is_still(file) && std::chrono::steady_clock::now() < deadline)
        state = vmrFileState::of(file);
    return state;
}

} // namespace

TEST(FileState, StaysWhileTheFileDoes)
{
    kitTempFolder const folder;
    auto const file = folder.write("a.rsc", "one");
    auto const state = calm_state(file);
    EXPECT_TRUE(state.is_still(file));
}

TEST(FileState, IsNotTrustedForAFileThatHasJustBeenWritten)
{
    kitTempFolder const folder;
    auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    bool trusted = true; // a process that is held up between the two looks at an older file
    while (trusted && std::chrono::steady_clock::now() < deadline) {
        auto const file = folder.write("a.rsc", "one");
        trusted = vmrFileState::of(file).is_still(file);
    }
    EXPECT_FALSE(trusted);
}

TEST(FileState, ChangesWithContentAndWithAnotherFileInItsPlace)
{
    kitTempFolder const folder;
    auto const file = folder.write("a.rsc", "one");
    auto const state = calm_state(file);
    folder.write("a.rsc", "two");
    EXPECT_FALSE(state.is_still(file));
    auto const again = calm_state(file);
    std::filesystem::rename(folder.write("b.rsc", "two"), file);
    EXPECT_FALSE(again.is_still(file));
    std::filesystem::remove(file);
    EXPECT_FALSE(again.is_still(file));
}

TEST(FileState, OfNoFileStaysUntilThereIsOne)
{
    kitTempFolder const folder;
    auto const state = vmrFileState::of(folder / "a.rsc");
    EXPECT_TRUE(state.is_still(folder / "a.rsc"));
    folder.write("a.rsc", "one");
    EXPECT_FALSE(state.is_still(folder / "a.rsc"));
}
