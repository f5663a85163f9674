#include "kit/kitFormat.h"
#include "sglSingleFile.h"
#include "windows/pages/kitOpenPage.h"

#include <gmock/gmock.h>
#include <wx/button.h>

namespace {

constexpr auto & ids = kit_single_page;

class SingleTranslation : public kitOpenPageTest {
protected:
    void SetUp() override
    {
        kitOpenPageTest::SetUp();
        open<sglSingleFile>(ids);
    }
};

/// Other formats for the application, for as long as this lives.
class kitFormats {
public:
    kitFormats(kitApp & app, std::string const & folder) : m_app(app)
    {
        build(sdbSearchPath(std::vector{apPathName::from_utf8(folder)}));
    }
    ~kitFormats() { build(m_app.file_locator().search_path(sdbHRKDirectory::translators)); }
    kitFormats(kitFormats const &) = delete;
    kitFormats & operator=(kitFormats const &) = delete;

private:
    void build(sdbSearchPath const & path)
    {
        m_app.build_translator_dlls(utString::make_invalid(), path, utString::make_invalid());
    }
    kitApp & m_app;
};

/// The page with a panel that is not there.
class kitNowhere : public sglSingleFile {
public:
    using sglSingleFile::sglSingleFile;

protected:
    utString resource_id() const override { return "DLG_NOWHERE"; }
};

} // namespace

TEST_F(SingleTranslation, MakesAnIgesFileOfAStepFile)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    drop({sample("step/screw.step", "screw.step")});
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
    EXPECT_GT(std::filesystem::file_size(folder() / "screw.igs"), 10'000u);
    EXPECT_EQ(input_file(), folder() / "screw.step");
    EXPECT_EQ(output_file(), folder() / "screw.igs");
    EXPECT_EQ(output_format(), "IGES");
    EXPECT_TRUE(can_translate());
}

TEST_F(SingleTranslation, AsksBeforeAProposedNameOverwritesAFile)
{
    drop({step_file("part.stp")});
    folder().write("part.igs", "precious");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    press(*m_page, ids.translate);
    ASSERT_EQ(boxes.said().size(), 1u);
    EXPECT_EQ(boxes.said()[0],
              "The file " + (folder() / "part.igs") + " already exists. Do you want to overwrite it?");
    EXPECT_EQ(folder().read("part.igs"), "precious");
    EXPECT_FALSE(progress_dialog());
    EXPECT_TRUE(can_translate());
}

TEST_F(SingleTranslation, DoesNotAskAfterAnOutputOfTheUsersOwn)
{
    folder().write("mine.igs", "old");
    browse_output(folder() / "mine.igs");
    drop({step_file("part.stp")});
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    ASSERT_EQ(boxes.said().size(), 1u);
    EXPECT_THAT(boxes.said()[0], testing::HasSubstr("Unable to read input file"));
}

TEST_F(SingleTranslation, ProposesANewNameForTheNextInput)
{
    browse_output(folder() / "mine.igs");
    drop({step_file("part.stp")});
    {
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        translate();
    }
    drop({step_file("next.stp")});
    EXPECT_EQ(output_file(), folder() / "next.igs");
}

TEST_F(SingleTranslation, SaysSoWhenTheInputHasVanished)
{
    drop({step_file("part.stp")});
    std::filesystem::remove(folder() / "part.stp");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_THAT(boxes.said()[0], testing::HasSubstr(folder() / "part.stp"));
    EXPECT_FALSE(folder().exists("part.igs"));
    EXPECT_EQ(input_file(), folder() / "part.stp");
    EXPECT_TRUE(can_translate());
}

TEST_F(SingleTranslation, NeverLosesAnInputThatIsTheOutputToo)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    auto const file = sample("step/screw.step", "screw.step");
    auto const content = kit_read_file(file);
    browse_output(file);
    drop({file});
    EXPECT_EQ(output_file(), file);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_EQ(kit_read_file(file), content);
    EXPECT_NE(last_record().status(0), sdbProgressCompleted);
    EXPECT_EQ(boxes.said()[0], "Fatal error writing to output file");
    EXPECT_THAT(last_record().error_messages(0).str(), testing::HasSubstr(file));
}

TEST_F(SingleTranslation, ShowsADroppedFolderAndLeavesTranslateOff)
{
    std::filesystem::create_directory(folder() / "parts");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({folder() / "parts"});
    EXPECT_EQ(input_file(), folder() / "parts");
    EXPECT_EQ(input_format(), unknown());
    EXPECT_EQ(output_file(), "");
    EXPECT_FALSE(can_translate());
}

