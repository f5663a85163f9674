#include "stlFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

class StlTextParser : public stlFormatTest {};

TEST_F(StlTextParser, ReadsSeveralSolidsWithTheirNames)
{
    sdkDocument document;
    ASSERT_TRUE(read_content("solid left wing\n" + stl_text_facet() + "endsolid left wing\nsolid\n" +
                                 stl_text_facet(2) + stl_text_facet(3) + "endsolid\n",
                             document));
    EXPECT_EQ(kit_part_names(document), (std::vector<std::string>{"left wing", "part"}));
    EXPECT_EQ(sdk_measure(document).triangles, 3);
}

TEST_F(StlTextParser, TakesWordsInAnyCaseAndAnyBlanksBetweenThem)
{
    sdkDocument document;
    ASSERT_TRUE(read_content(
        "\xEF\xBB\xBF  SOLID x\r\nFacet Normal 0 0 1 Outer Loop vertex 0 0 0\tVERTEX +1.5e0 0 0\r\n"
        "vertex 0 1. -0 EndLoop endFACET endsolid",
        document));
    EXPECT_NEAR(sdk_measure(document).area, 0.75, 1e-12);
}

TEST_F(StlTextParser, TakesNormalsThatAreNoNumbers)
{
    sdkDocument document;
    auto content = "solid x\n" + stl_text_facet() + "endsolid\n";
    content.replace(content.find("0 0 1"), 5, "nan -nan(ind) inf");
    EXPECT_TRUE(read_content(content, document));
}

TEST_F(StlTextParser, NamesTheLineOfACoordinateThatIsNotFinite)
{
    for (auto const * bad : {"nan", "inf", "1e999", "-2e15"}) {
        auto content = "solid x\n" + stl_text_facet() + stl_text_facet() + "endsolid\n";
        content.replace(content.rfind("vertex 1"), 8, std::string("vertex ") + bad);
        EXPECT_NE(failure_of(content).find("line 12: a coordinate is no finite number"), std::string::npos)
            << bad;
    }
}

TEST_F(StlTextParser, TakesANumberTooSmallForADouble)
{
    auto content = "solid x\n" + stl_text_facet() + "endsolid\n";
    content.replace(content.find("vertex 0 0 0"), 12, "vertex 1e-999 0 0");
    EXPECT_EQ(failure_of(content), "");
}

TEST_F(StlTextParser, NamesTheLineAndTheWordThatIsWrong)
{
    struct Case {
        char const * from;
        char const * to;
        char const * message;
    };
    for (auto const & one :
         {Case{"facet normal", "fact normal", "line 2: \"fact\" stands where facet or endsolid"},
          Case{"normal", "normale", "line 2: \"normale\" stands where normal"},
          Case{"outer", "inner", "line 3: \"inner\" stands where outer"},
          Case{"vertex 1", "vertex 1,5", "line 5: \"1,5\" stands where a number"},
          Case{"vertex 1 0 0\n", "", "line 6: \"endloop\" stands where vertex"},
          Case{"endloop", "", "line 8: \"endfacet\" stands where endloop"},
          Case{"endfacet", "endface", "line 8: \"endface\" stands where endfacet"},
          Case{"endloop", "vertex 5 5 5\nendloop", "line 7: the facet has more than three corners"}}) {
        auto content = "solid x\n" + stl_text_facet() + "endsolid\n";
        content.replace(content.find(one.from), std::strlen(one.from), one.to);
        auto const failure = failure_of(content);
        EXPECT_NE(failure.find(one.message), std::string::npos) << failure;
    }
}

TEST_F(StlTextParser, CountsLinesWhateverEndsThem)
{
    for (auto const * end : {"\n", "\r\n", "\r"}) {
        auto const content = std::string("solid x") + end + end + "  rubbish" + end;
        EXPECT_NE(failure_of(content).find("line 3: \"rubbish\""), std::string::npos);
    }
}

TEST_F(StlTextParser, RefusesAFileThatIsCutOffAnywhere)
{
    auto const content = "solid x\n" + stl_text_facet() + "endsolid";
    for (std::size_t size = 6; size < content.size(); ++size) {
        EXPECT_NE(failure_of(content.substr(0, size)), "") << size;
    }
    EXPECT_NE(failure_of(content.substr(0, 40)).find("it ends at line"), std::string::npos);
    EXPECT_EQ(failure_of(content), "");
}

TEST_F(StlTextParser, ShortensAndCleansTheWordThatItShows)
{
    auto const failure = failure_of("solid x\n" + std::string(5000, 'y') + "\xFF\n");
    EXPECT_LT(failure.size(), 250U);
    EXPECT_NE(failure.find("\"yyyy"), std::string::npos);
}
