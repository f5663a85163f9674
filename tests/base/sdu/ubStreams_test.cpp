#include "sdu/ubStreams.h"

#include <gtest/gtest.h>
#include <locale>
#include <string>

#include "kit/kitTempFolder.h"

class Streams : public testing::Test {
protected:
    utString path(std::string const & name) const { return utString(m_temp / name); }

    kitTempFolder m_temp;
};

TEST_F(Streams, WriteAFileUnderAnyName)
{
    {
        ubOFStream out(path("\xC3\xA4 \xFF.log"), 2);
        EXPECT_EQ(out.is_open(), 1);
        out << "text " << 1.5 << std::endl;
    }
    EXPECT_EQ(m_temp.read("\xC3\xA4 \xFF.log"), "text 1.5\n");
}

TEST_F(Streams, EmptyAnOldFileUnlessTheyAppend)
{
    m_temp.write("log", "old");
    ubOFStream(path("log"), 2) << "new";
    EXPECT_EQ(m_temp.read("log"), "new");
    ubOFStream(path("log"), ubOpenOutput | ubOpenAppend) << "er";
    EXPECT_EQ(m_temp.read("log"), "newer");
}

TEST_F(Streams, TellWhenAFileCannotBeMade)
{
    EXPECT_EQ(ubOFStream(path("missing/log"), 2).is_open(), 0);
    EXPECT_EQ(ubOFStream(utString(m_temp.path().string()), 2).is_open(), 0);
    EXPECT_EQ(ubOFStream(utString("/" + std::string(4000, 'x')), 2).is_open(), 0);
    EXPECT_EQ(ubOFStream(utString::make_invalid(), 2).is_open(), 0);
}

TEST_F(Streams, ReadLinesWithALimit)
{
    m_temp.write("layout", "short\n0123456789\nlast");
    ubIFStream in(path("layout"), 1);
    EXPECT_EQ(in.is_open(), 1);
    EXPECT_EQ(in.rdstate(), std::ios::goodbit);
    char line[8];
    in.getline(line, sizeof line);
    EXPECT_STREQ(line, "short");
    in.getline(line, sizeof line);
    EXPECT_TRUE(in.fail());
}

TEST_F(Streams, AreInAFailedStateWhenNothingCanBeRead)
{
    for (auto const & one : {path("missing"), utString(m_temp.path().string()),
                             utString("/" + std::string(4000, 'x')), utString()}) {
        ubIFStream in(one, 1);
        EXPECT_EQ(in.is_open(), 0);
        EXPECT_NE(in.rdstate(), std::ios::goodbit);
    }
}

TEST_F(Streams, WriteAndReadNumbersAlikeInEveryLocale)
{
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
    };
    auto const old = std::locale::global(std::locale(std::locale::classic(), new Comma));
    ubOFStream(path("numbers"), 2) << 2.5;
    double value = 0;
    ubIFStream(path("numbers"), 1) >> value;
    std::locale::global(old);
    EXPECT_EQ(m_temp.read("numbers"), "2.5");
    EXPECT_EQ(value, 2.5);
}