TEST_F(SingleTranslation, FailsOnALinkThatLeadsNowhereAndSaysWhichOne)
{
    std::filesystem::create_symlink(folder() / "gone.stp", folder() / "link.stp");
    drop({folder() / "link.stp"});
    EXPECT_EQ(input_format(), "STEP");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_THAT(boxes.said()[0], testing::HasSubstr(folder() / "link.stp"));
    EXPECT_FALSE(folder().exists("link.igs"));
}

TEST_F(SingleTranslation, SaysSoWhenAFormatIsNotThereAnyMore)
{
    drop({step_file("part.stp")});
    kitFormats const none(app(), folder() / "none");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    press(*m_page, ids.translate);
    EXPECT_EQ(boxes.said()[0], "An invalid input format was detected");
    EXPECT_TRUE(boxes.styles()[0] & wxICON_ERROR);
    EXPECT_EQ(input_file(), folder() / "part.stp");
    EXPECT_TRUE(can_translate());
}

TEST_F(SingleTranslation, SaysSoWhenTheModuleOfAFormatHasVanished)
{
    kit_install_format(folder(), "other", "Odd", "odd");
    kitFormats const formats(app(), folder() / "other/lib/vmr/translators");
    std::filesystem::remove(folder() / "other/lib/vmr/translators/odd.so");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({folder().write("part.odd", "odd")});
    EXPECT_THAT(boxes.said()[0], testing::HasSubstr("unable to load"));
    EXPECT_EQ(input_file(), folder() / "part.odd");
    EXPECT_EQ(input_format(), unknown());
    EXPECT_FALSE(can_translate());
    EXPECT_TRUE(folder().exists("part.odd"));
}

TEST_F(SingleTranslation, IsStartedByEnterWhicheverOfItsControlsHasTheFocus)
{
    drop({step_file("part.stp")});
    m_frame->SetDefaultItem(nullptr);
    focus(*find<wxWindow>(*m_page, ids.input_browse));
    EXPECT_EQ(m_frame->GetDefaultItem(), find<wxWindow>(*m_page, ids.translate));
}

TEST_F(SingleTranslation, IsDoneWithTheKeyboardAlone)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    kitModal boxes;
    boxes.expect_file(sample("step/screw.step", "screw.step"));
    boxes.expect_file(folder() / "mine.igs");
    boxes.expect([this](wxDialog *) {
        m_frame->CallAfter([] {
            run_until([] { return find<wxWindow>(*progress_dialog(), "IDC_PROGRESS_OK")->IsEnabled(); }, 60,
                      "the end of the translation");
            key(WXK_RETURN);
        });
        return static_cast<int>(wxID_OK);
    });
    focus(*find<wxWindow>(*m_page, ids.input_list));
    key('B', wxMOD_ALT);
    run_until([&] { return input_file() == folder() / "screw.step"; }, 20, "the input");
    key('W', wxMOD_ALT);
    run_until([&] { return output_file() == folder() / "mine.igs"; }, 20, "the output");
    key('T', wxMOD_ALT);
    run_until([&] { return !progress_dialog() && folder().exists("mine.igs"); }, 60, "the output file");
}

TEST_F(SingleTranslation, IsWalkedThroughByTheTabKeyInItsOrder)
{
    drop({step_file("part.stp")});
    focus(*find<wxWindow>(*m_page, ids.input_list));
    for (char const * const next :
         {ids.input_browse, ids.input_format, ids.input_resources, ids.output_list, ids.output_browse,
          ids.output_format, ids.output_resources, ids.translate}) {
        key(WXK_TAB);
        auto * const wanted = find<wxWindow>(*m_page, next);
        run_until([&] { return wanted->HasFocus() || wanted->IsDescendant(wxWindow::FindFocus()); }, 5, next);
    }
}

TEST_F(SingleTranslation, HasAKeyForEachFormatBox)
{
    focus(*find<wxWindow>(*m_page, ids.input_browse));
    for (auto const & [letter, id] : {std::pair{'I', ids.input_format}, std::pair{'P', ids.output_format}}) {
        key(letter, wxMOD_ALT);
        auto * const wanted = find<wxWindow>(*m_page, id);
        run_until([&] { return wanted->HasFocus() || wanted->IsDescendant(wxWindow::FindFocus()); }, 5, id);
    }
}

TEST_F(SingleTranslation, IsNotThereWithoutItsPanel)
{
    wxLogNull const no_messages;
    auto page = std::make_unique<kitNowhere>(m_notebook);
    EXPECT_FALSE(page->create());
}

TEST_F(SingleTranslation, BringsItsWindowToTheFrontWhenAFileIsDropped)
{
    auto * const other = show_frame(wxSize(300, 200));
    run_until([&] { return other->IsActive(); }, 20, "the other window");
    drop({step_file("part.stp")});
    run_until([&] { return m_frame->IsActive(); }, 20, "the window of the page to come to the front");
}
