#include "kit/kitFormat.h"
#include "pages/sglFileColumns.h"
#include "sglNlsHelp.h"
#include "sglOutputName.h"
#include "sglTranslatedFilter.h"
#include "windows/pages/kitSide.h"

#include "ap/apStringCompareInsensitive.h"
#include "ap/apStringEncodingChooser.h"
#include "nls/nlsDomainManager.h"

#include <gmock/gmock.h>
#include <wx/dcclient.h>

namespace {

class Side : public kitSideTest {};

/// Other formats for the application, as long as this lives.
class kitOtherCatalogue {
public:
    kitOtherCatalogue(kitApp & app, std::string const & folder) : m_app(app)
    {
        build(sdbSearchPath(std::vector{apPathName::from_utf8(folder)}));
    }
    ~kitOtherCatalogue() { build(m_app.file_locator().search_path(sdbHRKDirectory::translators)); }

private:
    void build(sdbSearchPath const & path)
    {
        m_app.build_translator_dlls(utString::make_invalid(), path, utString::make_invalid());
    }
    kitApp & m_app;
};

} // namespace

TEST_F(Side, IsInvalidWithNoControlAtAll)
{
    sglFileDialog nothing(nullptr, app().application_information());
    EXPECT_TRUE(nothing.invalid());
    EXPECT_TRUE(nothing.file_name().empty());
    EXPECT_TRUE(nothing.resource_file().empty());
    EXPECT_TRUE(nothing.format().empty());
    nothing.set_combo_box(m_box);
    EXPECT_FALSE(nothing.invalid());
    EXPECT_FALSE(sglFileDialog(m_frame, nullptr).invalid());
}

TEST_F(Side, HasTheCatalogueOfItsLowestBit)
{
    auto dialog = side(1);
    EXPECT_EQ(dialog.dlls(), &app().input_dlls());
    dialog.set_type(2);
    EXPECT_EQ(dialog.dlls(), &app().output_dlls());
    dialog.set_type(3);
    EXPECT_EQ(dialog.dlls(), &app().input_dlls());
}

TEST_F(Side, HasTwoColumns)
{
    side(1);
    ASSERT_EQ(m_list->GetColumnCount(), 2);
    wxListItem name, resource;
    name.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_WIDTH);
    resource.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_WIDTH);
    m_list->GetColumn(0, name);
    m_list->GetColumn(1, resource);
    EXPECT_EQ(name.GetText(), "File Name");
    EXPECT_EQ(resource.GetText(), "Resource");
    wxWindowDC dc(m_frame);
    int const alphabet = dc.GetTextExtent("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz").x;
    EXPECT_EQ(m_list->GetColumnWidth(0), sgl_file_column_width(alphabet));
    EXPECT_EQ(m_list->GetColumnWidth(1), 103);
}

TEST_F(Side, HasAWideColumnForLettersOfTenPixelsAndMore)
{
    EXPECT_EQ(sgl_file_column_width(26 * 19 - 1), 304);
    EXPECT_EQ(sgl_file_column_width(26 * 19), 441);
    EXPECT_EQ(sgl_file_column_width(26 * 40), 441);
    EXPECT_EQ(sgl_file_column_width(0), 304);
}

TEST_F(Side, ShowsAFileWithTheFormatThatItHas)
{
    auto dialog = side(1);
    m_button->Enable();
    int failed = 7;
    auto const file = step_file("part.txt");
    dialog.set_details(utString(file), failed);
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(dialog.file_name(), utString(file));
    EXPECT_EQ(dialog.format(), utString("STEP"));
    EXPECT_EQ(dialog.resource_file(), utString("step.rsc"));
    EXPECT_FALSE(m_button->IsEnabled());
    EXPECT_FALSE(dialog.nothing_selected());
    EXPECT_EQ(m_list->GetItemCount(), 1);
    dialog.set_details("/missing/other.igs", failed);
    EXPECT_EQ(m_list->GetItemCount(), 1);
    EXPECT_EQ(dialog.format(), utString("IGES"));
}

