#include "sdb/sdbTranslatorDlls.h"

#include <gtest/gtest.h>

#include "TranslatorFolder.h"

using Names = std::vector<std::string>;

namespace {

/// The format name of a translator, or "none".
std::string name_of(sdbTranslatorInfo const * translator)
{
    return translator ? translator->format_name().ut_string().str() : "none";
}

/// Formats of every kind in three modules.
class TranslatorDlls : public testing::Test {
protected:
    TranslatorDlls()
    {
        auto stl = format_value("STL", {"stl"});
        stl["category"] = "Mesh";
        auto obj = format_value("obj", {"obj"});
        obj["category"] = "Mesh";
        obj["sides"] = {"output"};
        folder.add("mesh", manifest_value({stl, obj}));

        auto step = format_value("STEP", {"stp", "step"});
        step["default_output"] = "STL";
        auto iges = format_value("IGES", {"igs", "iges"});
        iges["sides"] = {"input"};
        folder.add("brep", manifest_value({step, iges}));

        auto viewer = format_value("viewer", {});
        viewer["sides"] = {"output"};
        viewer["viewer"] = true;
        viewer["category"] = "Viewer";
        viewer["filter"] = "";
        folder.add("viewer", manifest_value({viewer}));
        status = folder.make();
    }
    std::string proposed(char const * input_format) const
    {
        return name_of(
            folder.output().default_output_format(folder.input().translator_for_format(input_format)));
    }

    TranslatorFolder folder;
    sdbTranslatorLoadStatus status{sdbTranslatorLoadStart};
};

} // namespace

TEST_F(TranslatorDlls, ListTheFormatsOfTheirSideInTheOrderOfTheNames)
{
    ASSERT_TRUE(status.ok()) << reasons(status);
    EXPECT_EQ(names_of(folder.input().formats()), (Names{"IGES", "STEP", "STL"}));
    EXPECT_EQ(names_of(folder.output().formats()), (Names{"obj", "STEP", "STL", "viewer"}));
}

TEST_F(TranslatorDlls, FindAFormatByItsExactName)
{
    EXPECT_EQ(name_of(folder.input().translator_for_format("STEP")), "STEP");
    EXPECT_EQ(folder.input().translator_for_format("step"), nullptr);
    EXPECT_EQ(folder.input().translator_for_format("STEP "), nullptr);
    EXPECT_EQ(folder.input().translator_for_format(""), nullptr);
    EXPECT_EQ(folder.input().translator_for_format(utString::make_invalid()), nullptr);
    EXPECT_EQ(folder.input().translator_for_format("obj"), nullptr);
    EXPECT_EQ(folder.output().translator_for_format("IGES"), nullptr);
}

TEST_F(TranslatorDlls, GiveEachFormatTheFileOfItsModule)
{
    EXPECT_EQ(folder.input().translator_for_format("IGES")->file_ut().str(), folder.path("brep.so"));
    EXPECT_EQ(folder.output().translator_for_format("obj")->file_ut().str(), folder.path("mesh.so"));
}

TEST_F(TranslatorDlls, KnowTheirViewers)
{
    EXPECT_NE(folder.output().translator_for_format("viewer")->is_viewer(), 0);
    EXPECT_EQ(folder.output().translator_for_format("STEP")->is_viewer(), 0);
}

TEST_F(TranslatorDlls, NameTheResourceFileOfEachTranslator)
{
    auto files = folder.input().resource_file_names();
    Names names;
    while (++files)
        names.push_back(files().utf8());
    EXPECT_EQ(names, (Names{"IGES.rsc", "STEP.rsc", "STL.rsc"}));
}

TEST_F(TranslatorDlls, GiveLabelAndPatternsForFileDialogs)
{
    auto const filter = folder.input().translator_for_format("STEP")->filter();
    EXPECT_EQ(filter.filter_string(), utString("format.filter::STEP Files (*.stp;*.step)|*.stp;*.step"));
    EXPECT_EQ(filter.tag(), utString("vmrhost"));
}

TEST_F(TranslatorDlls, GiveNoFilterTextForAFormatWithoutLabel)
{
    EXPECT_TRUE(folder.output().translator_for_format("viewer")->filter().filter_string().empty());
}

TEST_F(TranslatorDlls, NumberTheCategoriesInTheOrderOfTheirTextsOnBothSides)
{
    auto const order = [](sdbTranslatorDlls const & dlls, char const * format) {
        return dlls.translator_for_format(format)->filter().category_order();
    };
    EXPECT_EQ(order(folder.input(), "STEP"), 0);
    EXPECT_EQ(order(folder.input(), "STL"), 1);
    EXPECT_EQ(order(folder.output(), "viewer"), 2);
    EXPECT_EQ(order(folder.output(), "STL"), 1);
}

TEST_F(TranslatorDlls, ListOneFilterElementForEachTranslator)
{
    auto elements = folder.output().filter_elements();
    ASSERT_FALSE(elements.undefined());
    int count = 0;
    while (++elements) {
        auto const & translator = *folder.output().translators()[static_cast<std::size_t>(count++)];
        EXPECT_EQ(elements().filter_string(), translator.filter().filter_string());
        EXPECT_EQ(elements().category_order(), translator.filter().category_order());
    }
    EXPECT_EQ(count, 4);
}

TEST_F(TranslatorDlls, ProposeTheFormatThatTheManifestOfTheInputNames)
{
    EXPECT_EQ(proposed("STEP"), "STL");
}

TEST_F(TranslatorDlls, ProposeTheFirstOtherFormatWhenTheManifestNamesNone)
{
    EXPECT_EQ(proposed("IGES"), "obj");
    EXPECT_EQ(proposed("STL"), "obj");
}

TEST_F(TranslatorDlls, ProposeThePreferredFormatBeforeAnyOther)
{
    folder.make("obj");
    EXPECT_EQ(proposed("STEP"), "obj");
    folder.make("STEP");
    EXPECT_EQ(proposed("IGES"), "STEP");
}

TEST_F(TranslatorDlls, PassOverAPreferredFormatThatCannotBeWritten)
{
    folder.make("IGES");
    EXPECT_EQ(proposed("STEP"), "STL");
    folder.make("no such format");
    EXPECT_EQ(proposed("STEP"), "STL");
}

TEST_F(TranslatorDlls, NeverProposeTheFormatOfTheInput)
{
    folder.make("STEP");
    EXPECT_EQ(proposed("STEP"), "STL");
}

TEST_F(TranslatorDlls, ProposeNothingForNoInput)
{
    EXPECT_EQ(folder.output().default_output_format(nullptr), nullptr);
}

TEST(TranslatorDllsOfOneFormat, ProposeNothingWhenNoOtherFormatIsLeft)
{
    TranslatorFolder folder;
    folder.add("step", manifest_value({format_value("STEP", {"stp"})}));
    folder.make();
    EXPECT_EQ(folder.output().default_output_format(folder.input().translator_for_format("STEP")), nullptr);
}

TEST(EmptyTranslatorDlls, YieldNothingAndFindNothing)
{
    TranslatorFolder folder;
    EXPECT_TRUE(folder.make().ok());
    for (auto const * const dlls : {&folder.input(), &folder.output()}) {
        EXPECT_FALSE(++dlls->formats());
        EXPECT_FALSE(++dlls->filter_elements());
        EXPECT_FALSE(++dlls->resource_file_names());
        EXPECT_EQ(dlls->translator_for_format("STEP"), nullptr);
        EXPECT_EQ(dlls->translator_for_file("part.stp"), nullptr);
        EXPECT_EQ(dlls->default_output_format(nullptr), nullptr);
    }
}
