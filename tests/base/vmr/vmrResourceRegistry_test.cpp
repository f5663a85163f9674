#include "vmr/vmrResourceRegistry.h"

#include <atomic>
#include <thread>

#include "vmr/coResourceIterator.h"
#include "vmrTestResources.h"

#include <gtest/gtest.h>

namespace {

vmrResourceDeclaration text_resource(std::string const & name, std::string const & value)
{
    vmrResourceDeclaration declaration;
    declaration.name = name;
    declaration.default_value = value;
    return declaration;
}

} // namespace

TEST(ResourceRegistry, KnowsAResourceOnceItIsRegistered)
{
    EXPECT_EQ(vmr_look_up_resource("regLate"), nullptr);
    EXPECT_TRUE(vmr_register_resources({text_resource("regLate", "a")}).empty());
    ASSERT_NE(vmr_look_up_resource("regLate"), nullptr);
    EXPECT_EQ(vmr_look_up_resource("regLate")->default_value, "a");
    EXPECT_EQ(vmr_look_up_resource("REGLATE"), nullptr);
}

TEST(ResourceRegistry, GivesEveryRegisteredResourceAtItsDefault)
{
    register_test_resources();
    vmrResourceTableMark const mark;
    auto const table = vmr_resource_table_inquire();
    EXPECT_EQ(table->value("tstLevel"), utString("3"));
    EXPECT_EQ(table->value("tstSchema"), utString("AP214"));
    EXPECT_EQ(table->value("vmrOptOutputUnits"), utString("mm"));
    EXPECT_TRUE(table->value("unheard").invalid());
}

TEST(ResourceRegistry, TakesTheSameDeclarationASecondTimeInSilence)
{
    vmr_register_resources({text_resource("regTwice", "a")});
    auto const first = vmr_look_up_resource("regTwice");
    EXPECT_TRUE(vmr_register_resources({text_resource("regTwice", "a")}).empty());
    EXPECT_EQ(vmr_look_up_resource("regTwice"), first);
}

TEST(ResourceRegistry, NamesADeclarationThatClashesAndKeepsTheFirst)
{
    vmr_register_resources({text_resource("regClash", "a")});
    auto const clashes =
        vmr_register_resources({text_resource("regClash", "b"), text_resource("regNew", "c")});
    EXPECT_EQ(clashes, (std::vector<std::string>{"regClash"}));
    EXPECT_EQ(vmr_look_up_resource("regClash")->default_value, "a");
    EXPECT_NE(vmr_look_up_resource("regNew"), nullptr);
}

TEST(ResourceRegistry, KeepsATableValidUnderAMarkWhenMoreIsRegistered)
{
    vmrResourceTableMark const mark;
    auto const before = vmr_resource_table_inquire();
    vmr_register_resources({text_resource("regUnderMark", "a")});
    EXPECT_EQ(before->value("vmrOptOutputUnits"), utString("mm"));
    EXPECT_TRUE(before->value("regUnderMark").invalid());
    EXPECT_EQ(vmr_resource_table_inquire()->value("regUnderMark"), utString("a"));
}

TEST(ResourceRegistry, KeepsTheSameTableWhileNothingNewIsRegistered)
{
    register_test_resources();
    auto const before = vmr_resource_table_inquire();
    register_test_resources();
    EXPECT_EQ(vmr_resource_table_inquire(), before);
}

TEST(ResourceRegistry, TakesEveryTextOfAResourceThatIsNotRegistered)
{
    register_test_resources();
    EXPECT_EQ(vmr_canonical_value("unheard", " x "), " x ");
    EXPECT_EQ(vmr_canonical_value("tstHeal", "TRUE"), "true");
    EXPECT_FALSE(vmr_canonical_value("tstLevel", "11"));
}

TEST(ResourceRegistry, CanBeReadOnOneThreadWhileAnotherRegisters)
{
    std::atomic<bool> stop = false;
    std::atomic<int> wrong = 0;
    std::thread reader([&] {
        while (!stop) {
            vmrResourceTableMark const mark;
            int count = 0;
            for (coResourceIterator it(vmr_resource_table_inquire()); ++it;)
                ++count;
            wrong += count < 8 || !vmr_look_up_resource("vmrOptOutputUnits");
        }
    });
    for (int i = 0; i < 200; ++i)
        vmr_register_resources({text_resource("regThread" + std::to_string(i), "a")});
    stop = true;
    reader.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(vmr_default_resource_table().value("regThread199"), utString("a"));
}
