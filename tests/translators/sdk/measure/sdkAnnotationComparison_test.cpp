#include "sdk/measure/sdkAnnotationComparison.h"

#include "translators/kit/kitParts.h"

#include <TopExp_Explorer.hxx>

#include <gtest/gtest.h>

namespace {

TopoDS_Shape face(int number)
{
    TopExp_Explorer faces(kit_cube(10), TopAbs_FACE);
    for (int at = 0; at < number; ++at) {
        faces.Next();
    }
    return faces.Current();
}

sdkAnnotation size(std::string const & content = "10 mm", int number = 0)
{
    return {"term::dimension", "diameter", "#7", content, {face(number)}};
}

} // namespace

class SdkAnnotationComparison : public testing::Test {
protected:
    SdkAnnotationComparison() { m_promise.annotations = true; }

    std::vector<sdkFinding> compare(std::vector<sdkAnnotation> source, std::vector<sdkAnnotation> output)
    {
        sdkDocument before;
        sdkDocument after;
        sdk_add_annotations(before, {std::move(source), nullptr});
        sdk_add_annotations(after, {std::move(output), nullptr});
        std::vector<sdkFinding> findings;
        sdk_compare_annotations(before, after, m_promise, findings);
        for (auto const & finding : findings) {
            EXPECT_TRUE(finding.text.fits()) << finding.text.key();
        }
        return findings;
    }

    void expect_one(std::vector<sdkFinding> const & findings, sdkWeight weight, std::string const & kind)
    {
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(findings.front().weight, weight);
        EXPECT_EQ(findings.front().kind, kind);
        EXPECT_EQ(findings.front().place, "#7");
        EXPECT_NE(findings.front().text.formatted().find("dimension \"diameter\""), std::string::npos);
    }

    sdkPromise m_promise;
};

TEST_F(SdkAnnotationComparison, FindsNothingWhereAllIsTheSameInAnyOrder)
{
    auto two = size("7 mm", 1);
    two.shapes.push_back(face(2));
    auto turned = two;
    std::swap(turned.shapes[0], turned.shapes[1]);
    EXPECT_TRUE(compare({size(), two, size()}, {turned, size(), size()}).empty());
}

TEST_F(SdkAnnotationComparison, TellsWhatIsMissing)
{
    expect_one(compare({size(), size()}, {size()}), sdkWeight::loss, "annotation");
}

TEST_F(SdkAnnotationComparison, TellsWhatTheSourceDoesNotHave)
{
    expect_one(compare({}, {size()}), sdkWeight::difference, "extra-annotation");
}

TEST_F(SdkAnnotationComparison, TellsWhatSaysSomethingElse)
{
    expect_one(compare({size("10 mm")}, {size("10 in")}), sdkWeight::difference, "annotation-changed");
}

TEST_F(SdkAnnotationComparison, TellsWhatIsAttachedElsewhere)
{
    expect_one(compare({size("10 mm", 0)}, {size("10 mm", 1)}), sdkWeight::difference, "annotation-changed");
    auto nowhere = size();
    nowhere.shapes.front().Nullify();
    expect_one(compare({size()}, {nowhere}), sdkWeight::difference, "annotation-changed");
}

TEST_F(SdkAnnotationComparison, DoesNotLookForWhatIsCalledLost)
{
    m_promise.lost_annotations = {{0, 1}};
    EXPECT_TRUE(compare({size(), size("7 mm")}, {size()}).empty());
    expect_one(compare({size(), size("7 mm")}, {}), sdkWeight::loss, "annotation");
}

TEST_F(SdkAnnotationComparison, LooksForNothingWhereNothingIsPromised)
{
    m_promise.annotations = false;
    EXPECT_TRUE(compare({size()}, {}).empty());
}
