#include "sdb/sdbTranslationData.h"

#include <gtest/gtest.h>

TEST(TranslationData, CollectsTheFilesOfAMergeInOrder)
{
    sdbTranslationData data;
    data.set_type(sdbTranslationMerge);
    vmrTableInstance table(nullptr);
    for (auto const name : {"a", "b"}) {
        data.set_input_file(utString(name) + ".stp");
        data.set_input_format("STEP");
        table.add_resource("vmrOptOutputUnits", name[0] == 'a' ? "mm" : "in");
        data.set_input_resource_table(table);
    }
    data.set_output_file("c.igs");
    data.set_output_format("IGES");
    data.set_output_resource_table(table);
    data.set_translation_status(sdbProgressCompleted);
    data.set_output_messages("out");
    data.set_error_messages("err");

    EXPECT_EQ(data.type(), sdbTranslationMerge);
    EXPECT_EQ(data.num_input_files(), 2);
    EXPECT_EQ(data.num_output_files(), 1);
    EXPECT_EQ(data.input_file(1), utString("b.stp"));
    EXPECT_EQ(data.input_format(0), utString("STEP"));
    EXPECT_EQ(data.input_resource_table(0).effective_value("vmrOptOutputUnits"), utString("mm"));
    EXPECT_EQ(data.input_resource_table(1).effective_value("vmrOptOutputUnits"), utString("in"));
    EXPECT_EQ(data.output_file(0), utString("c.igs"));
    EXPECT_EQ(data.output_format(0), utString("IGES"));
    EXPECT_EQ(data.output_resource_table(0).effective_value("vmrOptOutputUnits"), utString("in"));
    EXPECT_EQ(data.status(0), sdbProgressCompleted);
    EXPECT_EQ(data.output_messages(0), utString("out"));
    EXPECT_EQ(data.error_messages(0), utString("err"));
}

TEST(TranslationData, KeepsOneStatusForEachOutputOfABatch)
{
    sdbTranslationData data;
    data.set_type(sdbTranslationBatch);
    for (auto const status : {sdbProgressCompleted, sdbProgressFailed, sdbProgressCancelled})
        data.set_translation_status(status);
    EXPECT_EQ(data.status(0), sdbProgressCompleted);
    EXPECT_EQ(data.status(1), sdbProgressFailed);
    EXPECT_EQ(data.status(2), sdbProgressCancelled);
}

TEST(TranslationData, KeepsTheVerdictAndTheFindingsOfEachOutput)
{
    sdbTranslationData data;
    data.set_verdict(sdbVerdictVerified);
    data.set_findings({});
    data.set_verdict(sdbVerdictLosses);
    sdbFindings findings;
    findings.add({sdbWeightLoss, "not-translated", "Bolt", "#12", 3, 2, "One face of Bolt is lost"});
    data.set_findings(findings);
    EXPECT_EQ(data.verdict(0), sdbVerdictVerified);
    EXPECT_TRUE(data.findings(0).empty());
    EXPECT_EQ(data.verdict(1), sdbVerdictLosses);
    ASSERT_EQ(data.findings(1).kept().size(), 1u);
    EXPECT_EQ(data.findings(1).kept()[0].text, utString("One face of Bolt is lost"));
}

TEST(TranslationData, KeepsItsOwnCopyOfATable)
{
    sdbTranslationData data;
    vmrTableInstance table(nullptr);
    table.add_resource("vmrOptOutputUnits", "cm");
    data.set_output_resource_table(table);
    table.add_resource("vmrOptOutputUnits", "km");
    EXPECT_EQ(data.output_resource_table(0).effective_value("vmrOptOutputUnits"), utString("cm"));
}

TEST(TranslationData, KnowsNothingOfAnIndexThatItDoesNotHave)
{
    sdbTranslationData data;
    data.set_input_file("a");
    for (int const index : {-1, 1, 1000}) {
        EXPECT_TRUE(data.input_file(index).invalid());
        EXPECT_TRUE(data.output_messages(index).invalid());
        EXPECT_TRUE(data.input_resource_table(index).invalid());
        EXPECT_EQ(data.status(index), sdbProgressUnknown);
        EXPECT_EQ(data.verdict(index), sdbVerdictNone);
        EXPECT_TRUE(data.findings(index).empty());
    }
    EXPECT_EQ(data.type(), sdbTranslationSingle);
    EXPECT_EQ(data.num_output_files(), 0);
}

TEST(TranslationData, UsesTheNumbersThatReportsRelyOn)
{
    EXPECT_EQ(sdbProgressCompleted, 0);
    EXPECT_EQ(sdbProgressCancelled, 1);
    EXPECT_EQ(sdbProgressFailed, 2);
    EXPECT_EQ(sdbProgressUnknown, 4);
    EXPECT_EQ(sdbTranslationSingle, 1);
    EXPECT_EQ(sdbTranslationMerge, 2);
    EXPECT_EQ(sdbTranslationBatch, 3);
}
