#include "iges/igesFile.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string record(std::string text, char section, int number)
{
    text.resize(72, ' ');
    auto const digits = std::to_string(number);
    return text + section + std::string(7 - digits.size(), ' ') + digits + "\n";
}

std::string file(int directory_records, int promised)
{
    auto text = record("", 'S', 1) + record(",,1H;", 'G', 1);
    for (int number = 1; number <= directory_records; ++number) {
        text += record("110", 'D', number);
    }
    auto const count = std::to_string(promised);
    return text +
           record("S      1G      1D" + std::string(7 - count.size(), ' ') + count + "P      0", 'T', 1);
}

} // namespace

TEST(IgesFile, SeesAWholeFile)
{
    igesFile const whole(file(4, 4));
    EXPECT_TRUE(whole.begins);
    EXPECT_TRUE(whole.is_whole());
    EXPECT_EQ(whole.directory_records, 4);
}

TEST(IgesFile, TakesLineEndsOfEitherKind)
{
    std::string text;
    for (char const character : file(2, 2)) {
        text += character == '\n' ? std::string("\r\n") : std::string(1, character);
    }
    EXPECT_TRUE(igesFile(text).is_whole());
}

TEST(IgesFile, MissesTheEndOfAFileThatIsCutOff)
{
    auto const text = file(4, 4);
    EXPECT_FALSE(igesFile(std::string_view(text).substr(0, text.size() - 81)).is_whole());
    EXPECT_FALSE(igesFile(std::string_view(text).substr(0, 90)).is_whole());
}

TEST(IgesFile, ComparesTheDirectoryWithTheCountAtTheEnd)
{
    EXPECT_FALSE(igesFile(file(2, 4)).is_whole());
    EXPECT_TRUE(igesFile(file(2, 0)).is_whole());
}

TEST(IgesFile, KnowsTheFormsThatAreNotRecordsOf80)
{
    EXPECT_TRUE(igesFile(record("", 'C', 1)).other_form);
    EXPECT_TRUE(igesFile(record("", 'B', 1)).other_form);
    EXPECT_FALSE(igesFile(record("", 'S', 1)).other_form);
}

TEST(IgesFile, DoesNotTakeOtherTextForIges)
{
    EXPECT_FALSE(igesFile("").begins);
    EXPECT_FALSE(igesFile("ISO-10303-21;\n").begins);
    EXPECT_FALSE(igesFile(std::string(200, 'x')).begins);
}
