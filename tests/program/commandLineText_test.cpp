#include "commandLineText.h"

#include <gtest/gtest.h>

namespace {

std::string text_of(std::vector<std::string> const & words)
{
    return vmr_command_line_text(words).text;
}

} // namespace

TEST(CommandLineText, DividesWordsByBlanksAndHoldsThoseWithBlanksInQuotes)
{
    EXPECT_EQ(text_of({"my part.step", "-t", "IGES"}), "\"my part.step\" -t IGES");
    EXPECT_EQ(text_of({}), "");
}

TEST(CommandLineText, KeepsAnEmptyWord)
{
    EXPECT_EQ(text_of({"a", "", "b"}), "a \"\" b");
}

TEST(CommandLineText, ReachesNamesWithABlankOrAQuoteInFrontThroughTheirFolder)
{
    EXPECT_EQ(text_of({" part.step"}), "\"./ part.step\"");
    EXPECT_EQ(text_of({"\"part.step"}), "./\"part.step");
}

TEST(CommandLineText, PassesAWordOnThatBringsItsOwnQuotes)
{
    auto const text = vmr_command_line_text({"-res_opt", "\"name:two words\""});
    EXPECT_EQ(text.text, "-res_opt \"name:two words\"");
    EXPECT_EQ(text.impossible_word, "");
}

TEST(CommandLineText, NamesAWordThatItCannotHold)
{
    EXPECT_EQ(vmr_command_line_text({"fine", "5\" wide.step"}).impossible_word, "5\" wide.step");
}
