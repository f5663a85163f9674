// How long the options dialog takes with many pages and resources, beside what making as many controls of the
// toolkit by itself takes.
//
//   options_dialog [pages] [resources of a page]
//
// Needs a display. Prints medians of five in milliseconds; the first number of a line is ours.

#include "kit/benchApp.h"
#include "kit/benchTimes.h"
#include "sdu/ubStreams.h"
#include "sglOptionsDialog.h"
#include "sglResourceDialogBuilder.h"
#include "sglResourceOptionsPage.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrResourceRegistry.h"
#include "vmr/vmrTableInstance.h"

#include <algorithm>
#include <cstdio>
#include <wx/statbox.h>
#include <wx/treectrl.h>
#include <wx/wx.h>
#include <wx/xrc/xmlres.h>

namespace {

constexpr int rounds = 5;
constexpr int rows_of_a_group = 10;
char const * const units[] = {"um", "mm", "cm", "m", "km", "uin", "mil", "in", "ft", "mi"};

/// The three kinds of rows take turns.
enum class Kind { check, edit, list };

Kind kind_of(int row)
{
    return static_cast<Kind>(row % 3);
}

std::string name_of(int page, int row)
{
    return "benchOption" + std::to_string(page) + "x" + std::to_string(row);
}

std::vector<vmrResourceDeclaration> declarations(int pages, int rows)
{
    std::vector<vmrResourceDeclaration> result;
    for (int page = 0; page < pages; ++page)
        for (int row = 0; row < rows; ++row) {
            vmrResourceDeclaration one;
            one.name = name_of(page, row);
            switch (kind_of(row)) {
            case Kind::check:
                one.kind = vmrResourceKind::boolean;
                one.default_value = "true";
                break;
            case Kind::edit:
                one.kind = vmrResourceKind::real;
                one.default_value = "0.5";
                break;
            case Kind::list:
                one.kind = vmrResourceKind::choice;
                one.choices.assign(std::begin(units), std::end(units));
                one.default_value = "mm";
                break;
            }
            result.push_back(one);
        }
    return result;
}

std::string layout(int pages, int rows)
{
    std::string text = "start_enum\nstart_attributes\nname Unit\nend_attributes\nstart_values\n";
    for (auto const * unit : units)
        text += std::string("VMRNLS(\"d.unit::") + unit + "\")\n";
    text += "end_values\nend_enum\n";
    for (int page = 0; page < pages; ++page) {
        text += "start_page\nstart_attributes\ntype both\nname d.page::Page " + std::to_string(page) +
                "\nend_attributes\n";
        for (int row = 0; row < rows; ++row) {
            if (row % rows_of_a_group == 0)
                text += "start_group\nstart_attributes\nname d.group::A group\nend_attributes\n";
            auto const name = name_of(page, row);
            text += "start_resource\nstart_attributes\nname " + name +
                    "\nshort_description VMRNLS(\"d.l::Label of " + name +
                    "\")\nlong_description VMRNLS(\"d.t::What " + name + " does to the result\")\n";
            text += kind_of(row) == Kind::check  ? "type boolean\n"
                    : kind_of(row) == Kind::edit ? "type infinite\n"
                                                 : "type finite\nenum Unit\n";
            text += "end_attributes\nend_resource\n";
            if (row % rows_of_a_group == rows_of_a_group - 1 || row == rows - 1)
                text += "end_group\n";
        }
        text += "end_page\n";
    }
    return text;
}

/// The same controls on as many panels.
void make_bare(wxWindow * parent, int pages, int rows)
{
    for (int page = 0; page < pages; ++page) {
        auto * const panel = new wxPanel(parent);
        for (int row = 0; row < rows; ++row) {
            int const y = row * 40;
            wxString const label = "Label of " + name_of(page, row);
            if (kind_of(row) == Kind::check)
                new wxCheckBox(panel, wxID_ANY, label, wxPoint(20, y), wxSize(500, 22));
            else
                new wxStaticText(panel, wxID_ANY, label, wxPoint(20, y));
            if (kind_of(row) == Kind::edit)
                new wxTextCtrl(panel, wxID_ANY, "", wxPoint(450, y), wxSize(70, 25));
            if (kind_of(row) == Kind::list) {
                auto * const list = new wxComboBox(panel, wxID_ANY, "", wxPoint(430, y), wxSize(94, -1), 0,
                                                   nullptr, wxCB_READONLY);
                for (auto const * unit : units)
                    list->Append(unit);
            }
            if (row % rows_of_a_group == rows_of_a_group - 1)
                new wxStaticBox(panel, wxID_ANY, "A group", wxPoint(0, y - 380), wxSize(540, 420));
        }
    }
}

class Builder : public sglResourceDialogBuilder {
public:
    using sglResourceDialogBuilder::read_layout;
    using sglResourceDialogBuilder::sglResourceDialogBuilder;
};

/// What a page keeps to itself.
struct Page : sglResourceOptionsPage {
    using sglResourceOptionsPage::add_resource;
};

void process_events()
{
    auto * const loop = wxEventLoopBase::GetActive();
    wxTheApp->ProcessPendingEvents();
    while (loop->Pending())
        loop->Dispatch();
    loop->ProcessIdle();
    while (loop->Pending())
        loop->Dispatch();
}

void send_init(wxWindow & window)
{
    wxInitDialogEvent event(window.GetId());
    window.ProcessWindowEvent(event);
}

void press(wxWindow & panel, char const * id)
{
    wxCommandEvent event(wxEVT_BUTTON, XRCID(id));
    panel.ProcessWindowEvent(event);
}

class Bench {
public:
    Bench(int pages, int rows) : m_pages(pages), m_rows(rows)
    {
        auto const all = declarations(pages, rows);
        vmr_register_resources(all);
        m_settings = m_folder.write("bench.rsc", vmr_factory_resource_text(all));
        m_layout = m_folder.write("layout.txt", layout(pages, rows));
        m_frame = new wxFrame(nullptr, wxID_ANY, "bench", wxDefaultPosition, wxSize(900, 700));
        m_frame->Show();
        process_events();
    }

