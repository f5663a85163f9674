#include "kit/kitAppTest.h"
#include "kit/kitLayout.h"

#include <sstream>

/// What the user is told of a layout that cannot be read: the file, and the line at which reading stopped.

namespace {

struct Failure {
    char const * what;
    int line;
    std::string text;
};

std::string const head = "start_page\nstart_attributes\ntype both\nname P\nend_attributes\n"; // 5 lines
std::string const row = "start_resource\nstart_attributes\nname r\nshort_description s\nlong_description l\n";

Failure const failures[] = {
    {"an empty file", 0, ""},
    {"a file of comments", 2, "# one\n# two\n"},
    {"no attributes where they must stand", 2, "start_page\nend_page\n"},
    {"a file that ends behind the opening of a page", 1, "start_page\n"},
    {"an attribute without a space", 3, "start_page\nstart_attributes\ntype\nend_attributes\n"},
    {"attributes that do not end", 4, "start_page\nstart_attributes\ntype both\nname x\n"},
    {"a page without a type", 4, "start_page\nstart_attributes\nname x\nend_attributes\nend_page\n"},
    {"a page without a name", 4, "start_page\nstart_attributes\ntype both\nend_attributes\nend_page\n"},
    {"a page that does not end", 5, head},
    {"a page that is left out and does not end", 6,
     "start_page\nstart_attributes\ntype output\nname P\nend_attributes\nanything\n"},
    {"an unknown word in a page", 6, head + "start_thing\nend_page\n"},
    {"an empty line in a page", 6, head + "\nend_page\n"},
    {"an enumeration without a name", 3, "start_enum\nstart_attributes\nend_attributes\nend_enum\n"},
    {"an enumeration that is declared twice", 9,
     "start_enum\nstart_attributes\nname E\nend_attributes\nend_enum\n"
     "start_enum\nstart_attributes\nname E\nend_attributes\nend_enum\n" +
         head + "end_page\n"},
    {"a value without colons", 6, "start_enum\nstart_attributes\nname E\nend_attributes\nstart_values\nOn\n"},
    {"values that do not end", 6,
     "start_enum\nstart_attributes\nname E\nend_attributes\nstart_values\na::b\n"},
    {"an unknown word in an enumeration", 5,
     "start_enum\nstart_attributes\nname E\nend_attributes\nvalues\nend_enum\n"},
    {"an enumeration that does not end", 4, "start_enum\nstart_attributes\nname E\nend_attributes\n"},
    {"nothing but an enumeration", 5, "start_enum\nstart_attributes\nname E\nend_attributes\nend_enum\n"},
    {"a group without a name", 8,
     head + "start_group\nstart_attributes\nend_attributes\nend_group\nend_page\n"},
    {"an unknown word in a group", 10,
     head + "start_group\nstart_attributes\nname G\nend_attributes\nstart_page\nend_group\nend_page\n"},
    {"a group whose bottom is no number", 11,
     head + "start_group\nstart_attributes\nname G\nbottom low\nend_attributes\nend_group\nend_page\n"},
    {"a group that does not end", 9, head + "start_group\nstart_attributes\nname G\nend_attributes\n"},
    {"a resource without a name", 11,
     head + "start_resource\nstart_attributes\nshort_description s\nlong_description l\ntype boolean\n"
            "end_attributes\nend_resource\n"},
    {"a resource without a short description", 11,
     head + "start_resource\nstart_attributes\nname r\nlong_description l\ntype boolean\nend_attributes\n"
            "end_resource\n"},
    {"a resource without a long description", 11,
     head + "start_resource\nstart_attributes\nname r\nshort_description s\ntype boolean\nend_attributes\n"
            "end_resource\n"},
    {"a resource without a type", 11, head + row + "end_attributes\nend_resource\nend_page\n"},
    {"a resource of an unknown type", 12,
     head + row + "type Boolean\nend_attributes\nend_resource\nend_page\n"},
    {"a list without an enumeration", 12,
     head + row + "type finite\nend_attributes\nend_resource\nend_page\n"},
    {"a list of an enumeration that is not declared", 13,
     head + row + "type finite\nenum E\nend_attributes\nend_resource\nend_page\n"},
    {"a resource that does not end", 12, head + row + "type boolean\nend_attributes\n"},
    {"an unknown word where a resource must end", 13,
     head + row + "type boolean\nend_attributes\nend_page\nend_page\n"},
    {"a line that is too long", 5, head + std::string(2056, 'x') + "\nend_page\n"},
    {"every page left out", 6,
     "start_page\nstart_attributes\ntype output\nname P\nend_attributes\nend_page\n"},
    {"a second page that fails", 8, head + "end_page\nstart_page\nend_page\n"},
};

struct LayoutFile : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
        auto const * const information = app().application_information();
        const_cast<vmrabsAppInfo *>(information)->set_schema_path("resources", utString(folder() / "layout"));
    }

    /// What build_dialog says on standard error, where messages go without a display.
    std::string build(int & result)
    {
        vmrTableInstance table(folder().write("test.rsc", "").c_str());
        kitLayoutReader reader(&table);
        testing::internal::CaptureStderr();
        result = reader.build_dialog(sglResourceDialogBuilder::input);
        return testing::internal::GetCapturedStderr();
    }
};
struct LayoutFailure : LayoutFile, testing::WithParamInterface<Failure> {};

} // namespace

TEST_P(LayoutFailure, IsToldWithItsLine)
{
    auto const file = folder().write("layout/resource_layout.txt", GetParam().text);
    int result = 1;
    EXPECT_EQ(build(result), "Tester: Error : Unable to read resource layout file " + file + " near line " +
                                 std::to_string(GetParam().line) + ".\nPlease check your installation\n")
        << GetParam().what;
    EXPECT_EQ(result, 0) << GetParam().what;
}
INSTANTIATE_TEST_SUITE_P(Causes, LayoutFailure, testing::ValuesIn(failures), [](auto const & cause) {
    std::string name;
    for (char const letter : std::string(cause.param.what))
        name += std::isalnum(static_cast<unsigned char>(letter)) ? letter : '_';
    return name;
});

TEST_F(LayoutFile, ThatIsNotThereIsToldByItsName)
{
    int result = 1;
    EXPECT_EQ(build(result), "Tester: Error : Unable to find resource layout file resource_layout.txt.\n"
                             "Please check your installation\n");
    EXPECT_EQ(result, 0);
}

TEST_F(LayoutFile, IsFoundOnThePathOfResources)
{
    folder().write("layout/resource_layout.txt", head + "end_page\n");
    int result = 0;
    EXPECT_EQ(build(result), "");
    EXPECT_EQ(result, 1);
}
