#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>

#include "ap/apPosixOperations.h"

TEST(ProcessEnvironment, TellsVariablesThatAreSetFromOthers)
{
    apPosixProcessEnvironmentOperations const environment;
    ASSERT_EQ(setenv("VMR_TEST_VARIABLE", "", 1), 0);
    EXPECT_FALSE(environment.environment("VMR_TEST_VARIABLE").invalid());
    ASSERT_EQ(setenv("VMR_TEST_VARIABLE", "text", 1), 0);
    EXPECT_EQ(environment.environment("VMR_TEST_VARIABLE"), utString("text"));
    ASSERT_EQ(unsetenv("VMR_TEST_VARIABLE"), 0);
    EXPECT_TRUE(environment.environment("VMR_TEST_VARIABLE").invalid());
}

TEST(ProcessEnvironment, KnowsTheProgramAndItsDirectory)
{
    apPosixProcessEnvironmentOperations const environment;
    EXPECT_EQ(environment.executable_path().file_name(), apFileName(L"ap_test"));
    EXPECT_TRUE(environment.executable_path().absolute());
    EXPECT_EQ(environment.current_directory().utf8(), std::filesystem::current_path().native());
}
