#include "screens/screens.h"
#include "sdb/sdbTranslatorLoadStatus.h"
#include "sglResources.h"

#include <wx/treectrl.h>

namespace {

void each_item(wxTreeCtrl & tree, wxTreeItemId const & item, std::vector<wxTreeItemId> & all)
{
    wxTreeItemIdValue cookie;
    for (auto child = tree.GetFirstChild(item, cookie); child.IsOk();
         child = tree.GetNextChild(item, cookie)) {
        all.push_back(child);
        each_item(tree, child, all);
    }
}

struct Format {
    char const * name;
    unsigned int side;
};

class OptionScreens : public Screens, public testing::WithParamInterface<Format> {};

} // namespace

TEST_P(OptionScreens, ShowsEachPage)
{
    auto const [name, side] = GetParam();
    auto const & catalogue = side == 1 ? app().input_dlls() : app().output_dlls();
    auto const * const translator = catalogue.translator_for_format(name);
    ASSERT_TRUE(translator);
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    translator->load(status);
    utString const file = app().installation_resource_file(*translator);
    vmrTableInstance table(file.c_str());
    table.set_resource_file(file);
    sglResources dialog(table, frame(), translator, info(), "DLG_RESOURCES");
    dialog.dialog_type(side);
    kitModal const no_boxes;
    show_modal(dialog, [&] {
        auto * const tree = find<wxTreeCtrl>(dialog, "IDC_OPTIONS_TREE");
        tree->ExpandAll();
        std::vector<wxTreeItemId> items;
        each_item(*tree, tree->GetRootItem(), items);
        EXPECT_FALSE(items.empty());
        int number = 0;
        for (auto const & item : items) {
            tree->SelectItem(item);
            picture(dialog, std::string("options-") + name + (side == 1 ? "-input-" : "-output-") +
                                std::to_string(++number));
        }
        press(dialog, "IDC_OPTIONS_CANCEL");
    });
}

INSTANTIATE_TEST_SUITE_P(Formats, OptionScreens,
                         testing::Values(Format{"STEP", 1}, Format{"STEP", 2}, Format{"IGES", 1},
                                         Format{"IGES", 2}, Format{"BREP", 1}, Format{"BREP", 2},
                                         Format{"STL", 1}, Format{"STL", 2}));
