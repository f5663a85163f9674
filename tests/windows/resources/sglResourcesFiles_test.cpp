#include "windows/resources/kitResources.h"

#include "windows/kit/kitFileChooser.h"

#include <csignal>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <wx/filedlg.h>
#include <wx/listbox.h>
#include <wx/treectrl.h>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ResourceFiles : public kitResourcesTest {
protected:
    /// Shows the options of the caller's table and runs the script in the dialog; no box may come that the
    /// script does not expect.
    void in_dialog(std::function<void(kitResources &)> const & script)
    {
        kitModal const no_boxes;
        kitResources dialog(m_table, m_frame, m_step);
        show(dialog, [&] { script(dialog); });
    }
    static void apply(kitResources & dialog, char const * label)
    {
        toggle(dialog, label);
        press(dialog, "IDC_OPTIONS_APPLY");
    }
    /// Chooses a command and gives what the user is asked and told, with these answers.
    static std::vector<std::string> choose(kitResources & dialog, char const * command,
                                           std::vector<int> const & answers = {})
    {
        kitModal boxes;
        for (int const answer : answers)
            boxes.expect_message(answer);
        choose_menu(dialog, command);
        return boxes.said();
    }
    /// The same with a command that asks for a file first.
    static std::vector<std::string> choose_file(kitResources & dialog, char const * command,
                                                std::string const & path,
                                                std::vector<int> const & answers = {})
    {
        kitModal boxes;
        boxes.expect_file(path);
        for (int const answer : answers)
            boxes.expect_message(answer);
        choose_menu(dialog, command);
        return boxes.said();
    }
    /// Chooses to export and presses a button of the dialog for that once it is there.
    static void export_to(kitResources & dialog, char const * button)
    {
        dialog.CallAfter([button] {
            for (wxWindow * const window : wxTopLevelWindows)
                if (auto * const pressed = window->FindWindow(wxXmlResource::GetXRCID(button))) {
                    wxCommandEvent event(wxEVT_BUTTON, pressed->GetId());
                    pressed->ProcessWindowEvent(event);
                    return;
                }
            ADD_FAILURE() << "no export dialog";
        });
        choose_menu(dialog, "IDM_OPTIONS_EXPORT_TO");
    }
    static void write_users(std::string const & name, std::string const & content)
    {
        std::filesystem::create_directories(user_resources());
        std::ofstream(user_resources() + "/" + name) << content;
    }
};

/// No file can grow beyond so many bytes while one lives, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit const limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(FullDisk const &) = delete;
    FullDisk & operator=(FullDisk const &) = delete;

private:
    rlimit m_before{};
};

char const question[] = "Warning : This will affect any future translations involving this format.\n"
                        "Do you want to continue ?";

} // namespace

TEST_F(ResourceFiles, SavedOverTheInstallationFileBecomeTheUsersCopy)
{
    auto const before = read(installed());
    kitResources dialog(m_table, m_frame, m_step);
    show(dialog, [&] {
        apply(dialog, "Names");
        EXPECT_THAT(choose(dialog, "IDM_OPTIONS_SAVE", {wxID_YES}), ElementsAre(question));
    });
    EXPECT_EQ(read(installed()), before);
    EXPECT_EQ(value_in(utString(user_copy()), "stepWriteNames"), "false");
    EXPECT_EQ(value_in(utString(user_copy()), "stepWriteSchema"), "AP214") << "the set is complete";
    EXPECT_EQ(dialog.working_table().resource_file(), utString(user_copy()));
    EXPECT_EQ(app().rsc_dir(m_step->resource_file_name()), utString(user_copy()));
}

TEST_F(ResourceFiles, AreNotSavedWhenTheUsersDirectoryCannotBeMade)
{
    std::filesystem::create_directories(user_folder());
    std::ofstream(user_resources()) << "a file in its place";
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        choose_menu(dialog, "IDM_OPTIONS_SAVE");
        EXPECT_EQ(boxes.said(), std::vector<std::string>{"Unable to create directory " + user_resources() +
                                                         ".\nPlease check your user permissions."});
        EXPECT_TRUE(boxes.styles()[0] & wxICON_WARNING);
        EXPECT_FALSE(save_is_enabled(dialog));
        EXPECT_EQ(value(dialog.working_table(), "stepWriteNames"), "false");
    });
}

