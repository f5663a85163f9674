#include <gtest/gtest.h>

#include "kit/kitTempFolder.h"
#include "s2s/s2sTranslationElements.h"
#include "vmr/vmrTableInstance.h"

namespace {

TEST(TranslatorElements, GivesBackWhatItWasMadeFrom)
{
    s2sTranslatorElements const element("/a.cad", nullptr, "/m.so", 1, "A");
    EXPECT_EQ(element.file(), utString("/a.cad"));
    EXPECT_EQ(element.translator(), utString("/m.so"));
    EXPECT_EQ(element.format(), utString("A"));
    EXPECT_NE(element.is_viewer(), 0);
    EXPECT_EQ(element.table(), nullptr);
}

TEST(TranslatorElements, KeepsACopyOfTheOptions)
{
    kitTempFolder const folder;
    vmrTableInstance options;
    options.initialise(folder / "none.rsc");
    options.add_resource("testName", "before");
    s2sTranslatorElements const element("/a.cad", &options, "/m.so", 0, "A");
    options.add_resource("testName", "after");
    EXPECT_EQ(element.table()->effective_value("testName"), utString("before"));
}

TEST(TranslatorElements, CarriesTheDocumentOfTheOutput)
{
    int place = 0;
    auto const document = reinterpret_cast<annDocument *>(&place);
    s2sOutputTranslatorElements const element("/b.cad", nullptr, "/m.so", document, 0, "B");
    EXPECT_EQ(element.document(), document);
    EXPECT_EQ(element.format(), utString("B"));
}

TEST(TranslationElements, AreAssignedAndWalkedWithTheirIterators)
{
    s2sTranslationElements first({}, {"/b", nullptr, "/m.so", nullptr, 0, "B"});
    s2sTranslatorElementscoPageArr inputs;
    inputs.append({"/1", nullptr, "/m.so", 0, "A"});
    inputs.append({"/2", nullptr, "/m.so", 0, "A"});
    EXPECT_TRUE(first.first_input_file().empty());
    first = s2sTranslationElements(inputs, first.output_elements());

    utString files;
    s2sTranslatorElementscoPageArrcoIterator input(first.input_elements());
    while (++input)
        files += input().file();
    EXPECT_EQ(files, utString("/1/2"));
    EXPECT_EQ(first.first_input_file(), utString("/1"));
}

} // namespace