TEST_F(Side, HasNothingSelectedAfterAFileOfUnknownFormat)
{
    auto dialog = side(1);
    int failed = 7;
    dialog.set_details(utString(folder().write("notes.txt", "text")), failed);
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(dialog.format(), unknown_format());
    EXPECT_EQ(dialog.resource_file(), dialog.unknown_string());
    EXPECT_EQ(cell(1), "unknown");
    EXPECT_TRUE(dialog.nothing_selected());
}

TEST_F(Side, HasNothingSelectedWithoutResourceTextOrFormat)
{
    auto dialog = side(1);
    EXPECT_TRUE(dialog.nothing_selected());
    m_list->InsertItem(0, "part.stp");
    m_box->SetStringSelection("STEP");
    EXPECT_TRUE(dialog.nothing_selected());
    m_list->SetItem(0, 1, "step.rsc");
    EXPECT_FALSE(dialog.nothing_selected());
    m_list->SetItem(0, 0, "");
    EXPECT_FALSE(dialog.nothing_selected());
    m_box->add_and_select_unknown();
    EXPECT_TRUE(dialog.nothing_selected());
}

TEST_F(Side, WarnsOfAFileThatIsThereAndCannotBeRead)
{
    auto dialog = side(1);
    auto const file = folder() / "device";
    std::filesystem::create_symlink("/dev/null", file);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    int failed = 7;
    dialog.set_details(utString(file), failed);
    EXPECT_EQ(boxes.said().front(),
              "Warning: " + file + " exists but cannot be read. It may be in use by another program.");
    EXPECT_TRUE(boxes.styles().front() & wxICON_EXCLAMATION);
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(dialog.file_name(), utString(file));
    EXPECT_EQ(dialog.format(), unknown_format());
}

TEST_F(Side, HasTheDefaultTextWhereAFormatHasNoResourceFile)
{
    auto dialog = side(1);
    m_list->InsertItem(0, "part.x");
    dialog.set_resource_file("NOSUCH");
    EXPECT_EQ(cell(1), "Default");
    kit_install_format(folder(), "more", "ALPHA", "alpha");
    kitOtherCatalogue const other(app(), folder() / "more/lib/vmr/translators");
    ASSERT_TRUE(dialog.dlls()->translator_for_format("ALPHA"));
    dialog.set_resource_file("ALPHA");
    EXPECT_EQ(cell(1), "Default");
}

TEST_F(Side, HasTheDefaultTextForAResourceFileWithoutResources)
{
    auto dialog = side(1);
    m_list->InsertItem(0, "part.x");
    std::filesystem::create_directories(user_resources());
    std::ofstream(user_resources() + "/step.rsc") << "# nothing\n";
    dialog.set_resource_file("STEP");
    EXPECT_EQ(cell(1), "Default");
}

TEST_F(Side, SetsNoResourceTextWithoutARow)
{
    auto dialog = side(1);
    dialog.set_resource_file();
    dialog.set_resource_file("STEP");
    EXPECT_EQ(m_list->GetItemCount(), 0);
}

TEST_F(Side, TakesTheUnknownFormatOutAndPutsItBack)
{
    auto dialog = side(1);
    dialog.format_selected();
    EXPECT_EQ(m_box->FindString("unknown format"), -1);
    dialog.format_closed();
    EXPECT_EQ(dialog.format(), unknown_format());
    m_box->SetStringSelection("STEP");
    dialog.format_closed();
    EXPECT_EQ(dialog.format(), utString("STEP"));
}

TEST_F(Side, ProposesAnOutputInTheFormatOfItsBox)
{
    auto dialog = side(2);
    sglRow row;
    m_box->SetStringSelection("STL");
    EXPECT_EQ(dialog.create_output_details("STEP", "/data/part.stp", row), 1);
    EXPECT_EQ(cell(0), "/data/part.stl");
    EXPECT_EQ(cell(1), "stl.rsc");
    EXPECT_TRUE(m_button->IsEnabled());
    EXPECT_EQ(m_box->FindString("unknown format"), -1);
}