TEST_F(ResourceFiles, AreSavedAsANewFileWithoutAQuestionAndTheDialogStaysOnTheOld)
{
    auto const target = folder() / "mine.rsc";
    kitResources dialog(m_table, m_frame, m_step);
    show(dialog, [&] {
        apply(dialog, "Names");
        toggle(dialog, "Colours"); // not applied yet
        EXPECT_THAT(choose_file(dialog, "IDM_OPTIONS_SAVE_AS", target), IsEmpty());
        EXPECT_FALSE(check_box(dialog, "Colours")->GetValue());
        EXPECT_EQ(dialog.GetTitle(), "Output Resources - step.rsc");
        EXPECT_EQ(dialog.working_table().resource_file(), installed());
        EXPECT_TRUE(save_is_enabled(dialog));
    });
    EXPECT_EQ(value_in(utString(target), "stepWriteNames"), "false");
    EXPECT_EQ(value_in(utString(target), "stepWriteColours"), "false");
    EXPECT_TRUE(std::filesystem::is_directory(user_resources())) << "made for the dialog to begin in";
}

TEST_F(ResourceFiles, AreSavedWithWhatIsTypedAtThatMoment)
{
    for (char const * const command : {"IDM_OPTIONS_SAVE_AS", "IDM_OPTIONS_SAVE"}) {
        auto const target = folder() / "mine.rsc";
        folder().write("mine.rsc", "stepWriteNames = true\n");
        m_table.initialise(utString(target));
        in_dialog([&](kitResources & dialog) {
            apply(dialog, "Names");
            auto & field = *edit_box(dialog, "Author");
            focus(field);
            field.ChangeValue("a user"); // and the field keeps the focus
            if (std::string(command) == "IDM_OPTIONS_SAVE")
                choose_menu(dialog, command);
            else
                choose_file(dialog, command, target);
            EXPECT_EQ(field.GetValue(), "a user");
        });
        EXPECT_EQ(value_in(utString(target), "stepWriteAuthor"), "a user") << command;
    }
}

TEST_F(ResourceFiles, CanBeSavedInTheFileInUseOnceTheyWereSavedElsewhereFromTheScreen)
{
    in_dialog([&](kitResources & dialog) {
        choose_file(dialog, "IDM_OPTIONS_SAVE_AS", folder() / "as-it-is.rsc");
        EXPECT_FALSE(save_is_enabled(dialog)) << "nothing differs from the file in use";
        toggle(dialog, "Names");
        choose_file(dialog, "IDM_OPTIONS_SAVE_AS", folder() / "mine.rsc");
        EXPECT_TRUE(save_is_enabled(dialog));
    });
}

TEST_F(ResourceFiles, AreSavedOverAFormatsDefaultFileAfterAQuestionOnly)
{
    write_users("step.rsc", "stepWriteNames = true\n");
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        EXPECT_THAT(choose_file(dialog, "IDM_OPTIONS_SAVE_AS", user_copy(), {wxID_NO}),
                    ElementsAre(question));
        EXPECT_EQ(read(utString(user_copy())), "stepWriteNames = true\n");
        EXPECT_THAT(choose_file(dialog, "IDM_OPTIONS_SAVE_AS", user_copy(), {wxID_YES}),
                    ElementsAre(question));
    });
    EXPECT_EQ(value_in(utString(user_copy()), "stepWriteNames"), "false");
}

TEST_F(ResourceFiles, OfTheNameOfADefaultFileAreNotMadeWhenTheAnswerIsNo)
{
    std::filesystem::create_directories(user_resources());
    kitResources dialog(m_table, m_step);
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    dialog.Save(utString(user_copy()));
    EXPECT_EQ(boxes.said(), std::vector<std::string>{question});
    EXPECT_TRUE(std::filesystem::is_empty(user_resources()));
}

TEST_F(ResourceFiles, ThatCannotBeWrittenAreNotMade)
{
    auto const target = folder() / "mine.rsc";
    kitResources dialog(m_table, m_step);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    {
        FullDisk const full(8);
        dialog.Save(utString(target));
    }
    EXPECT_EQ(folder().count(), 0);
}

