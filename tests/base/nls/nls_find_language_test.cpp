#include "nls/nls_find_language.h"

#include <gtest/gtest.h>

#include "kit/kitTempFolder.h"

TEST(FindLanguage, GivesThePathInTheFirstFolderThatHasIt)
{
    kitTempFolder const folder;
    folder.write("b:b/de/any", "");
    folder.write("c/de/any", "");
    folder.write("c/fr/any", "");
    std::vector<std::string> const folders = {folder / "a", folder / "b:b", folder / "c"};
    EXPECT_EQ(nls_find_language(folders, "de"), folder / "b:b/de");
    EXPECT_EQ(nls_find_language(folders, "fr"), folder / "c/fr");
    EXPECT_EQ(nls_find_language(folders, "it"), "");
    EXPECT_EQ(nls_find_language({}, "de"), "");
}

TEST(FindLanguage, RejectsNamesThatLeadElsewhere)
{
    kitTempFolder const folder;
    folder.write("locale/de/LC_MESSAGES/any.mo", "");
    std::vector<std::string> const folders = {folder / "locale"};
    for (char const * name : {"", ".", "..", "/etc", "de/LC_MESSAGES", "../locale", "de/"})
        EXPECT_EQ(nls_find_language(folders, name), "") << name;
}