TEST_F(Side, MovesToTheDefaultOutputFormatWhereTheBoxHasThatOfTheInput)
{
    auto dialog = side(2);
    sglRow row;
    m_box->SetStringSelection("STEP");
    EXPECT_EQ(dialog.create_output_details("STEP", "/data/part.stp", row), 1);
    auto const * const step = app().input_dlls().translator_for_format("STEP");
    auto const * const proposed = app().output_dlls().default_output_format(step);
    ASSERT_TRUE(proposed);
    EXPECT_EQ(dialog.format(), proposed->format_name().ut_string());
    EXPECT_NE(dialog.format(), utString("STEP"));
}

TEST_F(Side, ShowsTheProposedFormatInTheBoxThatTheNameIsFor)
{
    utString name;
    EXPECT_EQ(outfile_name("STEP", "/data/part.stp", m_box, unknown_format(), name), 1);
    auto const * const proposed =
        app().output_dlls().default_output_format(app().input_dlls().translator_for_format("STEP"));
    ASSERT_TRUE(proposed);
    EXPECT_EQ(m_box->selected_item(), utString(proposed->format_name().ut_string()));
    EXPECT_EQ(shown(), proposed->format_name().ut_string().str());
    EXPECT_THAT(name.str(), testing::StartsWith("/data/part."));
    m_box->SetStringSelection("STL");
    EXPECT_EQ(outfile_name("STEP", "/data/part.stp", m_box, "IGES", name), 1);
    EXPECT_EQ(shown(), "STL") << "a format that was asked for is not proposed";
}

TEST_F(Side, NamesTheFiltersInTheLanguageOfTheUser)
{
    auto const * const encoding = apStringEncodingChooser::mb_encoding();
    apStringCompareInsensitive const compare{utObserverPtr<apIStringEncoding const>(encoding)};
    getNlsHelp()->set_nls_language("de");
    sglTranslatedFilter const filter(app().input_dlls().filter_elements(), encoding, &compare);
    getNlsHelp()->set_nls_language(nlsDomainManager::no_translation_language());
    EXPECT_THAT(filter.translated_filter_string().str(), testing::HasSubstr("STEP-Dateien (*.stp"));
}

TEST_F(Side, ProposesNothingForAnInputWithoutFormat)
{
    auto dialog = side(2);
    sglRow row;
    EXPECT_EQ(dialog.create_output_details(unknown_format(), "/data/part.x", row), 0);
    EXPECT_EQ(m_list->GetItemCount(), 0);
}

TEST_F(Side, ProposesTheRowAgainWhoseOptionsTheUserKeeps)
{
    auto dialog = side(2);
    sglRow row;
    m_box->SetStringSelection("STL");
    dialog.create_output_details("STEP", "/data/part.stp", row);
    ASSERT_EQ(row.initialise(dialog.dlls(), *m_box, *m_list, 0), 1);
    ASSERT_TRUE(row.resource_table().add_resource("stlWriteForm", "text"));
    m_box->SetStringSelection("IGES");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    EXPECT_EQ(dialog.create_output_details("STEP", "/data/other.stp", row), 1);
    EXPECT_EQ(cell(0), "/data/part.stl");
    EXPECT_EQ(dialog.format(), utString("STL"));
}