TEST_F(ResourceFiles, AreDefaultFilesWhateverLinkLeadsToThem)
{
    kitResources const dialog(m_table, m_step);
    auto const link = folder() / "link.rsc";
    std::filesystem::create_symlink(installed().str(), link);
    EXPECT_TRUE(dialog.is_default_rsc_file(installed()));
    EXPECT_TRUE(dialog.is_default_rsc_file(utString(link)));
    EXPECT_FALSE(dialog.is_default_rsc_file(utString(folder().write("other.rsc", ""))));
    EXPECT_FALSE(dialog.is_default_rsc_file(utString(folder() / "not-there.rsc")));
}

TEST_F(ResourceFiles, AreLoadedWithoutAQuestionWhenNothingWasApplied)
{
    auto const custom = folder().write("custom.rsc", "stepWriteColours = false\n");
    in_dialog([&](kitResources & dialog) {
        toggle(dialog, "Names");
        EXPECT_THAT(choose_file(dialog, "IDM_OPTIONS_LOAD_CUSTOM", custom), IsEmpty());
        EXPECT_TRUE(check_box(dialog, "Names")->GetValue()) << "the edit is gone";
        EXPECT_FALSE(check_box(dialog, "Colours")->GetValue());
        EXPECT_EQ(dialog.GetTitle(), "Output Resources - " + wxString(custom));
        press(dialog, "IDC_OPTIONS_OK");
    });
    EXPECT_EQ(m_table.resource_file(), utString(custom));
    EXPECT_EQ(value(m_table, "stepWriteColours"), "false");
}

TEST_F(ResourceFiles, AreLoadedOverAppliedChangesAfterAQuestionOnly)
{
    auto const custom = folder().write("custom.rsc", "stepWriteColours = false\n");
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        char const lose[] = "Some resource values have been altered. Is it ok to lose these changes?";
        EXPECT_THAT(choose_file(dialog, "IDM_OPTIONS_LOAD_CUSTOM", custom, {wxID_NO}), ElementsAre(lose));
        EXPECT_EQ(dialog.working_table().resource_file(), installed());
        EXPECT_THAT(choose_file(dialog, "IDM_OPTIONS_LOAD_CUSTOM", custom, {wxID_YES}), ElementsAre(lose));
        EXPECT_EQ(dialog.working_table().resource_file(), utString(custom));
        EXPECT_EQ(value(dialog.working_table(), "stepWriteNames"), "true");
    });
}

TEST_F(ResourceFiles, StayAsTheyAreWhenTheFileDialogIsCancelled)
{
    in_dialog([&](kitResources & dialog) {
        kitModal boxes;
        boxes.expect_file_cancelled();
        choose_menu(dialog, "IDM_OPTIONS_LOAD_CUSTOM");
        boxes.expect_file_cancelled();
        choose_menu(dialog, "IDM_OPTIONS_SAVE_AS");
        EXPECT_EQ(dialog.working_table().resource_file(), installed());
    });
}

TEST_F(ResourceFiles, OfTheFormatAreLoadedFromTheUsersCopyBeforeTheInstallation)
{
    write_users("step.rsc", "stepWriteNames = false\n");
    in_dialog([&](kitResources & dialog) {
        choose_menu(dialog, "IDM_OPTIONS_LOAD_DEFAULT");
        EXPECT_EQ(dialog.working_table().resource_file(), utString(user_copy()));
        EXPECT_FALSE(check_box(dialog, "Names")->GetValue());
        EXPECT_EQ(dialog.GetTitle(), "Output Resources - " + wxString(user_copy()));
    });
    EXPECT_EQ(value(m_table, "stepWriteNames"), "true");
}

TEST_F(ResourceFiles, AreGoneBackToWhenChangesAreScrapped)
{
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        toggle(dialog, "Colours");
        choose_menu(dialog, "IDM_OPTIONS_SCRAP_CHANGES");
        EXPECT_TRUE(check_box(dialog, "Names")->GetValue());
        EXPECT_TRUE(check_box(dialog, "Colours")->GetValue());
        EXPECT_FALSE(dialog.working_table().modified());
        EXPECT_TRUE(dialog.IsModal()) << "no button of the dialog was pressed";
        EXPECT_TRUE(save_is_enabled(dialog)) << "Scrap Changes leaves it";
    });
}

