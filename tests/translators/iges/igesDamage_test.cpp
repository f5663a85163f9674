#include "iges/igesParameters.h"
#include "igesFormatTest.h"
#include "igesText.h"

class IgesDamage : public igesFormatTest {
protected:
    static std::string line(std::string const & last = "10.") { return "0.,0.,0.,0.,0.," + last; }
};

TEST_F(IgesDamage, ANumberThatIsNoneCostsItsEntity)
{
    for (auto const * const number : {"NaN", "1.E400", "1.D400", "-INF", "abc"}) {
        igesText file;
        file.add({110, line()});
        file.add({110, line(number)});
        sdkDocument document;
        ASSERT_TRUE(read(folder().write("lines.igs", file.text()), document)) << number;
        EXPECT_EQ(document.count_entities().curves, 1);
        ASSERT_EQ(account().findings().size(), 1u);
        auto const said_of = account().findings().front().text.formatted();
        EXPECT_NE(said_of.find("D3: " + std::string(number) + " stands where a number should be"),
                  std::string::npos)
            << said_of;
        EXPECT_EQ(said().failed(), 1);
    }
}

TEST_F(IgesDamage, AGroupGoesOnWithoutAMember)
{
    igesText file;
    auto const good = std::to_string(file.add({110, line(), 0, 0, "00010000"}));
    auto const bad = std::to_string(file.add({110, line("NaN"), 0, 0, "00010000"}));
    file.add({402, "2," + good + "," + bad, 7});
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("group.igs", file.text()), document));
    EXPECT_EQ(document.count_entities().curves, 1);
    EXPECT_EQ(account().findings().size(), 1u);
}

TEST_F(IgesDamage, CountsThatTheRecordCannotHoldAreRefused)
{
    for (auto const & [type, parameters] :
         {std::pair(126, "2000000000,1,0,0,1,0,0.,0.,1.,1."), std::pair(126, "-5,1,0,0,1,0,0.,0.,1.,1."),
          std::pair(128, "3,2000000000,1,1,0,0,1,0,0"), std::pair(128, "30000,30000,1,1,0,0,1,0,0"),
          std::pair(402, "2000000000,1"), std::pair(102, "2000000000,1"), std::pair(502, "0"),
          std::pair(106, "2,900000000,0.,0.")}) {
        igesText file;
        file.add({110, line()});
        file.add({type, parameters});
        auto const said_of = refusal("count.igs", file.text());
        EXPECT_NE(said_of.find("D3: the entity of type " + std::to_string(type) + " has the count"),
                  std::string::npos)
            << said_of;
    }
}

TEST_F(IgesDamage, NestsOfSubfiguresAreCountedBeforeTheyAreSpreadOut)
{
    igesText file;
    auto inner = file.add({110, line(), 0, 0, "00010000"});
    for (int level = 0; level < 22; ++level) {
        auto const definition = file.add(
            {308, "0,1HS,2," + std::to_string(inner) + "," + std::to_string(inner), 0, 0, "00020200"});
        inner = file.add({408, std::to_string(definition) + ",0.,0.,0.,1.", 0, 0, "00010000"});
    }
    sdkDocument document;
    auto const result = read(folder().write("nest.igs", file.text()), document);
    EXPECT_EQ(result.status(), sdkStatus::too_big);
    EXPECT_NE(result.text().formatted().find("at most 2000000 can be translated"), std::string::npos)
        << result.text().formatted();
}

TEST(IgesParameters, KnowTextsDelimitersAndNumbers)
{
    igesText file;
    file.add({406, "2,9HNaN,1.E4;,1.5D+01, 2 ,,"});
    file.add({110, "0.,1.E400,0."});
    std::vector<igesParameters> all;
    std::vector<std::string> bad;
    auto const text = file.text();
    iges_each_parameters(text, [&](igesParameters const & one) {
        all.push_back(one);
        bad.emplace_back(one.bad);
    });
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].type, 406);
    EXPECT_EQ(all[0].directory, 1);
    EXPECT_EQ(all[0].count, 6);
    EXPECT_EQ(all[0].first[0], 2);
    EXPECT_EQ(bad[0], "");
    EXPECT_EQ(all[1].directory, 3);
    EXPECT_EQ(bad[1], "1.E400");
}
