#include "sglMenu.h"

#include "windows/kit/kitWindowTest.h"
#include "windows/kit/kitXrc.h"

#include <memory>

namespace {

using MenuBuilder = kitWindowTest;

char const bar_resource[] = R"(
<object class="wxMenuBar" name="MB_TEST">
  <object class="wxMenu" name="MENU_FILE">
    <label>m.test::_File</label>
    <object class="wxMenuItem" name="ID_TEST_OPEN">
      <label>m.test::_Open [[PROGRAM-NAME]]</label><accel>Ctrl+O</accel><help>m.help::Opens a file</help>
    </object>
    <object class="separator"/>
    <object class="wxMenuItem" name="ID_TEST_CLOSE"><label>m.test::Close</label></object>
    <object class="wxMenu" name="MENU_RECENT">
      <label>m.test::_Recent</label>
      <object class="wxMenuItem" name="ID_TEST_FIRST">
        <label>m.test::First</label><help>m.help::The first</help>
      </object>
    </object>
  </object>
  <object class="wxMenu" name="MENU_EMPTY"><label>m.test::_Nothing</label></object>
</object>)";

std::vector<std::string> helps_set;

class WalkedMenu : public sglMenu {
public:
    using sglMenu::sglMenu;
    using sglMenu::translate_sub_menu_items;
};

} // namespace

/// In the place of the toolkit's operation, for this program: no item of a menu shows whether it was called.
void wxMenuItemBase::SetHelp(wxString const & text)
{
    m_help = text;
    helps_set.push_back(text.utf8_string());
}

TEST_F(MenuBuilder, PutsLabelsAndHelpTextsOfABarIntoTheUsersLanguage)
{
    kitXrc const xrc(bar_resource);
    std::unique_ptr<wxMenuBar> const bar(sglMenu("vmrgrlib").create_menu_bar("MB_TEST"));
    ASSERT_TRUE(bar);
    ASSERT_EQ(bar->GetMenuCount(), 2u);
    EXPECT_EQ(bar->GetMenuLabel(0), "&File");
    EXPECT_EQ(bar->GetMenuLabel(1), "&Nothing");
    auto const * const open = bar->FindItem(XRCID("ID_TEST_OPEN"));
    EXPECT_EQ(open->GetItemLabel(),
              "&Open " + wxString::FromUTF8(app().application_name_no_version().c_str()) + "\tCtrl+O");
    EXPECT_EQ(open->GetHelp(), "Opens a file");
    auto const * const first = bar->FindItem(XRCID("ID_TEST_FIRST"));
    EXPECT_EQ(first->GetItemLabel(), "First");
    EXPECT_EQ(first->GetHelp(), "The first");
}

TEST_F(MenuBuilder, LeavesASeparatorInItsPlace)
{
    kitXrc const xrc(bar_resource);
    std::unique_ptr<wxMenuBar> const bar(sglMenu("vmrgrlib").create_menu_bar("MB_TEST"));
    auto const * const menu = bar->GetMenu(0);
    ASSERT_EQ(menu->GetMenuItemCount(), 4u);
    EXPECT_TRUE(menu->FindItemByPosition(1)->IsSeparator());
    EXPECT_EQ(menu->FindItemByPosition(2)->GetItemLabel(), "Close");
    EXPECT_EQ(menu->FindItemByPosition(3)->GetItemLabel(), "&Recent");
}

TEST_F(MenuBuilder, GivesNoHelpTextToAnItemWithoutOne)
{
    wxMenu menu;
    menu.Append(wxID_ANY, "m.test::With", "m.help::Opens a file");
    menu.AppendSeparator();
    menu.Append(wxID_ANY, "m.test::Without");
    menu.Append(wxID_ANY, "m.test::Last", "m.help::The last");
    helps_set.clear();
    EXPECT_EQ(WalkedMenu("vmrgrlib").translate_sub_menu_items(&menu), 1);
    EXPECT_EQ(helps_set, (std::vector<std::string>{"Opens a file", "The last"}));
    EXPECT_EQ(menu.FindItemByPosition(2)->GetHelp(), "");
    EXPECT_EQ(menu.FindItemByPosition(2)->GetItemLabel(), "Without");
}

TEST_F(MenuBuilder, BuildsAMenuByItself)
{
    kitXrc const xrc(R"(<object class="wxMenu" name="MB_POPUP">
        <object class="wxMenuItem" name="ID_TEST_COPY"><label>m.test::_Copy</label></object></object>)");
    std::unique_ptr<wxMenu> const menu(sglMenu("vmrgrlib").create_menu("MB_POPUP"));
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->FindItemByPosition(0)->GetItemLabel(), "&Copy");
}

TEST_F(MenuBuilder, WalksAnEmptyMenuButNoneThatIsNotThere)
{
    wxMenu empty;
    WalkedMenu walk("vmrgrlib");
    EXPECT_EQ(walk.translate_sub_menu_items(nullptr), 0);
    EXPECT_EQ(walk.translate_sub_menu_items(&empty), 1);
}

TEST_F(MenuBuilder, GivesNothingForANameThatIsNotInTheResources)
{
    wxLogNull const quiet;
    EXPECT_EQ(sglMenu("vmrgrlib").create_menu("MB_NO_SUCH_MENU"), nullptr);
    EXPECT_EQ(sglMenu("vmrgrlib").create_menu_bar("MB_NO_SUCH_BAR"), nullptr);
}
