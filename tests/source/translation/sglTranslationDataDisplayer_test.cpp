#include "sglTDEditDisplayer.h"
#include "sglTDOstreamDisplayer.h"
#include "sglTDTreeDisplayer.h"

#include "kit/kitFormat.h"
#include "kit/kitRecord.h"
#include "s2s/s2sBatchMarker.h"
#include "sdu/sduServices.h"

#include <gmock/gmock.h>
#include <sstream>
#include <type_traits>

namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

struct Report : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        kit_install_format(folder(), "installation", "ALPHA", "alpha");
        start();
        info().services()->find_service(sdbSDBFILEFACTORY, files);
    }

    vmrabsAppInfo const & info() { return *app().application_information(); }
    utString title(kitRecord const & record)
    {
        return sglTranslationDataDisplayer::title(&record.data, files.pointer());
    }
    std::string text(kitRecord const & record)
    {
        std::ostringstream stream;
        EXPECT_EQ(sglTDOstreamDisplayer(&record.data, &info(), &stream).display(), 1);
        return stream.str();
    }
    /// A table on a file of settings with that text.
    vmrTableInstance table(std::string const & name, std::string const & settings)
    {
        vmrTableInstance result(folder().write(name, settings).c_str());
        result.set_resource_file(name);
        return result;
    }
    static std::string approved(std::string const & name) { return kit_read_file(APPROVED_TEXTS "/" + name); }

    sduServicePtr<sdbSdbFileFactory const> files;
};

} // namespace

static_assert(!std::has_virtual_destructor_v<sglTranslationDataDisplayer>);
static_assert(!std::has_virtual_destructor_v<sglTDOstreamDisplayer>);
static_assert(std::has_virtual_destructor_v<sglTDEditDisplayer>);
static_assert(std::has_virtual_destructor_v<sglTDTreeDisplayer>);

TEST_F(Report, OfASingleTranslationHasTheApprovedText)
{
    auto input = table("alpha.rsc", "alphaGreeting = hello\n");
    input.add_resource("alphaGreeting", "good day");
    kitRecord record;
    record.input("/parts/gear box.alpha", "ALPHA", input)
        .output("/out/gear box.beta", "BETA", table("beta.rsc", ""))
        .ended(sdbProgressCompleted, "Reading the gear\r\n\r\nWriting the gear\r\n",
               "A tooth is missing\r\n");
    EXPECT_EQ(text(record), approved("single.hrklog"));
}

TEST_F(Report, OfAMergeHasTheApprovedTextWithNumberedInputsOneLevelDeeper)
{
    kitRecord record(sdbTranslationMerge);
    record.input("/parts/a.alpha", "ALPHA", table("alpha.rsc", ""))
        .input("/parts/b.beta", "BETA", table("beta.rsc", ""))
        .output("/out/all.beta", "BETA", table("beta.rsc", ""))
        .ended(sdbProgressFailed, "", "b.beta is damaged");
    EXPECT_EQ(text(record), approved("merge.hrklog"));
}

TEST_F(Report, OfABatchHasTheApprovedTextWithNumberedHeadersAndAStatusForEachEntry)
{
    kitRecord record(sdbTranslationBatch);
    for (auto const name : {"a", "b", "c", "d"})
        record.input(utString("/parts/") + name + ".alpha", "ALPHA", table("alpha.rsc", ""))
            .output(utString("/out/") + name + ".beta", "BETA", table("beta.rsc", ""));
    record.ended(sdbProgressCompleted, "a is done")
        .ended(sdbProgressFailed, "b is begun", "b is damaged")
        .ended(sdbProgressCancelled)
        .ended(sdbProgressUnknown);
    EXPECT_EQ(text(record), approved("batch.hrklog"));
    EXPECT_THAT(text(record), HasSubstr("\n  " + s2s_batch_marker().str() + "\n"));
}

