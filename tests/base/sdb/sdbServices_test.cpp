#include "sdb/sdbServices.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "kit/kitTempFolder.h"

#include "ap/apDynamicLibraryLoader.h"
#include "ap/apPosixOperations.h"
#include "vmr/vmrabsAppInfo.h"

namespace {

class Services : public testing::Test {
protected:
    explicit Services(char const * organisation = "somebody") : info("p", "o", "u", organisation, "") {}

    void add_module(std::string const & name) const { std::filesystem::copy_file(TEST_MODULE, temp / name); }

    /// Loads the modules into a new registry.
    sdbServices & load(std::vector<std::string> const & directories)
    {
        std::vector<apPathName> paths;
        for (auto const & directory : directories)
            paths.push_back(apPathName::from_utf8(directory));
        services = std::make_unique<sdbServices>();
        auto manager = std::make_unique<sdbServiceDllManager>(sdbSearchPath(paths), &loader, &info);
        services->set_dll_manager(manager, &info);
        EXPECT_FALSE(manager);
        return *services;
    }
    int const * answer() const
    {
        sduServicePtr<int const> holder;
        services->find_service("test.answer", holder);
        return holder.pointer();
    }
    std::string failure() const
    {
        auto const & failures = services->dll_manager()->failures();
        return failures.size() == 1 ? failures.front().reason.str() : std::string();
    }

    kitTempFolder temp;
    apPosixLibraryLoaderOperations operations;
    apDynamicLibraryLoader loader{&operations};
    vmrabsAppInfo info;
    std::unique_ptr<sdbServices> services;
};

class ServicesOfAReluctantProgram : public Services {
protected:
    ServicesOfAReluctantProgram() : Services("no services") {}
};

} // namespace

TEST_F(Services, AreFoundWhenAModuleAddedThem)
{
    add_module("answers.so");
    load({temp.path().string()});
    ASSERT_NE(answer(), nullptr);
    EXPECT_EQ(*answer(), 42);
    EXPECT_EQ(services->dll_manager()->module_count(), 1);
    EXPECT_TRUE(services->dll_manager()->failures().empty());
}

TEST_F(Services, AreReleasedBeforeTheCodeOfTheirModule)
{
    add_module("answers.so");
    load({temp.path().string()});
    ASSERT_NE(answer(), nullptr);
    services.reset();
    EXPECT_EQ(load({}).dll_manager()->module_count(), 0);
    EXPECT_EQ(answer(), nullptr);
}

TEST_F(Services, AreNotFoundUnderAKeyThatWasNeverAdded)
{
    load({});
    sduServicePtr<int const> holder;
    EXPECT_EQ(services->find_service("never.added", holder), 0);
    EXPECT_EQ(holder.pointer(), nullptr);
}

TEST_F(Services, DoWithoutTheirDirectory)
{
    load({temp / "absent"});
    EXPECT_EQ(services->dll_manager()->module_count(), 0);
    EXPECT_TRUE(services->dll_manager()->failures().empty());
}

TEST_F(Services, OfOtherModulesWorkWhenOneCannotBeLoaded)
{
    add_module("z.so");
    temp.write("a.so", "no shared object");
    load({temp.path().string()});
    EXPECT_NE(answer(), nullptr);
    EXPECT_EQ(failure(), (temp / "a.so") + ": the service module cannot be loaded");
}

TEST_F(ServicesOfAReluctantProgram, AreMissingWhenTheModuleDeclines)
{
    add_module("answers.so");
    load({temp.path().string()});
    EXPECT_EQ(answer(), nullptr);
    EXPECT_EQ(failure(), (temp / "answers.so") + ": the service module could not add its services");
}

TEST_F(Services, NeedNoManager)
{
    sdbServices bare;
    std::unique_ptr<sdbServiceDllManager> none;
    bare.set_dll_manager(none, &info);
    EXPECT_EQ(bare.dll_manager(), nullptr);
}

namespace {

/// A library without any symbol.
class EmptyLibrary : public sdbIDynamicLibrary {
public:
    void * proc_address(utString const &) override { return nullptr; }
    bool loaded_successfully() override { return true; }
};

class EmptyLibraryLoader : public sdbIDynamicLibraryLoader {
public:
    std::unique_ptr<sdbIDynamicLibrary> load(apPathName const &) override
    {
        return std::make_unique<EmptyLibrary>();
    }
    std::unique_ptr<sdbIDynamicLibrary> load_ut(utString const &) override
    {
        return std::make_unique<EmptyLibrary>();
    }
};

} // namespace

TEST_F(Services, NeedTheEntryOfTheModule)
{
    temp.write("plain.so", "");
    EmptyLibraryLoader empty;
    services = std::make_unique<sdbServices>();
    auto manager = std::make_unique<sdbServiceDllManager>(
        sdbSearchPath({apPathName::from_utf8(temp.path().string())}), &empty, &info);
    services->set_dll_manager(manager, &info);
    EXPECT_EQ(failure(), (temp / "plain.so") + ": the service module has no vmr_register_services");
    EXPECT_EQ(services->dll_manager()->module_count(), 0);
}
