#include "sdr/sdrInterface.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace {

bool is_loaded()
{
    void * const handle = dlopen(TEST_DRAWING_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

} // namespace

TEST(DrawingLibrary, StaysInTheProcessWhileItIsHeld)
{
    ASSERT_FALSE(is_loaded());
    {
        sdrInterface const holder(apPathName::from_utf8(TEST_DRAWING_LIBRARY));
        EXPECT_TRUE(holder.available());
        EXPECT_TRUE(is_loaded());
    }
    EXPECT_FALSE(is_loaded());
}

TEST(DrawingLibrary, MayBeMissing)
{
    sdrInterface const holder(apPathName::from_utf8("/no/such/library.so"));
    EXPECT_FALSE(holder.available());
}

TEST(DrawingLibrary, IsHeldByDefaultWhereItIsInstalled)
{
    void * const installed = dlopen("libvmrdrawing.so.1", RTLD_NOW);
    sdrInterface const holder;
    EXPECT_EQ(holder.available(), installed != nullptr);
    if (installed)
        dlclose(installed);
}
