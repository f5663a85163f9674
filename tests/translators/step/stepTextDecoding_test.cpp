#include "step/stepTextDecoding.h"

#include <gtest/gtest.h>

TEST(StepTextDecoding, ResolvesDirectives)
{
    EXPECT_EQ(step_decoded("plain"), "plain");
    EXPECT_EQ(step_decoded("it''s a \\\\ mark"), "it's a \\ mark");
    EXPECT_EQ(step_decoded("\\X2\\00D8\\X0\\ 10 \\X2\\00B5006D\\X0\\"), "Ø 10 µm");
    EXPECT_EQ(step_decoded("\\X4\\0001F600\\X0\\\\X2\\20AC\\X0\\"), "😀€");
    EXPECT_EQ(step_decoded("\\X\\D8, \\S\\X"), "Ø, Ø");
}

TEST(StepTextDecoding, LeavesWhatIsNoDirective)
{
    for (char const * text : {"", "\\", "\\X", "\\X\\", "\\X\\Z", "\\X2\\", "\\X2\\00D", "\\X2\\00D8",
                              "\\X4\\00D8\\X0\\", "\\S\\", "C:\\Parts", "'"}) {
        EXPECT_EQ(step_decoded(text), text);
    }
}
