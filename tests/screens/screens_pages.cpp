#include "screens/screens.h"
#include "sglBatchFiles.h"
#include "sglMergeFiles.h"
#include "sglSingleFile.h"

#include <wx/dnd.h>
#include <wx/listbox.h>
#include <wx/notebook.h>

namespace {

class Pages : public Screens {
protected:
    void SetUp() override
    {
        Screens::SetUp();
        frame()->SetClientSize(frame()->ConvertDialogToPixels(wxSize(450, 340)));
        m_notebook = new wxNotebook(frame(), wxID_ANY, wxPoint(), frame()->GetClientSize());
    }
    template <class Page>
    Page * page()
    {
        auto * const page = new Page(m_notebook);
        EXPECT_TRUE(page->create());
        m_notebook->AddPage(page, wxString::FromUTF8(page->caption().str()), true);
        frame()->SendSizeEvent();
        settle();
        return page;
    }
    /// The picture of a page as it is at first.
    template <class Page>
    void empty_page(char const * name)
    {
        page<Page>();
        picture(*frame(), name);
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
        picture(*frame(), name);
        return page;
    }
    std::string step(std::string const & name) { return folder().write(name, "ISO-10303-21;\nHEADER;\n"); }

    wxNotebook * m_notebook = nullptr;
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
    auto * const list = find<wxListBox>(*batch, "IDC_BATCH_BATCH_LIST");
    list->SetSelection(0);
    wxCommandEvent event(wxEVT_LISTBOX, list->GetId());
    event.SetEventObject(list);
    list->ProcessWindowEvent(event);
    settle();
    picture(*frame(), "page-batch-selected");
}
