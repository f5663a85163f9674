#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

namespace {

std::string credits()
{
    return kit_read_file(VMR_SOURCE_TREE "/data/TrademarksAndCredits.rtf");
}

} // namespace

TEST(Credits, AreADocumentOfRichText)
{
    std::string const text = credits();
    ASSERT_TRUE(text.starts_with("{\\rtf1"));
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        ASSERT_LT(static_cast<unsigned char>(text[i]), 0x80) << "at " << i;
        if (text[i] == '\\' && (text[i + 1] == '{' || text[i + 1] == '}'))
            ++i;
        else
            depth += (text[i] == '{') - (text[i] == '}');
        ASSERT_GT(depth + (i + 2 >= text.size()), 0) << "closed at " << i;
    }
    EXPECT_EQ(depth, 0);
}

TEST(Credits, NameTheLibrariesThatTheProgramIsMadeWith)
{
    std::string const text = credits();
    for (auto const * const name : {"Open CASCADE Technology", "wxWidgets", "GTK and GLib", "Boost",
                                    "(nlohmann json)", "pugixml", "libpng", "stb"})
        EXPECT_NE(text.find(std::string(name) + "\\b0"), std::string::npos) << name;
}
