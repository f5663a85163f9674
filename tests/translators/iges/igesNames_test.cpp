#include "igesFormatTest.h"

#include "iges/igesNames.h"

class IgesNames : public igesFormatTest {
protected:
    // A cube whose name in the file is replaced by bytes of the same number.
    void write_cube_named(std::string const & bytes)
    {
        std::string const name(bytes.size(), 'N');
        ASSERT_TRUE(write(kit_cube(10), path("cube.igs"), {}, name));
        auto text = kit_read_file(path("cube.igs"));
        auto const at = text.find("H" + name + ";");
        ASSERT_NE(at, std::string::npos);
        folder().write("cube.igs", text.replace(at + 1, name.size(), bytes));
    }

    std::string name_read(Values const & values)
    {
        sdkDocument document;
        EXPECT_TRUE(read(path("cube.igs"), document, values));
        return kit_part_names(document).front();
    }
};

TEST_F(IgesNames, AreWrittenInAsciiAndTheUserIsTold)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.igs"), {}, "Gehäuse 箱"));
    EXPECT_TRUE(said().says("1 names have underscores"));
    EXPECT_EQ(name_read({}), "Geh_use _");
}

TEST_F(IgesNames, OfAsciiStayAsTheyAre)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Plain");
    EXPECT_EQ(iges_make_names_ascii(document), 0);
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"Plain"});
}

TEST_F(IgesNames, AreReadInTheCodePageOfTheOption)
{
    write_cube_named("K\xF6rper");
    EXPECT_EQ(name_read({{"igesReadCodePage", "CP1252"}}), "Körper");
    EXPECT_EQ(name_read({{"igesReadCodePage", "CP1251"}}), "Kцrper");
}

TEST_F(IgesNames, InUtf8AreReadAsTheyAre)
{
    write_cube_named("Körper");
    EXPECT_EQ(name_read({}), "Körper");
}

TEST_F(IgesNames, ThatAreNotInTheCodePageAreTakenForLatin)
{
    write_cube_named("K\xF6rper");
    EXPECT_EQ(name_read({{"igesReadCodePage", "UTF8"}}), "Körper");
}
