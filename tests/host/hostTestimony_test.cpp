#include "host/hostTestimony.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

hostTestimony round_trip(hostTestimony const & testimony)
{
    return host_read_testimony(host_write_testimony(testimony));
}

} // namespace

TEST(HostTestimony, ArrivesAsItWasSent)
{
    hostTestimony sent;
    sent.read_back = true;
    sent.reason = sdkText("host::%s and %d and %g", "Gehäuse \"7\"\n", 7, 0.5);
    sent.findings = {{sdkWeight::difference, "volume", "Gehäuse", "(1, 2, 3)", 0.1, 1.0 / 3,
                      sdkText("measure::%s has %d", "a", 12)},
                     {sdkWeight::loss, "missing-solid", {}, {}, std::nullopt, std::nullopt, {}}};
    auto const line = host_write_testimony(sent);
    EXPECT_EQ(line.find('\n'), std::string::npos);
    auto const read = host_read_testimony(line);
    EXPECT_TRUE(read.read_back);
    EXPECT_EQ(read.reason.formatted(), sent.reason.formatted());
    EXPECT_TRUE(read.reason.fits());
    ASSERT_EQ(read.findings.size(), 2U);
    EXPECT_EQ(read.findings[0].weight, sdkWeight::difference);
    EXPECT_EQ(read.findings[0].kind, "volume");
    EXPECT_EQ(read.findings[0].part, "Gehäuse");
    EXPECT_EQ(read.findings[0].place, "(1, 2, 3)");
    EXPECT_EQ(read.findings[0].source, 0.1);
    EXPECT_EQ(read.findings[0].output, 1.0 / 3);
    EXPECT_EQ(read.findings[0].text.formatted(), "a has 12");
    EXPECT_EQ(read.findings[1].weight, sdkWeight::loss);
    EXPECT_FALSE(read.findings[1].source);
    EXPECT_FALSE(read.findings[1].output);
}

TEST(HostTestimony, MayHaveTextsThatAreNoUtf8AndNumbersThatAreNone)
{
    hostTestimony sent;
    double const nan = std::numeric_limits<double>::quiet_NaN();
    sent.findings = {
        {sdkWeight::difference, "area", "\xff\xfe", {}, nan, 2, sdkText("measure::%g of %s", nan, "\xff")}};
    auto const read = round_trip(sent);
    ASSERT_EQ(read.findings.size(), 1U);
    EXPECT_FALSE(read.findings[0].source);
    EXPECT_EQ(read.findings[0].output, 2);
    EXPECT_TRUE(read.findings[0].text.fits());
}

TEST(HostTestimony, IsRefusedWhenItsLineIsDamaged)
{
    auto const whole = host_write_testimony({true, sdkText("host::x"), {{sdkWeight::note, "name", {}, {}}}});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_THROW(host_read_testimony(whole.substr(0, length)), std::exception) << length;
    }
    EXPECT_THROW(host_read_testimony("{}"), std::exception);
    EXPECT_THROW(host_read_testimony(R"({"read_back":1,"reason":{},"findings":[]})"), std::exception);
    EXPECT_THROW(host_read_testimony(R"({"read_back":true,"reason":{"key":"","args":[]},"findings":[7]})"),
                 std::exception);
}

TEST(HostQuestion, ArrivesAsItWasSentWithEveryFlag)
{
    auto const with = [](bool flag) {
        hostQuestion question;
        question.written = "/out/Gehäuse 1.step";
        auto & promise = question.promise;
        promise.deflection = 0.25;
        promise.triangles = 5'000'000'000;
        promise.read_back = {{"stlReadUnit", "in"}};
        promise.made = promise.exact_curves = promise.ascii_names = promise.hidden = promise.checked = flag;
        promise.annotations = flag;
        promise.lost_annotations = {{0, 7}, {1, 5'000'000'000}};
        auto & holds = promise.holds;
        holds = {flag, flag, flag, flag, flag, flag, flag, flag, flag, flag};
        return question;
    };
    for (bool const flag : {false, true}) {
        auto const read = host_read_question(host_write_question(with(flag)));
        EXPECT_EQ(read.written, "/out/Gehäuse 1.step");
        auto const & promise = read.promise;
        EXPECT_EQ(promise.deflection, 0.25);
        EXPECT_EQ(promise.triangles, 5'000'000'000);
        EXPECT_EQ(promise.read_back, (std::map<std::string, std::string>{{"stlReadUnit", "in"}}));
        EXPECT_EQ(promise.lost_annotations,
                  (std::set<std::pair<std::int64_t, std::int64_t>>{{0, 7}, {1, 5'000'000'000}}));
        auto const & holds = promise.holds;
        for (bool const read_flag :
             {promise.made, promise.exact_curves, promise.ascii_names, promise.hidden, promise.checked,
              promise.annotations, holds.structure, holds.names, holds.colours, holds.layers, holds.curves,
              holds.points, holds.surfaces, holds.visibility, holds.transparency, holds.solids}) {
            EXPECT_EQ(read_flag, flag);
        }
    }
}

TEST(HostQuestion, IsRefusedWhenItsLineIsDamaged)
{
    EXPECT_THROW(host_read_question("{\"written\":\"a\"}"), std::exception);
    EXPECT_THROW(host_read_question("12"), std::exception);
}