TEST_F(Side, RenamesTheFileOfARowWhoseFormatChanges)
{
    auto dialog = side(2);
    sglRow row;
    m_box->SetStringSelection("STL");
    dialog.create_output_details("STEP", "/data/part.stp", row);
    row.initialise(dialog.dlls(), *m_box, *m_list, 0);
    m_box->SetStringSelection("IGES");
    dialog.set_row_details(row);
    EXPECT_EQ(row.file_type(), utString("IGES"));
    EXPECT_EQ(row.filename().str(), cell(0));
    EXPECT_THAT(cell(0), testing::StartsWith("/data/part.ig"));
    EXPECT_TRUE(m_button->IsEnabled());
    m_box->add_and_select_unknown();
    dialog.set_row_details(row);
    EXPECT_EQ(row.file_type(), utString("IGES")) << "the file tells the format";
}

TEST_F(Side, DoesNothingForARowWithoutAFile)
{
    auto dialog = side(2);
    sglRow row;
    m_box->SetStringSelection("IGES");
    m_button->Disable();
    dialog.set_row_details(row);
    EXPECT_EQ(m_list->GetItemCount(), 0);
    EXPECT_FALSE(m_button->IsEnabled());
}

TEST_F(Side, AsksBeforeItsRowLosesWhatTheUserHasSet)
{
    auto dialog = side(2);
    sglRow row;
    m_box->SetStringSelection("STL");
    dialog.create_output_details("STEP", "/data/part.stp", row);
    row.initialise(dialog.dlls(), *m_box, *m_list, 0);
    ASSERT_TRUE(row.resource_table().add_resource("stlWriteForm", "text"));
    m_box->SetStringSelection("IGES");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    dialog.set_row_details(row);
    EXPECT_EQ(dialog.format(), utString("STL"));
    EXPECT_EQ(shown(), "STL");
    EXPECT_TRUE(row.resource_table().modified());

    m_box->SetStringSelection("IGES");
    boxes.expect_message(wxID_YES);
    dialog.set_row_details(row);
    EXPECT_EQ(row.file_type(), utString("IGES"));
    EXPECT_THAT(row.filename().str(), testing::StartsWith("/data/part.ig"));
    EXPECT_FALSE(row.resource_table().modified());
    EXPECT_TRUE(m_button->IsEnabled());
}

TEST_F(Side, OpensTheOptionsOfTheFormatInItsBox)
{
    auto dialog = side(2);
    vmrTableInstance table;
    {
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        EXPECT_EQ(dialog.edit_resources(table), static_cast<int>(wxID_CANCEL));
        dialog.set_type(1);
        boxes.expect_message(wxID_OK);
        EXPECT_EQ(dialog.edit_resources(table), static_cast<int>(wxID_CANCEL));
        EXPECT_THAT(boxes.said(), testing::ElementsAre("An invalid output format was detected",
                                                       "An invalid input format was detected"));
        EXPECT_TRUE(boxes.styles().front() & wxICON_ERROR);
        dialog.set_type(2);
    }
    int failed = 0;
    dialog.set_details("/data/part.stl", failed);
    table.initialise(app().installation_resource_file(*dialog.dlls()->translator_for_format("STL")));
    wxTheApp->CallAfter([] {
        wxDialog * options = nullptr;
        auto const open = [&] {
            for (wxWindow * const window : wxTopLevelWindows)
                if (window->IsShownOnScreen() && window->FindWindow(XRCID("IDC_OPTIONS_OK")))
                    options = dynamic_cast<wxDialog *>(window);
            return options && options->IsModal();
        };
        run_until(open, 20, "the dialog");
        if (options)
            press(*options, "IDC_OPTIONS_OK");
    });
    EXPECT_EQ(dialog.edit_resources(table), static_cast<int>(wxID_OK));
}

TEST_F(Side, UsesTheNumbersOfTheDialogsThatItsTextsGive)
{
    EXPECT_EQ(static_cast<int>(wxID_OK), 5100);
    EXPECT_EQ(static_cast<int>(wxID_CANCEL), 5101);
    EXPECT_EQ(static_cast<int>(wxID_NO), 5104);
    EXPECT_EQ(static_cast<int>(sglFileDialog::input), 1);
    EXPECT_EQ(static_cast<int>(sglFileDialog::output), 2);
}
