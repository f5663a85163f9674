#include "ap/apDynamicLibraryLoader.h"

#include <gtest/gtest.h>

#include "ap/apPosixOperations.h"
#include "kit/kitTempFolder.h"

class DynamicLibraryLoader : public testing::Test {
protected:
    apPosixLibraryLoaderOperations m_operations;
    apDynamicLibraryLoader m_loader{&m_operations};
};

TEST_F(DynamicLibraryLoader, LoadsAModuleAndFindsItsSymbols)
{
    for (bool const as_path : {true, false}) {
        auto const library = as_path ? m_loader.load(apPathName::from_utf8(AP_TEST_MODULE))
                                     : m_loader.load_ut(utString(AP_TEST_MODULE));
        ASSERT_TRUE(library->loaded_successfully());
        auto const answer = reinterpret_cast<int (*)()>(library->proc_address("ap_test_answer"));
        ASSERT_NE(answer, nullptr);
        EXPECT_EQ(answer(), 42);
    }
}

TEST_F(DynamicLibraryLoader, GivesNullForASymbolThatIsAbsent)
{
    auto const library = m_loader.load_ut(utString(AP_TEST_MODULE));
    EXPECT_EQ(library->proc_address("ap_test_no_such_symbol"), nullptr);
}

TEST_F(DynamicLibraryLoader, GivesAnObjectForAFileThatIsMissing)
{
    auto const library = m_loader.load_ut(utString("/nowhere/module.so"));
    ASSERT_NE(library, nullptr);
    EXPECT_FALSE(library->loaded_successfully());
    EXPECT_EQ(library->proc_address("ap_test_answer"), nullptr);
}

TEST_F(DynamicLibraryLoader, GivesAnObjectForAFileThatIsNoModule)
{
    kitTempFolder const temp;
    auto const library = m_loader.load_ut(utString(temp.write("module.so", "text")));
    ASSERT_NE(library, nullptr);
    EXPECT_FALSE(library->loaded_successfully());
}

TEST_F(DynamicLibraryLoader, RefusesAnEmptyAndAVeryLongName)
{
    EXPECT_FALSE(m_loader.load(apPathName())->loaded_successfully());
    EXPECT_FALSE(m_loader.load_ut(utString::make_invalid())->loaded_successfully());
    EXPECT_FALSE(m_loader.load_ut(utString(std::string(4000, 'x')))->loaded_successfully());
}

TEST(LibraryLoaderOperations, SayWhatWentWrong)
{
    apPosixLibraryLoaderOperations const operations;
    utString error;
    EXPECT_EQ(operations.load(apPathName(L"/nowhere/module.so"), error), nullptr);
    EXPECT_GE(error.locate_substring("/nowhere/module.so"), 0);
    void * const handle = operations.load(apPathName::from_utf8(AP_TEST_MODULE), error);
    EXPECT_NE(handle, nullptr);
    EXPECT_TRUE(error.empty());
    operations.unload(handle);
    operations.unload(nullptr);
}