TEST_F(ResourceFiles, OfTheUserAreRemovedByAFactoryResetAndTheCallerHasIt)
{
    write_users("step.rsc", "stepWriteNames = false\n");
    m_table.initialise(utString(user_copy()));
    kitResources dialog(m_table, m_frame, m_step);
    EXPECT_EQ(
        show(dialog,
             [&] {
                 EXPECT_THAT(choose(dialog, "IDM_OPTIONS_FACTORY_RESET", {wxID_NO}), ElementsAre(question));
                 EXPECT_TRUE(std::filesystem::exists(user_copy()));
                 EXPECT_THAT(choose(dialog, "IDM_OPTIONS_FACTORY_RESET", {wxID_YES}), ElementsAre(question));
                 EXPECT_TRUE(check_box(dialog, "Names")->GetValue());
                 EXPECT_EQ(dialog.GetTitle(), "Output Resources - " + wxString(installed().c_str()));
             }),
        wxID_CANCEL);
    EXPECT_FALSE(std::filesystem::exists(user_copy()));
    EXPECT_EQ(m_table.resource_file(), installed());
    EXPECT_EQ(value(m_table, "stepWriteNames"), "true");
}

TEST_F(ResourceFiles, OfTheUsersOwnNameStayAfterAFactoryReset)
{
    write_users("machine shop.rsc", "stepWriteNames = false\n");
    write_users("step.rsc", "stepWriteColours = false\n");
    utString const preset(user_resources() + "/machine shop.rsc");
    m_table.initialise(preset);
    kitResources dialog(m_table, m_step);
    EXPECT_EQ(dialog.do_on_factory_settings(), 0);
    EXPECT_EQ(m_table.resource_file(), installed());
    EXPECT_EQ(read(preset), "stepWriteNames = false\n");
    EXPECT_EQ(read(utString(user_copy())), "stepWriteColours = false\n");
}

TEST_F(ResourceFiles, ThatWereLeftEmptyGoWithAFactoryReset)
{
    write_users("step.rsc", "");
    write_users("Default", "stepWriteNames = false\n");
    m_table.initialise(utString(user_resources() + "/Default")); // what a page finds instead
    kitResources dialog(m_table, m_step);
    EXPECT_EQ(dialog.do_on_factory_settings(), 0);
    EXPECT_TRUE(std::filesystem::is_empty(user_resources()));
    EXPECT_EQ(app().rsc_dir(m_step->resource_file_name()), installed());
}

TEST_F(ResourceFiles, ElsewhereStayAfterAFactoryReset)
{
    auto const custom = folder().write("step.rsc", "stepWriteNames = false\n");
    m_table.initialise(utString(custom));
    kitResources dialog(m_table, m_step);
    EXPECT_EQ(dialog.do_on_factory_settings(), 0);
    EXPECT_TRUE(std::filesystem::exists(custom));
    EXPECT_EQ(value(m_table, "stepWriteNames"), "true");
}

TEST_F(ResourceFiles, CanBeSavedOnceSomethingWasAppliedAndNotAgainAfterwards)
{
    in_dialog([&](kitResources & dialog) {
        EXPECT_FALSE(save_is_enabled(dialog));
        toggle(dialog, "Names");
        EXPECT_FALSE(save_is_enabled(dialog));
        press(dialog, "IDC_OPTIONS_APPLY");
        EXPECT_TRUE(save_is_enabled(dialog));
        EXPECT_THAT(choose(dialog, "IDM_OPTIONS_SAVE", {wxID_YES}), ElementsAre(question));
        EXPECT_FALSE(save_is_enabled(dialog));
    });
}

TEST_F(ResourceFiles, AreOverlaidByAnExportSystem)
{
    write_users("export_overrides.txt",
                "Milling\nstepWriteColours False\nstlWriteForm text\nnoSuchResource 1\n#\n");
    // A translator of another format has been used in this run, and its options are known.
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    app().output_dlls().translator_for_format("STL")->load(status);
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        toggle(dialog, "Layers");
        EXPECT_TRUE(save_is_enabled(dialog));
        export_to(dialog, "IDC_EXPORTTO_OK");
        EXPECT_FALSE(check_box(dialog, "Names")->GetValue()) << "an override of before stays";
        EXPECT_FALSE(check_box(dialog, "Colours")->GetValue());
        EXPECT_TRUE(check_box(dialog, "Layers")->GetValue()) << "an edit that was not applied is lost";
        EXPECT_TRUE(has_override(dialog.working_table(), "stepWriteColours"));
        EXPECT_FALSE(has_override(dialog.working_table(), "noSuchResource"));
        EXPECT_FALSE(has_override(dialog.working_table(), "stlWriteForm"));
        press(dialog, "IDC_OPTIONS_OK");
    });
    EXPECT_EQ(value(m_table, "stepWriteColours"), "false");
    EXPECT_EQ(value_in(installed(), "stepWriteColours"), "true") << "nothing is written";
}

