// That the tests of buffers would notice what is written outside of the pixels.

#include "kitDib.h"

#include <gtest/gtest-spi.h>

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

TEST(GuardedPixels, EndWhereNobodyMayWrite)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (int const width : {1, 7, 1024, 2000}) {
        kitDib dib(width, 1);
        auto * const behind = reinterpret_cast<unsigned char volatile *>(dib.pixels() + width);
        behind[-1] = 1;
        EXPECT_DEATH(*behind = 1, "") << width;
    }
}

TEST(GuardedPixels, TellOfWhatIsWrittenInFrontOfThem)
{
    static kitDib * dib = nullptr;
    kitDib narrow(7, 1);
    dib = &narrow;
    EXPECT_NONFATAL_FAILURE(
        {
            *(reinterpret_cast<unsigned char volatile *>(dib->pixels()) - 1) = 1;
            dib->destroy();
        },
        "written 1 bytes in front of the pixels");
}

#endif
