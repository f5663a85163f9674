#include "controls/sglFileFilter.h"

#include <gtest/gtest.h>

TEST(FileFilter, LosesTheBarsAtItsEndAndTheBlanksAroundTheOthers)
{
    EXPECT_EQ(sgl_toolkit_filter("Files (*.1) | *.1||"), "Files (*.1)|*.1");
    EXPECT_EQ(sgl_toolkit_filter(""), "");
}

TEST(FileFilter, KeepsTheLabelsAsTheyAre)
{
    EXPECT_EQ(sgl_toolkit_filter("STEP Files (*.stp;*.step)|*.1;*.2|All Files (*.*)|*.*||"),
              "STEP Files (*.stp;*.step)|*.1;*.2|All Files (*.*)|*");
}

TEST(FileFilter, StandsForBothCasesOfALetter)
{
    EXPECT_EQ(sgl_toolkit_filter("S|*.stp;*.3d"), "S|*.[sS][tT][pP];*.3[dD]");
    EXPECT_EQ(sgl_toolkit_filter("S|*.IGS"), "S|*.[iI][gG][sS]");
    EXPECT_EQ(sgl_toolkit_filter("S|*.[ab]c"), "S|*.[ab]c");
}

TEST(FileFilter, TellsTheEndingsOfEachOfItsPatterns)
{
    using Endings = std::vector<std::vector<std::string>>;
    EXPECT_EQ(sgl_filter_endings("STEP (*.stp)|*.stp; *.step|One|part.*;*.a.b|All (*.*)|*.*||"),
              (Endings{{"stp", "step"}, {"a.b"}, {}}));
    EXPECT_EQ(sgl_filter_endings("All|*"), Endings{{}});
    EXPECT_EQ(sgl_filter_endings(""), Endings{});
}