TEST_F(ResourceFiles, CanBeSavedAfterAnExportSystemWithoutOverridesToo)
{
    write_users("export_overrides.txt", "As it is\n#\n");
    in_dialog([&](kitResources & dialog) {
        export_to(dialog, "IDC_EXPORTTO_CANCEL");
        EXPECT_FALSE(save_is_enabled(dialog));
        export_to(dialog, "IDC_EXPORTTO_OK");
        EXPECT_TRUE(save_is_enabled(dialog));
        EXPECT_FALSE(dialog.working_table().modified());
    });
}

TEST_F(ResourceFiles, StayWhenThereIsNoExportSystemToBeHad)
{
    write_users("export_overrides.txt", "# no name\n");
    in_dialog([&](kitResources & dialog) {
        EXPECT_THAT(choose(dialog, "IDM_OPTIONS_EXPORT_TO", {wxID_OK}),
                    ElementsAre("Error : Unable to read export options file."));
    });
}

TEST_F(ResourceFiles, ThatAreCutOffOrHoldNonsenseAreUsedAsFarAsTheyGo)
{
    auto const custom =
        folder().write("custom.rsc", "stepWriteNames = false\nnoSuchResource = 7\n"
                                     "stepWritePrecision = much\n\x01\xFFrubbish\nstepWriteCol");
    in_dialog([&](kitResources & dialog) {
        kitModal boxes;
        boxes.expect_file(custom);
        boxes.expect_message(wxID_OK);
        choose_menu(dialog, "IDM_OPTIONS_LOAD_CUSTOM");
        auto const said = boxes.said().at(0);
        for (char const * line : {"3", "4", "5"}) // the value that is none, the rubbish and the cut
            EXPECT_THAT(said, HasSubstr(custom + ", line " + line + ": "));
        EXPECT_THAT(said, testing::Not(HasSubstr(custom + ", line 2:"))) << "another translator's perhaps";
        EXPECT_TRUE(boxes.styles()[0] & wxICON_HAND);
        EXPECT_FALSE(check_box(dialog, "Names")->GetValue());
        EXPECT_EQ(value(dialog.working_table(), "stepWritePrecision"), "0.0001");
        EXPECT_EQ(value(dialog.working_table(), "stepWriteColours"), "true");
    });
}

TEST_F(ResourceFiles, KeepTheValuesOfTranslatorsThatAreNotLoaded)
{
    auto const custom = folder().write("custom.rsc", "otherOption = 7\nstepWriteNames = false\n");
    kitResources dialog(m_table, m_step);
    dialog.Load(utString(custom));
    utString const target(folder() / "copy.rsc");
    dialog.Save(target);
    EXPECT_EQ(value_in(target, "otherOption"), "7");
    EXPECT_EQ(value_in(target, "stepWriteNames"), "false");
}

TEST_F(ResourceFiles, ThatCannotBeWrittenStayAndTheChangesToo)
{
    auto const custom = folder().write("custom.rsc", "stepWriteNames = true\n");
    m_table.initialise(utString(custom));
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        // A directory has taken the place of the file while the dialog was open.
        std::filesystem::remove(custom);
        std::filesystem::create_directory(custom);
        EXPECT_THAT(choose(dialog, "IDM_OPTIONS_SAVE", {wxID_OK}),
                    ElementsAre("The file " + custom + " could not be written."));
        EXPECT_EQ(value(dialog.working_table(), "stepWriteNames"), "false");
    });
    EXPECT_TRUE(std::filesystem::is_directory(custom));
}

