#include "sdb/sdbModuleFile.h"

#include <gtest/gtest.h>

#include <elf.h>
#include <filesystem>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

namespace {

std::string module_bytes()
{
    std::ifstream file(TEST_MODULE, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string problem_with(std::size_t offset, char value)
{
    kitTempFolder const temp;
    auto bytes = module_bytes();
    bytes.at(offset) = value;
    return sdb_module_file_problem(temp.write("module.so", bytes));
}

} // namespace

TEST(ModuleFile, HasNoProblemWhenItIsASharedObjectOfThisMachine)
{
    EXPECT_EQ(sdb_module_file_problem(TEST_MODULE), "");
}

TEST(ModuleFile, MustExistAndBeAFile)
{
    kitTempFolder const temp;
    EXPECT_EQ(sdb_module_file_problem(temp / "absent.so"), "there is no such file");
    EXPECT_EQ(sdb_module_file_problem(temp.path().string()), "it is not a file");
}

TEST(ModuleFile, MustBeReadable)
{
    kitTempFolder const temp;
    auto const path = temp.write("module.so", module_bytes());
    std::filesystem::permissions(temp.path().string(), std::filesystem::perms::all);
    std::filesystem::permissions(path, std::filesystem::perms::none);
    EXPECT_TRUE(
        as_ordinary_user([&] { return sdb_module_file_problem(path).starts_with("it cannot be read: "); }));
}

TEST(ModuleFile, MustBeASharedObject)
{
    kitTempFolder const temp;
    EXPECT_EQ(sdb_module_file_problem(temp.write("text.so", "INPUT(libm.so.6)\n")),
              "it is not a shared object");
    EXPECT_EQ(sdb_module_file_problem(temp.write("empty.so", "")), "it is not a shared object");
    EXPECT_EQ(sdb_module_file_problem(temp.write("cut.so", module_bytes().substr(0, 20))),
              "it is not a shared object");
    EXPECT_EQ(problem_with(16, ET_REL), "it is a program or an object file, not a shared object");
}

TEST(ModuleFile, MustBeMadeForThisMachine)
{
    auto const bytes = module_bytes();
    EXPECT_EQ(problem_with(EI_CLASS, bytes.at(EI_CLASS) == ELFCLASS64 ? ELFCLASS32 : ELFCLASS64),
              "it is a shared object of another kind of machine");
    EXPECT_EQ(problem_with(18, static_cast<char>(bytes.at(18) + 1)),
              "it is a shared object of another kind of machine");
}
