#include "sglDialog.h"

#include "sglResourceString.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/kit/kitXrc.h"

#include <wx/stattext.h>

namespace {

using DialogTexts = kitWindowTest;

char const nested[] = R"(
<object class="wxDialog" name="DLG_TEST">
  <title>d.test::Of [[COMPANY-NAME]]</title>
  <object class="wxBoxSizer">
    <object class="sizeritem"><object class="wxPanel" name="ID_TEST_PANEL">
      <object class="wxBoxSizer">
        <object class="sizeritem"><object class="wxStaticText" name="ID_TEST_EMPTY"><label></label></object></object>
        <object class="sizeritem"><object class="wxButton" name="ID_TEST_BUTTON">
          <label>d.test::_Press</label></object></object>
        <object class="sizeritem"><object class="wxStaticText" name="ID_TEST_TEXT">
          <label>d.test::Some words that say what the button does</label></object></object>
      </object>
    </object></object>
  </object>
</object>)";

} // namespace

TEST_F(DialogTexts, OfAllControlsAreTranslatedOnceTheDialogIsMade)
{
    kitXrc const xrc(nested);
    sglDialog dialog("DLG_TEST", "vmrgrlib", nullptr);
    EXPECT_EQ(dialog.GetTitle(), "Of " + wxString::FromUTF8(app().company_name().c_str()));
    EXPECT_EQ(find<wxButton>(dialog, "ID_TEST_BUTTON")->GetLabel(), "&Press");
    EXPECT_EQ(find<wxStaticText>(dialog, "ID_TEST_TEXT")->GetLabel(),
              "Some words that say what the button does");
}

TEST_F(DialogTexts, AreLeftAsTheyAreWithoutADomain)
{
    kitXrc const xrc(nested);
    sglDialog dialog("DLG_TEST", nullptr);
    EXPECT_EQ(dialog.GetTitle(), "d.test::Of [[COMPANY-NAME]]");
    EXPECT_EQ(find<wxButton>(dialog, "ID_TEST_BUTTON")->GetLabel(), "d.test::&Press");
}

TEST_F(DialogTexts, OfChildrenAreReachedThroughAControlWithoutAny)
{
    kitXrc const xrc(nested);
    sglDialog dialog("DLG_TEST", nullptr);
    auto * const panel = find<wxPanel>(dialog, "ID_TEST_PANEL");
    ASSERT_EQ(panel->GetLabel(), "");
    EXPECT_EQ(sglTranslateWndText("vmrgrlib", panel, 1), 1);
    EXPECT_EQ(panel->GetLabel(), "");
    EXPECT_EQ(find<wxStaticText>(dialog, "ID_TEST_EMPTY")->GetLabel(), "");
    EXPECT_EQ(find<wxButton>(dialog, "ID_TEST_BUTTON")->GetLabel(), "&Press");
}

TEST_F(DialogTexts, OfTheGivenWindowAloneChangeWithoutRecursion)
{
    kitXrc const xrc(nested);
    sglDialog dialog("DLG_TEST", nullptr);
    EXPECT_EQ(sglTranslateWndText("vmrgrlib", &dialog, 0), 1);
    EXPECT_TRUE(dialog.GetTitle().StartsWith("Of "));
    EXPECT_EQ(find<wxButton>(dialog, "ID_TEST_BUTTON")->GetLabel(), "d.test::&Press");
}

TEST_F(DialogTexts, ThatAreNotInTheTablesAreShownWithoutTheirContext)
{
    wxFrame * const frame = show_frame();
    frame->SetTitle("d.nowhere::Not in any table");
    auto * const child = new wxStaticText(frame, wxID_ANY, "d.nowhere::Nor this");
    utString const unknown = sglGUIString("d.nowhere::Not in any table", "vmrgrlib").process();
    EXPECT_EQ(sglTranslateWndText("vmrgrlib", frame, 1), unknown.invalid() ? 0 : 1);
    EXPECT_EQ(frame->GetTitle().utf8_string(), unknown.str());
    EXPECT_EQ(child->GetLabel(), "Nor this") << "the walk went on";
}

TEST_F(DialogTexts, ThatGrowDoNotChangeTheSizeOfTheirControl)
{
    wxFrame * const frame = show_frame();
    auto * const panel = new wxPanel(frame);
    auto * const text =
        new wxStaticText(panel, wxID_ANY, "d::[[COMPANY-NAME]]", wxPoint(5, 5), wxSize(20, 20));
    long const style = text->GetWindowStyle();
    EXPECT_EQ(sglTranslateWndText("vmrgrlib", text, 1), 1);
    EXPECT_EQ(text->GetLabel().utf8_string(), app().company_name().str());
    EXPECT_EQ(text->GetSize(), wxSize(20, 20));
    EXPECT_EQ(text->GetWindowStyle(), style);
    EXPECT_EQ(wxST_NO_AUTORESIZE, 1);
}

TEST_F(DialogTexts, OfATemplateThatIsNotThereLeaveADialogWithoutControls)
{
    wxLogNull const quiet;
    sglDialog const dialog("DLG_NO_SUCH_DIALOG", "vmrgrlib", nullptr);
    EXPECT_TRUE(dialog.GetChildren().empty());
}

TEST_F(DialogTexts, NeedNoPermissionToTakeTheFocus)
{
    wxFrame * const frame = show_frame();
    auto * const text = new wxTextCtrl(frame, wxID_ANY);
    settle();
    {
        sglThreadFocus const scope;
        text->SetFocus();
        run_until([&] { return text->HasFocus(); }, 20, "the focus");
    }
    EXPECT_TRUE(text->HasFocus());
}