TEST_F(ResourceFiles, ReplacedWhileTheDialogIsOpenAreSavedWithWhatTheDialogShows)
{
    auto const custom = folder().write("custom.rsc", "stepWriteNames = true\nstepWriteColours = true\n");
    m_table.initialise(utString(custom));
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        folder().write("custom.rsc", "stepWriteColours = false\n");
        choose_menu(dialog, "IDM_OPTIONS_SAVE");
        EXPECT_TRUE(check_box(dialog, "Colours")->GetValue());
    });
    EXPECT_EQ(value_in(utString(custom), "stepWriteNames"), "false");
    EXPECT_EQ(value_in(utString(custom), "stepWriteColours"), "true");
}

TEST_F(ResourceFiles, ThatNameAFewResourcesOnlyHideNoPageWhenTheDialogIsOpenedAgain)
{
    auto const custom = folder().write("custom.rsc", "stepWriteNames = false\n");
    auto const pages = [&](std::function<void(kitResources &)> const & script) {
        unsigned count = 0;
        in_dialog([&](kitResources & dialog) {
            count = find<wxTreeCtrl>(dialog, "IDC_OPTIONS_TREE")->GetCount();
            script(dialog);
        });
        return count;
    };
    auto const before = pages([&](kitResources & dialog) {
        choose_file(dialog, "IDM_OPTIONS_LOAD_CUSTOM", custom);
        press(dialog, "IDC_OPTIONS_OK");
    });
    EXPECT_EQ(m_table.default_table()->count(), 1);
    EXPECT_EQ(pages([&](kitResources & dialog) {
                  EXPECT_FALSE(check_box(dialog, "Names")->GetValue());
                  EXPECT_TRUE(check_box(dialog, "Colours")->GetValue());
              }),
              before);
    EXPECT_EQ(m_table.default_table()->count(), 1) << "the caller's table is as it was";
    EXPECT_FALSE(m_table.modified());
    EXPECT_TRUE(m_table.is_as_loaded() || !vmrTableInstance(custom.c_str()).is_as_loaded());
}

TEST_F(ResourceFiles, AreAskedForUnderACaptionAndByTheirExtension)
{
    std::vector<long> styles;
    auto const look = [&](wxDialog * box) {
        auto & files = dynamic_cast<wxFileDialog &>(*box);
        kitFileChooser const below(files);
        EXPECT_EQ(files.GetMessage(), "Resource File");
        EXPECT_THAT(below.labels(), ElementsAre("Resource Files (*.rsc)"));
        EXPECT_TRUE(below.shows(0, "mine.rsc"));
        EXPECT_TRUE(below.shows(0, "MINE.RSC"));
        EXPECT_FALSE(below.shows(0, "mine.txt"));
        EXPECT_EQ(files.GetDirectory().utf8_string(), user_resources());
        EXPECT_EQ(files.GetFilename(), "");
        styles.push_back(files.GetWindowStyle() &
                         (wxFD_OPEN | wxFD_SAVE | wxFD_FILE_MUST_EXIST | wxFD_OVERWRITE_PROMPT));
        return static_cast<int>(wxID_CANCEL);
    };
    std::filesystem::create_directories(user_resources());
    in_dialog([&](kitResources & dialog) {
        kitModal boxes;
        boxes.expect(look);
        boxes.expect(look);
        choose_menu(dialog, "IDM_OPTIONS_LOAD_CUSTOM");
        choose_menu(dialog, "IDM_OPTIONS_SAVE_AS");
    });
    EXPECT_THAT(styles, ElementsAre(17, 6));
}

TEST_F(ResourceFiles, HaveTheirExtensionEvenIfNobodyTypesIt)
{
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        choose_file(dialog, "IDM_OPTIONS_SAVE_AS", folder() / "mine");
    });
    EXPECT_FALSE(std::filesystem::exists(folder() / "mine"));
    EXPECT_EQ(value_in(utString(folder() / "mine.rsc"), "stepWriteNames"), "false");
}

TEST_F(ResourceFiles, OfAnyBytesAreLoadedAndShownInTheTitle)
{
    utString const custom(folder().write("part \xff.rsc", "stepWriteNames = false\n"));
    in_dialog([&](kitResources & dialog) {
        dialog.Load(custom);
        EXPECT_TRUE(dialog.GetTitle().EndsWith(wxString(L"/part \xFFFD.rsc"))) << dialog.GetTitle();
        press(dialog, "IDC_OPTIONS_OK");
    });
    EXPECT_EQ(m_table.resource_file(), custom);
    in_dialog([&](kitResources & again) {
        EXPECT_EQ(again.GetTitle(), wxString(L"Output Resources - part \xFFFD.rsc"));
        EXPECT_FALSE(check_box(again, "Names")->GetValue());
    });
}