    void run()
    {
        for (int round = 0; round < rounds; ++round) {
            wxPanel * bare = nullptr;
            m_bare.push_back(bench_milliseconds([&] {
                bare = new wxPanel(m_frame);
                make_bare(bare, m_pages, m_rows);
            }));
            delete bare;
            one_round();
        }
        std::printf("%d pages, %d resources\n", m_pages, m_pages * m_rows);
        std::printf("read and build        %8.1f   as many controls alone %.1f   ratio %.2f\n",
                    bench_median(m_build), bench_median(m_bare),
                    bench_median(m_build) / bench_median(m_bare));
        std::printf("show the values       %8.1f\n", bench_median(m_initialise));
        std::printf("apply, 1 edit a page  %8.1f\n", bench_median(m_apply_some));
        std::printf("apply, all edited     %8.1f\n", bench_median(m_apply_all));
        std::printf("apply, nothing edited %8.1f\n", bench_median(m_apply_none));
        std::printf("ok                    %8.1f\n", bench_median(m_ok));
        std::printf("switch of pages       %8.1f   the slowest %.1f\n", bench_median(m_switch),
                    *std::max_element(m_switch.begin(), m_switch.end()));
    }

private:
    void one_round()
    {
        vmrTableInstance caller(m_settings.c_str());
        vmrTableInstance working(m_settings.c_str());
        auto * const host = new wxPanel(m_frame);
        auto * const panel = new sglOptionsDialog(host);
        Builder builder(nullptr, panel, &caller);
        m_build.push_back(bench_milliseconds([&] {
            ubIFStream stream{utString(m_layout)};
            if (!builder.read_layout(stream, sglResourceDialogBuilder::input))
                std::puts("the layout was not read");
        }));
        m_initialise.push_back(bench_milliseconds([&] {
            builder.initialise(&working);
            send_init(*panel);
        }));
        m_frame->SendSizeEvent();
        panel->Refresh();
        process_events();

        auto * const tree = XRCCTRL(*panel, "IDC_OPTIONS_TREE", wxTreeCtrl);
        auto const root = tree->GetRootItem();
        wxTreeItemIdValue cookie;
        int switched = 0;
        for (auto item = tree->GetFirstChild(root, cookie); item.IsOk() && switched < 10; ++switched) {
            item = tree->GetNextChild(root, cookie);
            m_switch.push_back(bench_milliseconds([&] {
                tree->SelectItem(item);
                process_events();
            }));
        }

        edit(*panel, 1, "0.25", "False", "in");
        m_apply_some.push_back(bench_milliseconds([&] { press(*panel, "IDC_OPTIONS_APPLY"); }));
        edit(*panel, m_rows, "0.75", "False", "ft");
        m_apply_all.push_back(bench_milliseconds([&] { press(*panel, "IDC_OPTIONS_APPLY"); }));
        m_apply_none.push_back(bench_milliseconds([&] { press(*panel, "IDC_OPTIONS_APPLY"); }));
        m_ok.push_back(bench_milliseconds([&] { press(*panel, "IDC_OPTIONS_OK"); }));
        if (caller.effective_value(utString(name_of(m_pages - 1, m_rows - 1))).empty())
            std::puts("the caller has no values");
        delete host;
        process_events();
    }

    void edit(wxWindow & panel, int rows, char const * real, char const * flag, char const * choice)
    {
        int number = 0;
        for (auto * const child : panel.GetChildren())
            if (auto * const page = dynamic_cast<sglResourceOptionsPage *>(child)) {
                for (int row = 0; row < rows; ++row) {
                    auto const kind = kind_of(row);
                    auto const * const value = kind == Kind::check  ? flag
                                               : kind == Kind::edit ? real
                                                                    : choice;
                    (page->*&Page::add_resource)(utString(name_of(number, row)), value);
                }
                ++number;
            }
    }

    int m_pages;
    int m_rows;
    kitTempFolder m_folder;
    std::string m_settings;
    std::string m_layout;
    wxFrame * m_frame;
    std::vector<double> m_bare, m_build, m_initialise, m_switch, m_apply_some, m_apply_all, m_apply_none,
        m_ok;
};

} // namespace

int main(int argc, char ** argv)
{
    int const pages = argc > 1 ? std::atoi(argv[1]) : 200;
    int const rows = argc > 2 ? std::atoi(argv[2]) : 50;
    benchApp const app(argv);
    Bench(pages, rows).run();
    return 0;
}
