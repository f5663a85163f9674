#include <gtest/gtest.h>

#include "s2s/s2sHostEvent.h"

namespace {

template <class Event>
Event read(std::string_view line)
{
    auto const event = s2s_parse_host_event(line);
    EXPECT_TRUE(std::holds_alternative<Event>(event)) << line;
    return std::holds_alternative<Event>(event) ? std::get<Event>(event) : Event();
}

bool is_understood(std::string_view line)
{
    return !std::holds_alternative<std::monostate>(s2s_parse_host_event(line));
}

TEST(HostEvent, ReadsTheBeginningOfAFile)
{
    auto const event = read<s2sHostFile>(R"({"event":"file","path":"/a b","direction":"writing"})");
    EXPECT_EQ(event.path, utString("/a b"));
    EXPECT_EQ(event.direction, s2sReadWriteWriting);
    EXPECT_EQ(read<s2sHostFile>(R"({"event":"file","path":"","direction":"reading"})").direction,
              s2sReadWriteReading);
}

TEST(HostEvent, KeepsProgressBetween0And100)
{
    EXPECT_EQ(read<s2sHostProgress>(R"({"event":"progress","percent":42})").percent, 42);
    EXPECT_EQ(read<s2sHostProgress>(R"({"event":"progress","percent":42.9})").percent, 42);
    EXPECT_EQ(read<s2sHostProgress>(R"({"event":"progress","percent":1e300})").percent, 100);
    EXPECT_EQ(read<s2sHostProgress>(R"({"event":"progress","percent":-5})").percent, 0);
}

TEST(HostEvent, ReadsAMessageWithArgumentsOfAllTypes)
{
    auto const event = read<s2sHostMessage>(
        R"({"event":"message","stream":"error","domain":"vmrhost","key":"step::%s","args":["x",-3,2.5,18446744073709551615]})");
    EXPECT_TRUE(event.error);
    EXPECT_EQ(event.domain, utString("vmrhost"));
    EXPECT_EQ(event.key, utString("step::%s"));
    ASSERT_EQ(event.arguments.size(), 4u);
    EXPECT_EQ(event.arguments[0], utTextArgument("x"));
    EXPECT_EQ(event.arguments[1], utTextArgument(std::int64_t(-3)));
    EXPECT_EQ(event.arguments[2], utTextArgument(2.5));
}

TEST(HostEvent, ReadsTheEnd)
{
    auto const event =
        read<s2sHostEnd>(R"({"event":"end","status":"too_big","processed":12,"failed":99999999999})");
    EXPECT_EQ(event.status, s2sThreadFileTooBig);
    EXPECT_EQ(event.processed, 12);
    EXPECT_EQ(event.failed, 2147483647);
}

TEST(HostEvent, ReadsAFindingWithItsAmounts)
{
    auto const event = read<s2sHostFinding>(
        R"({"event":"finding","weight":"loss","kind":"volume","part":"Bolt","place":"#12","source":5250,"output":0.5,"domain":"vmrhost","key":"k::%s %g","args":["Bolt",0.5]})");
    EXPECT_EQ(event.weight, sdbWeightLoss);
    EXPECT_EQ(event.kind, utString("volume"));
    EXPECT_EQ(event.part, utString("Bolt"));
    EXPECT_EQ(event.place, utString("#12"));
    EXPECT_EQ(event.source, 5250);
    EXPECT_EQ(event.output, 0.5);
    EXPECT_EQ(event.domain, utString("vmrhost"));
    EXPECT_EQ(event.key, utString("k::%s %g"));
    EXPECT_EQ(event.arguments, ut_text_arguments("Bolt", 0.5));
}

TEST(HostEvent, ReadsAFindingThatHasNoPartNoPlaceAndNoAmounts)
{
    auto const event = read<s2sHostFinding>(
        R"({"event":"finding","weight":"difference","kind":"colours","domain":"d","key":"k","args":[]})");
    EXPECT_EQ(event.weight, sdbWeightDifference);
    EXPECT_EQ(event.part, utString(""));
    EXPECT_EQ(event.place, utString(""));
    EXPECT_FALSE(event.source);
    EXPECT_FALSE(event.output);
}

TEST(HostEvent, ReadsEveryVerdictAndNoOther)
{
    std::pair<std::string, sdbVerdict> const verdicts[] = {{"verified", sdbVerdictVerified},
                                                           {"differs", sdbVerdictDiffers},
                                                           {"losses", sdbVerdictLosses},
                                                           {"not_verified", sdbVerdictNotVerified}};
    for (auto const & [name, verdict] : verdicts)
        EXPECT_EQ(read<s2sHostVerdict>(R"({"event":"verdict","verdict":")" + name + "\"}").verdict, verdict);
    EXPECT_FALSE(is_understood(R"({"event":"verdict","verdict":"splendid"})"));
    EXPECT_FALSE(is_understood(R"({"event":"verdict"})"));
}

TEST(HostEvent, RefusesAFindingOfNoKnownWeight)
{
    EXPECT_FALSE(is_understood(
        R"({"event":"finding","weight":"heavy","kind":"volume","domain":"d","key":"k","args":[]})"));
    EXPECT_FALSE(is_understood(R"({"event":"finding","kind":"volume","domain":"d","key":"k","args":[]})"));
}

TEST(HostEvent, IgnoresFieldsThatItDoesNotKnow)
{
    EXPECT_TRUE(is_understood(R"({"event":"progress","percent":1,"since":[1,{}]})"));
}

TEST(HostEvent, ReplacesBytesThatAreNoText)
{
    auto const event = read<s2sHostMessage>(
        "{\"event\":\"message\",\"stream\":\"output\",\"domain\":\"d\",\"key\":\"a\xFF\"}");
    EXPECT_EQ(event.key, utString("a\xEF\xBF\xBD"));
    EXPECT_EQ(s2s_repair_utf8("\xC3\xA4\xC3"), "\xC3\xA4\xEF\xBF\xBD");
    EXPECT_EQ(s2s_repair_utf8("plain \"quoted\" \\ \n"), "plain \"quoted\" \\ \n");
}

TEST(HostEvent, UnderstandsNothingElse)
{
    for (auto const line :
         {"", "garbage", "[]", "5", "{}", R"({"event":5})", R"({"event":"dance"})", R"({"event":"progress"})",
          R"({"event":"progress","percent":"5"})", R"({"event":"file","path":"x"})",
          R"({"event":"file","path":"x","direction":"up"})",
          R"({"event":"end","status":"completed","processed":1})",
          R"({"event":"end","status":"glorious","processed":1,"failed":0})",
          R"({"event":"message","stream":"side","domain":"d","key":"k","args":[]})",
          R"({"event":"message","stream":"output","key":"k","args":[]})",
          R"({"event":"message","stream":"output","domain":"d","key":"k","args":{}})",
          R"({"event":"message","stream":"output","domain":"d","key":"k","args":[null]})",
          R"({"event":"progress","percent":1)"})
        EXPECT_FALSE(is_understood(line)) << line;
}

} // namespace