TEST_F(ResourceFiles, OfNoInstallationAreNotResetTo)
{
    auto const module = std::make_shared<sdbTranslatorModule>();
    sdbFormatDeclaration format;
    format.name = "NOWHERE";
    format.resource_file = "nowhere.rsc";
    sdbTranslatorInfo const info(module, format, 0, nullptr);
    utString const custom(folder().write("custom.rsc", "stepWriteNames = false\n"));
    m_table.initialise(custom);
    kitResources dialog(m_table, m_frame, &info);
    EXPECT_EQ(dialog.do_on_factory_settings(), 1);
    show(dialog, [&] {
        kitModal boxes;
        boxes.expect_message(wxID_YES);
        boxes.expect_message(wxID_OK);
        choose_menu(dialog, "IDM_OPTIONS_FACTORY_RESET");
        EXPECT_THAT(
            boxes.said(),
            ElementsAre(question, "The file custom.rsc does not appear to be a default resource file\n"));
        EXPECT_TRUE(boxes.styles()[1] & wxICON_ERROR);
    });
    EXPECT_EQ(m_table.resource_file(), custom);
    EXPECT_TRUE(std::filesystem::exists(custom.str()));
}

TEST_F(ResourceFiles, AreReadAgainWithAnExportSystemWithoutOverrides)
{
    write_users("export_overrides.txt", "As it is\n#\n");
    auto const custom = folder().write("custom.rsc", "stepWriteNames = true\nstepWriteColours = true\n");
    m_table.initialise(utString(custom));
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        folder().write("custom.rsc", "stepWriteNames = true\nstepWriteColours = false\n");
        export_to(dialog, "IDC_EXPORTTO_OK");
        EXPECT_FALSE(check_box(dialog, "Colours")->GetValue()) << "as the file says now";
        EXPECT_FALSE(check_box(dialog, "Names")->GetValue()) << "an override of before stays";
    });
}

TEST_F(ResourceFiles, SavedElsewhereLeaveTheirValuesToWhatComesAfter)
{
    write_users("export_overrides.txt", "Milling\nstepWriteColours False\n#\n");
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        choose_file(dialog, "IDM_OPTIONS_SAVE_AS", folder() / "mine.rsc");
        EXPECT_FALSE(check_box(dialog, "Names")->GetValue());
        export_to(dialog, "IDC_EXPORTTO_OK");
        EXPECT_FALSE(check_box(dialog, "Names")->GetValue());
        EXPECT_FALSE(check_box(dialog, "Colours")->GetValue());
        choose_menu(dialog, "IDM_OPTIONS_SCRAP_CHANGES");
        EXPECT_TRUE(check_box(dialog, "Names")->GetValue()) << "the file that is in use says so";
    });
}

TEST_F(ResourceFiles, StayAsTheyWereWhenTheDiskIsFullHalfWay)
{
    std::string const before = "stepWriteNames = true\n";
    auto const custom = folder().write("custom.rsc", before);
    m_table.initialise(utString(custom));
    in_dialog([&](kitResources & dialog) {
        apply(dialog, "Names");
        {
            FullDisk const full(8);
            EXPECT_THAT(choose(dialog, "IDM_OPTIONS_SAVE", {wxID_OK}),
                        ElementsAre("The file " + custom + " could not be written."));
        }
        EXPECT_EQ(value(dialog.working_table(), "stepWriteNames"), "false");
    });
    EXPECT_EQ(read(utString(custom)), before);
    EXPECT_EQ(folder().count(), 1) << "nothing is left beside it";
}

TEST_F(ResourceFiles, ThatAreGoneWhenTheyAreLoadedAreToldByName)
{
    auto const gone = folder() / "gone.rsc";
    std::filesystem::create_directory(gone);
    in_dialog([&](kitResources & dialog) {
        EXPECT_THAT(choose_file(dialog, "IDM_OPTIONS_LOAD_CUSTOM", gone, {wxID_OK}),
                    ElementsAre(HasSubstr(gone + " could not be read.")));
        EXPECT_EQ(dialog.working_table().resource_file(), installed());
    });
}
