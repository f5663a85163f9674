#include "ann/annDocument.h"

#include <gtest/gtest.h>

TEST(Document, HasTheNameThatItWasMadeWith)
{
    annDocument const document("Model");
    EXPECT_EQ(document.name(), utString("Model"));
}

TEST(Document, HasNoDescriptionAndNoAuthorUntilTheyAreSet)
{
    annDocument document("Model");
    EXPECT_TRUE(document.description().invalid());
    EXPECT_TRUE(document.author().invalid());
    document.set_description("A bracket");
    document.set_author("");
    EXPECT_EQ(document.description(), utString("A bracket"));
    EXPECT_FALSE(document.author().invalid());
}
