#include "screens/screens.h"
#include "sglBatchFiles.h"
#include "sglMergeFiles.h"
#include "sglSingleFile.h"
#include "sglTabDlg.h"

#include <wx/dnd.h>
#include <wx/listctrl.h>
#include <wx/notebook.h>

namespace {

class Pages : public Screens {
protected:
    void SetUp() override
    {
        Screens::SetUp();
        m_window = new sglTabDlg(nullptr, nullptr);
        m_window->Show();
        run_until([&] { return m_window->IsShownOnScreen() && m_window->IsActive(); }, 20, "the window");
    }
    void TearDown() override
    {
        app().at_end_of_main_window(nullptr);
        Screens::TearDown();
    }
    /// Brings a page of the main window to the front.
    template <class Page>
    Page * page()
    {
        for (wxWindow * const child : m_window->GetChildren())
            if (auto * const notebook = dynamic_cast<wxNotebook *>(child))
                for (size_t number = 0; number < notebook->GetPageCount(); ++number)
                    if (auto * const page = dynamic_cast<Page *>(notebook->GetPage(number))) {
                        notebook->ChangeSelection(number);
                        settle();
                        return page;
                    }
        throw std::runtime_error("no such page");
    }
    /// The picture of a page as it is at first.
    template <class Page>
    void empty_page(char const * name)
    {
        picture(*page<Page>(), name);
    }
    /// The picture of a page on whose control those files have been dropped.
    template <class Page>
    Page * page_with(char const * control, std::vector<std::string> const & files, char const * name)
    {
        auto * const page = this->page<Page>();
        wxArrayString names;
        for (auto const & file : files)
            names.Add(wxString::FromUTF8(file));
        auto * const target =
            dynamic_cast<wxFileDropTarget *>(find<wxWindow>(*page, control)->GetDropTarget());
        target->OnDropFiles(1, 1, names);
        settle();
        picture(*page, name);
        return page;
    }
    std::string step(std::string const & name) { return folder().write(name, "ISO-10303-21;\nHEADER;\n"); }

    sglTabDlg * m_window = nullptr;
};

} // namespace

TEST_F(Pages, Single)
{
    page_with<sglSingleFile>("IDC_SINGLE_INPUT_FILENAME", {step("gearbox housing.step")}, "page-single");
}

TEST_F(Pages, Merge)
{
    page_with<sglMergeFiles>("IDC_MULTIPLE_INPUT_FILENAME",
                             {step("housing.step"), step("shaft.step"), step("lid.step")}, "page-merge");
}

TEST_F(Pages, Batch)
{
    page_with<sglBatchFiles>("IDC_BATCH_BATCH_LIST",
                             {step("housing.step"), step("shaft.step"), step("lid.step")}, "page-batch");
}

TEST_F(Pages, Empty)
{
    empty_page<sglSingleFile>("page-single-empty");
    empty_page<sglMergeFiles>("page-merge-empty");
    empty_page<sglBatchFiles>("page-batch-empty");
}

TEST_F(Pages, SingleWithAFileOfUnknownFormat)
{
    page_with<sglSingleFile>("IDC_SINGLE_INPUT_FILENAME", {folder().write("notes.txt", "text")},
                             "page-single-unknown");
}

TEST_F(Pages, BatchWithASelectedLine)
{
    auto * const batch = page_with<sglBatchFiles>(
        "IDC_BATCH_BATCH_LIST", {step("housing.step"), step("shaft.step")}, "page-batch-two");
    auto * const list = find<wxListCtrl>(*batch, "IDC_BATCH_BATCH_LIST");
    list->SetItemState(1, 0, wxLIST_STATE_SELECTED);
    list->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    settle();
    picture(*batch, "page-batch-selected");
}