TEST_F(Report, OfAViewerHasTheImportTitleAndNoOutputInAnyCaseOfLettersAndOfAnyType)
{
    for (auto const type : {sdbTranslationSingle, sdbTranslationMerge, sdbTranslationBatch})
        for (auto const format : {"viewer", "Viewer", "VIEWER"}) {
            kitRecord record(type);
            record.input("/parts/gear.alpha", "ALPHA").output("", format).ended(sdbProgressCompleted);
            EXPECT_EQ(title(record), utString("Import : gear.alpha"));
            EXPECT_THAT(text(record), StartsWith("Import : gear.alpha\n"));
            EXPECT_THAT(text(record), Not(HasSubstr("Exported")));
            EXPECT_THAT(text(record), Not(HasSubstr("Output File")));
        }
}

TEST_F(Report, TitlesGiveFileNamesWithoutTheirFolders)
{
    kitRecord single;
    single.input("/a/b.c/in.v2.alpha", "ALPHA").output("out.beta", "BETA");
    EXPECT_EQ(title(single), utString("Translation of in.v2.alpha to out.beta"));
    kitRecord merge(sdbTranslationMerge);
    merge.output("/x/all.beta", "BETA");
    EXPECT_EQ(title(merge), utString("Multiple files exported to all.beta"));
    EXPECT_EQ(title(kitRecord(sdbTranslationBatch)), utString("Batch Translation"));
}

TEST_F(Report, OfACancelledTranslationHasNoMessageBlocks)
{
    kitRecord record;
    record.input("a.alpha", "ALPHA").output("b.beta", "BETA").ended(sdbProgressCancelled);
    EXPECT_THAT(text(record), HasSubstr("\n  Translation Status : Cancelled\n"));
    EXPECT_THAT(text(record), Not(HasSubstr("Messages")));
}

TEST_F(Report, OfARecordWithoutOutputsIsItsTitle)
{
    EXPECT_EQ(text(kitRecord(sdbTranslationBatch).input("a.alpha", "ALPHA")), "Batch Translation\n");
}

TEST_F(Report, ShowsNoOptionThatEqualsItsDefaultOrThatTheDefaultsDoNotHold)
{
    auto options = table("alpha.rsc", "alphaGreeting = hello\n");
    options.table()->set_value("alphaGreeting", "hello");
    options.table()->set_value("alphaUnheardOf", "anything");
    options.table()->set_value("ALPHAGREETING", "loud");
    kitRecord record;
    record.input("a.alpha", "ALPHA", options).output("b.beta", "BETA").ended(sdbProgressCompleted);
    EXPECT_THAT(text(record), Not(HasSubstr("Overridden")));
    EXPECT_THAT(text(record), Not(HasSubstr("alphaUnheardOf")));
    EXPECT_THAT(text(record), Not(HasSubstr("loud")));
}

TEST_F(Report, TakesOnlyACarriageReturnWithALineFeedForTheEndOfAPiece)
{
    kitRecord record;
    record.input("a.alpha", "ALPHA").output("b.beta", "BETA").ended(sdbProgressCompleted, "one\ntwo\rthree");
    EXPECT_THAT(text(record), HasSubstr("\n  Output Messages :\n    one\ntwo\rthree\n"));
}

TEST_F(Report, GoesOnAtTheDepthWhereItEndedWhenShownAgain)
{
    kitRecord const record(sdbTranslationBatch);
    std::ostringstream stream;
    sglTDOstreamDisplayer displayer(&record.data, &info(), &stream);
    displayer.display();
    displayer.display();
    EXPECT_EQ(stream.str(), "Batch Translation\n  Batch Translation\n");
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace {

class SignedReport : public sglTDOstreamDisplayer {
public:
    using sglTDOstreamDisplayer::sglTDOstreamDisplayer;
    void sign() { indent_and_display("signed"); }
};

} // namespace

#pragma GCC diagnostic pop

TEST_F(Report, CanHaveLinesOfAnApplicationsOwn)
{
    kitRecord const record(sdbTranslationBatch);
    std::ostringstream stream;
    SignedReport displayer(&record.data, &info(), &stream);
    displayer.display();
    displayer.sign();
    EXPECT_EQ(stream.str(), "Batch Translation\n  signed\n");
}
