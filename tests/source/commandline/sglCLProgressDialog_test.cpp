#include "sglCLProgressDialog.h"

#include "kit/kitAppTest.h"
#include "sglThreadComm.h"

#include <algorithm>
#include <sstream>
#include <wx/stopwatch.h>

namespace {

struct CommandLineProgress : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
        stream = std::make_unique<sdbOstream>(sgl_synch_operations(*app().application_information()));
        stream->add_ostream(&text);
        channel = std::make_unique<sglThreadComm>();
        dialog = std::make_unique<sglCLProgressDialog>(stream.get(), nullptr, channel.get());
    }
    void TearDown() override
    {
        dialog.reset();
        channel.reset();
        stream.reset();
        kitAppTest::TearDown();
    }

    std::ostringstream text;
    std::unique_ptr<sdbOstream> stream;
    std::unique_ptr<sglThreadComm> channel;
    std::unique_ptr<sglCLProgressDialog> dialog;
};

} // namespace

TEST_F(CommandLineProgress, WritesTheWholeRowInOneGo)
{
    EXPECT_EQ(dialog->progress(100), 1);
    std::string const row = text.str();
    EXPECT_EQ(std::count(row.begin(), row.end(), '.'), 90);
    for (auto const * figure : {"10", "20", "50", "90", "100"})
        EXPECT_NE(row.find(figure), std::string::npos) << row;
}

TEST_F(CommandLineProgress, WritesNothingWhileNothingRises)
{
    EXPECT_EQ(dialog->progress(3), 1);
    EXPECT_EQ(dialog->progress(3), 0);
    EXPECT_EQ(dialog->progress(2), 0);
    EXPECT_EQ(text.str(), "...");
}

TEST_F(CommandLineProgress, WritesADotASecondWhileNothingRises)
{
    dialog->progress(10);
    std::string const row = text.str();
    wxStopWatch watch;
    while (text.str() == row && watch.Time() < 20'000)
        EXPECT_EQ(dialog->progress(10), 0);
    EXPECT_EQ(text.str(), row + ".");
    EXPECT_GE(watch.Time(), 990);
    EXPECT_LT(watch.Time(), 2500);
    dialog->progress(10);
    EXPECT_EQ(text.str(), row + ".") << "the next one comes a second later";
}

TEST_F(CommandLineProgress, WritesTheFirstLabelOnly)
{
    dialog->operationLabel("Reading :");
    dialog->operationLabel("Writing :");
    EXPECT_EQ(text.str(), "Reading :");
}

TEST_F(CommandLineProgress, SendsOutputAndErrorsToOnePlace)
{
    std::unique_ptr<vmrnlsDisplayer> const output(dialog->output_display());
    std::unique_ptr<vmrnlsDisplayer> const error(dialog->error_display());
    output->display("one ");
    error->display("two");
    EXPECT_EQ(text.str(), "one two");
}

TEST_F(CommandLineProgress, ServesWhereADialogIsExpected)
{
    dialog->Lock();
    dialog->translation_ended_ok();
    EXPECT_EQ(dialog->DoModal(), wxID_OK);
    dialog->Lock();
    dialog->translation_error("it broke");
    EXPECT_EQ(dialog->DoModal(), wxID_CANCEL);
    EXPECT_EQ(text.str(), "it broke");
}

TEST_F(CommandLineProgress, ForgetsACancelWhenItIsReset)
{
    dialog->OnCancel();
    EXPECT_EQ(dialog->cancelled(), 1);
    dialog->reset();
    EXPECT_EQ(dialog->cancelled(), 0);
}
