#include "host/hostKeeper.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int most = 256;

bool can_be_written(int descriptor)
{
    int const flags = ::fcntl(descriptor, F_GETFL);
    return flags >= 0 && (flags & O_ACCMODE) == O_WRONLY;
}

} // namespace

TEST(HostKeeper, IsNotWaitedForWhenItCannotBeTold)
{
    bool before[most];
    for (int descriptor = 0; descriptor < most; ++descriptor) {
        before[descriptor] = can_be_written(descriptor);
    }
    hostKeeper keeper{hostFolders()};
    int own = -1;
    for (int descriptor = 0; descriptor < most; ++descriptor) {
        if (!before[descriptor] && can_be_written(descriptor)) {
            own = descriptor;
        }
    }
    ASSERT_GE(own, 0);
    // The pipe stays open for others, as it does for a process that reads an output back.
    int const other = ::fcntl(own, F_DUPFD_CLOEXEC, most);
    ASSERT_GE(other, 0);
    ::close(own);
    keeper.finish();
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), 0) << "it is still there";
    ::close(other);
    EXPECT_GT(::waitpid(-1, nullptr, 0), 0) << "and ends with the pipe";
}
