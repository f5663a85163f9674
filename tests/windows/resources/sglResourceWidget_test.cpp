#include "windows/resources/kitOptions.h"

#include "sdb/sdbTranslatorLoadStatus.h"
#include "sglResourceCheckWidget.h"
#include "sglResourceComboWidget.h"
#include "sglResourceEditWidget.h"
#include "sglResourceGroupWidget.h"

#include <wx/statbox.h>
#include <wx/stattext.h>

namespace {

char const triangulate[] = "vmrTolTriangulate3d";

struct Widgets : kitOptionsTest {
    void SetUp() override
    {
        kitOptionsTest::SetUp();
        load(table, "vmrTolTriangulate3d = 0.5\nvmrOptProcessSurfaces = true\nvmrOptOutputUnits = mm\n");
        page = add_page("Page", nullptr, &table);
        page->initialise(&table);
        for (char const * name : {"mm", "cm", "in"})
            units.add_pair(name, utString("the ") + name);
    }

    /// The one control of that class on the page.
    template <class T>
    T * control()
    {
        T * found = nullptr;
        for (auto * const child : page->GetChildren())
            if (auto * const one = dynamic_cast<T *>(child))
                found = one;
        EXPECT_NE(found, nullptr);
        return found;
    }
    void show()
    {
        initialise();
        panel().Refresh();
        settle();
    }
    template <class Widget, class... Arguments>
    Widget * add(Arguments &&... arguments)
    {
        auto * const widget = new Widget(std::forward<Arguments>(arguments)..., page);
        page->add_widget(utPtrClaim, widget);
        return widget;
    }
    sglResourceComboWidget * add_combo(sdbOrderedStringPairs const & pairs,
                                       sglResourceDetails const & details, wxRect & row)
    {
        auto * const widget = new sglResourceComboWidget(pairs, details, row, page);
        page->add_widget(utPtrClaim, widget);
        return widget;
    }
    /// The field of the tolerance, alone on the page, with the focus.
    sglResourceEditBox * focused_field()
    {
        wxRect row(20, 30, 300, 26);
        add<sglResourceEditWidget>(tolerance, row);
        show();
        auto * const box = control<sglResourceEditBox>();
        focus(*box);
        run_until([box] { return box->HasFocus(); }, 20, "the focus");
        return box;
    }
    std::string applied(char const * name)
    {
        page->apply_pressed();
        return table.table()->value(name).str();
    }
    int label_y(wxRect const & row) { return row.y + (row.height - page->GetFont().GetPointSize()) / 2; }
    int combo_least() { return page->ConvertDialogToPixels(wxSize(47, 0)).x; }

    vmrTableInstance table;
    kitOptionsPage * page = nullptr;
    sdbOrderedStringPairs units;
    sglResourceDetails const tolerance{triangulate, "d::Deviation", "d::How far"};
    sglResourceDetails const flag{"vmrOptProcessSurfaces", "d::Surfaces", "d::Whether"};
    sglResourceDetails const unit{"vmrOptOutputUnits", "d::Unit", "d::Which"};
};

} // namespace

TEST_F(Widgets, CheckBoxFillsItsRow)
{
    wxRect row(20, 30, 300, 22);
    add<sglResourceCheckWidget>(flag, row);
    auto * const box = control<sglResourceCheckBox>();
    EXPECT_EQ(box->GetRect(), row);
    EXPECT_EQ(box->GetLabel(), "Surfaces");
    EXPECT_EQ(box->GetFont(), page->GetFont());
}

TEST_F(Widgets, AnyCasingOfTrueChecksTheBox)
{
    wxRect row(20, 30, 300, 22);
    auto * const widget =
        add<sglResourceCheckWidget>(sglResourceDetails("unregistered", "d::X", "d::Y"), row);
    auto * const box = control<sglResourceCheckBox>();
    for (char const * text : {"True", "true", "TRUE", "tRuE"}) {
        table.add_resource("unregistered", text);
        widget->set_value();
        EXPECT_TRUE(box->IsChecked()) << text;
        table.add_resource("unregistered", "True ");
        widget->set_value();
        EXPECT_FALSE(box->IsChecked());
    }
}

TEST_F(Widgets, ClickOnACheckBoxIsAnEdit)
{
    wxRect row(20, 30, 300, 22);
    add<sglResourceCheckWidget>(flag, row);
    show();
    auto * const box = control<sglResourceCheckBox>();
    EXPECT_TRUE(box->IsChecked());
    click(*box);
    run_until([box] { return !box->IsChecked(); }, 20, "the check box");
    EXPECT_EQ(applied("vmrOptProcessSurfaces"), "false");
}

TEST_F(Widgets, EditBoxStandsAtTheRightEndOfItsRow)
{
    wxRect row(20, 30, 300, 26);
    add<sglResourceEditWidget>(tolerance, row);
    auto * const box = control<sglResourceEditBox>();
    auto * const label = control<wxStaticText>();
    EXPECT_EQ(box->GetRect(), wxRect(20 + 300 - 71, 30, 70, 25));
    EXPECT_EQ(label->GetPosition(), wxPoint(20, label_y(row)));
    EXPECT_EQ(label->GetLabel(), "Deviation");
    EXPECT_EQ(row, wxRect(20, 30, 300, 26));
}

TEST_F(Widgets, LongLabelMakesTheRowTwiceAsHigh)
{
    wxRect row(20, 30, 200, 26);
    wxRect const before = row;
    add<sglResourceEditWidget>(
        sglResourceDetails(triangulate, "d::A label that is a good deal too long for it", "d::"), row);
    EXPECT_EQ(row, wxRect(20, 30, 200, 52));
    int const y = label_y(before);
    int const bottom = before.y + before.height - 1;
    EXPECT_EQ(control<sglResourceEditBox>()->GetPosition(),
              wxPoint(20 + 200 - 71, static_cast<int>((bottom - y) / 3.0 + y)));
    EXPECT_NE(control<wxStaticText>()->GetLabel().Find('\n'), wxNOT_FOUND);
    EXPECT_LE(control<wxStaticText>()->GetSize().x, 130);
}

TEST_F(Widgets, LabelOfExactlyTheRoomLeftDoesNotWrap)
{
    sglResourceDetails const details(triangulate, "d::A label with several words", "d::");
    wxRect wide(0, 0, 1000, 26);
    add<sglResourceEditWidget>(details, wide);
    int const label = control<wxStaticText>()->GetSize().x;
    wxRect exact(0, 100, label + 70, 26);
    add<sglResourceEditWidget>(details, exact);
    EXPECT_EQ(exact.height, 26);
    wxRect narrow(0, 200, label + 69, 26);
    add<sglResourceEditWidget>(details, narrow);
    EXPECT_EQ(narrow.height, 52);
}

TEST_F(Widgets, EditCountsWhenTheFieldLosesTheFocus)
{
    wxRect row(20, 30, 300, 26);
    add<sglResourceEditWidget>(tolerance, row);
    wxRect below(20, 80, 300, 22);
    add<sglResourceCheckWidget>(flag, below);
    show();
    auto * const box = control<sglResourceEditBox>();
    EXPECT_EQ(box->GetValue(), "0.5");
    click(*box);
    run_until([box] { return box->HasFocus(); }, 20, "the focus");
    box->SelectAll();
    type("0.125");
    run_until([box] { return box->GetValue() == "0.125"; }, 20, "the keys");
    EXPECT_EQ(applied(triangulate), ""); // not while it is being typed
    focus(*control<sglResourceCheckBox>());
    run_until([box] { return !box->HasFocus(); }, 20, "the other focus");
    EXPECT_EQ(applied(triangulate), "0.125");
}

TEST_F(Widgets, PressOfTheDefaultButtonTakesWhatWasTyped)
{
    auto * const box = focused_field();
    box->ChangeValue("0.125");
    press(panel(), "IDC_OPTIONS_OK");
    EXPECT_EQ(table.effective_value(triangulate), utString("0.125"));
}

TEST_F(Widgets, IllegalTextIsToldAndTheDefaultShown)
{
    wxRect row(20, 30, 300, 26);
    auto * const widget = add<sglResourceEditWidget>(tolerance, row);
    table.add_resource(triangulate, "0.25");
    show();
    auto * const box = control<sglResourceEditBox>();
    EXPECT_EQ(box->GetValue(), "0.25");
    for (char const * text : {"coarse", "", "-1"}) {
        box->ChangeValue(text);
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        widget->control_changed();
        EXPECT_EQ(boxes.said(),
                  std::vector<std::string>{"Illegal value for this resource - applying default value\n\n"
                                           "\"Deviation\" takes a number.\nThe smallest value is 1e-07."})
            << text;
        EXPECT_EQ(boxes.styles().at(0) & (wxOK | wxCANCEL | wxYES_NO), wxOK);
        EXPECT_EQ(box->GetValue(), "0.5"); // the default, not the value of the table
    }
    EXPECT_EQ(applied(triangulate), "0.25");
}

TEST_F(Widgets, PendingEditStaysWhenAnIllegalOneFollows)
{
    wxRect row(20, 30, 300, 26);
    auto * const widget = add<sglResourceEditWidget>(tolerance, row);
    show();
    auto * const box = control<sglResourceEditBox>();
    box->ChangeValue("0.125");
    widget->control_changed();
    box->ChangeValue("x");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    widget->control_changed();
    EXPECT_EQ(applied(triangulate), "0.125");
}

TEST_F(Widgets, MessageAboutAnIllegalTextComesOnce)
{
    wxRect row(20, 30, 300, 26);
    auto * const widget = add<sglResourceEditWidget>(tolerance, row);
    show();
    control<sglResourceEditBox>()->ChangeValue("x");
    kitModal boxes;
    boxes.expect([&](wxDialog *) {
        widget->control_changed(); // the field loses the focus again while the message is open
        return wxID_OK;
    });
    widget->control_changed();
    EXPECT_EQ(control<sglResourceEditBox>()->GetValue(), "0.5");
}

TEST_F(Widgets, EnterOnAnIllegalTextTellsAndStaysInTheField)
{
    wxRect row(20, 30, 300, 26);
    add<sglResourceEditWidget>(tolerance, row);
    show();
    find<wxButton>(panel(), "IDC_OPTIONS_OK")->SetDefault();
    int pressed = 0;
    frame()->Bind(wxEVT_BUTTON, [&](wxCommandEvent &) { ++pressed; });
    auto * const box = control<sglResourceEditBox>();
    focus(*box);
    box->ChangeValue("coarse");
    {
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        key(WXK_RETURN);
        EXPECT_EQ(boxes.said().size(), 1u);
    }
    EXPECT_EQ(pressed, 0);
    EXPECT_TRUE(box->HasFocus());
    EXPECT_EQ(box->GetValue(), "0.5");
    EXPECT_EQ(box->GetStringSelection(), "0.5") << "ready to be typed over";
    kitModal const no_boxes;
    key(WXK_RETURN);
    run_until([&] { return pressed == 1; }, 20, "the button, now that the text is legal");
}

TEST_F(Widgets, PathOfAnyBytesIsShownAndComesBackAsItIs)
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    app().output_dlls().translator_for_format("STEP")->load(status);
    load(table, "stepWriteAuthor = old\n");
    table.add_resource("stepWriteAuthor", "/parts/gr\xC3\xBC\xC3\x9F \xff.txt");
    page->initialise(&table);
    wxRect row(20, 30, 300, 26);
    auto * const widget =
        add<sglResourceEditWidget>(sglResourceDetails("stepWriteAuthor", "d::Author", "d::"), row);
    show();
    auto * const box = control<sglResourceEditBox>();
    EXPECT_TRUE(box->GetValue().StartsWith(wxString::FromUTF8("/parts/gr\xC3\xBC\xC3\x9F ")));
    kitModal const no_boxes;
    widget->control_changed();
    EXPECT_EQ(applied("stepWriteAuthor"), "/parts/gr\xC3\xBC\xC3\x9F \xff.txt");
    box->ChangeValue(box->GetValue() + "2");
    widget->control_changed();
    EXPECT_EQ(applied("stepWriteAuthor"), "/parts/gr\xC3\xBC\xC3\x9F \xff.txt2");
}

TEST_F(Widgets, FieldThatIsEmptyBecauseTheResourceIsMayBeLeft)
{
    load(table, "remark =\n");
    page->initialise(&table);
    wxRect row(20, 30, 300, 26);
    auto * const widget = add<sglResourceEditWidget>(sglResourceDetails("remark", "d::Remark", "d::"), row);
    show();
    kitModal boxes;
    widget->control_changed();
    EXPECT_TRUE(boxes.said().empty());
}

TEST_F(Widgets, FieldOfATextMayBeEmptiedAgain)
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    app().output_dlls().translator_for_format("STEP")->load(status);
    load(table, "stepWriteAuthor =\n");
    page->initialise(&table);
    wxRect row(20, 30, 300, 26);
    auto * const widget =
        add<sglResourceEditWidget>(sglResourceDetails("stepWriteAuthor", "d::Author", "d::"), row);
    show();
    kitModal const no_boxes;
    control<sglResourceEditBox>()->ChangeValue("mine");
    widget->control_changed();
    control<sglResourceEditBox>()->ChangeValue("");
    widget->control_changed();
    EXPECT_EQ(applied("stepWriteAuthor"), "");
}

TEST_F(Widgets, IllegalValueOfAFileGivesWayToTheBuiltInDefault)
{
    load(table, std::string(triangulate) + " = banana\n");
    page->initialise(&table);
    wxRect row(20, 30, 300, 26);
    auto * const widget = add<sglResourceEditWidget>(tolerance, row);
    show();
    EXPECT_NE(control<sglResourceEditBox>()->GetValue(), "banana");
    EXPECT_EQ(control<sglResourceEditBox>()->GetValue(), table.effective_value(triangulate).c_str());
    kitModal const no_boxes;
    widget->control_changed();
}

TEST_F(Widgets, FieldThatGoesWithItsPageTellsNobody)
{
    auto * const box = focused_field();
    box->ChangeValue("x");
    kitModal boxes;
    frame()->DestroyChildren();
    settle();
    EXPECT_TRUE(boxes.said().empty());
}

TEST_F(Widgets, ListOfShortItemsIs47UnitsWideAtTheRightEnd)
{
    sdbOrderedStringPairs pairs;
    pairs.add_pair("mm", "m");
    wxRect row(20, 30, 400, 26);
    add_combo(pairs, unit, row);
    auto * const box = control<sglResourceComboBox>();
    EXPECT_EQ(box->GetPosition(), wxPoint(20 + 400 - 1 - combo_least(), 30));
    EXPECT_EQ(box->GetSize().x, combo_least());
    EXPECT_EQ(control<wxStaticText>()->GetPosition(), wxPoint(20, label_y(row)));
    EXPECT_EQ(row.height, 26);
}

TEST_F(Widgets, LongItemWidensTheListToTheLeft)
{
    sdbOrderedStringPairs pairs;
    pairs.add_pair("mm", "a rather long description of a unit");
    wxRect row(20, 30, 600, 26);
    add_combo(pairs, unit, row);
    auto * const box = control<sglResourceComboBox>();
    int const width = box->GetSizeFromTextSize(box->GetTextExtent("a rather long description of a unit")).x;
    EXPECT_GT(width, combo_least());
    EXPECT_EQ(box->GetSize().x, width);
    EXPECT_EQ(box->GetPosition(), wxPoint(20 - 1 + 600 - width, 30));
}

TEST_F(Widgets, LongLabelBesideAListMakesTheRowTwiceAsHigh)
{
    wxRect row(20, 30, 220, 26);
    wxRect const before = row;
    add_combo(units,
              sglResourceDetails("vmrOptOutputUnits", "d::A label that is a good deal too long", "d::"), row);
    auto * const box = control<sglResourceComboBox>();
    EXPECT_EQ(row.height, 52);
    int const y = label_y(before);
    EXPECT_EQ(box->GetPosition().y, static_cast<int>((before.GetBottom() - y) / 3.0 + y));
    EXPECT_EQ(box->GetPosition().x + box->GetSize().x, 20 + 220 - 1);
}

TEST_F(Widgets, ListShowsTheSecondTextsAndStoresTheFirst)
{
    wxRect row(20, 30, 400, 26);
    auto * const widget = add_combo(units, unit, row);
    show();
    auto * const box = control<sglResourceComboBox>();
    EXPECT_EQ(box->GetCount(), 3U);
    EXPECT_EQ(box->GetStringSelection(), "the mm");
    EXPECT_TRUE(box->HasFlag(wxCB_READONLY));
    focus(*box);
    key(WXK_DOWN);
    run_until([box] { return box->GetStringSelection() == "the cm"; }, 20, "the selection");
    EXPECT_EQ(applied("vmrOptOutputUnits"), "cm");
    table.add_resource("vmrOptOutputUnits", "in");
    widget->resource_changed();
    EXPECT_EQ(box->GetStringSelection(), "the in");
}

TEST_F(Widgets, ValueOutsideTheEnumerationLeavesNothingSelected)
{
    wxRect row(20, 30, 400, 26);
    auto * const widget = add_combo(units, unit, row);
    show();
    auto * const box = control<sglResourceComboBox>();
    table.add_resource("vmrOptOutputUnits", "mi");
    widget->resource_changed();
    EXPECT_EQ(box->GetSelection(), wxNOT_FOUND);
    EXPECT_EQ(box->GetStringSelection(), "");
    EXPECT_EQ(applied("vmrOptOutputUnits"), "mi");
}

TEST_F(Widgets, RefreshFromTheTableLeavesNoEditBehind)
{
    wxRect row(20, 30, 300, 22);
    auto * const widget = add<sglResourceCheckWidget>(flag, row);
    show();
    page->add_resource("vmrOptProcessSurfaces", "False");
    widget->resource_changed();
    EXPECT_EQ(applied("vmrOptProcessSurfaces"), "");
    EXPECT_TRUE(control<sglResourceCheckBox>()->IsChecked());
}

TEST_F(Widgets, GroupIsABoxWithoutATooltipAndTakesNoPartInUpdates)
{
    wxRect box(0, 10, 300, 100);
    auto * const widget = add<sglResourceGroupWidget>(sglResourceDetails("", "d::Box", "d::Box"), box);
    show();
    page->do_update(table);
    EXPECT_EQ(widget->resource().name(), utString(""));
    EXPECT_EQ(control<wxStaticBox>()->GetRect(), box);
    EXPECT_EQ(control<wxStaticBox>()->GetLabel(), "Box");
    EXPECT_EQ(control<wxStaticBox>()->GetToolTipText(), "");
}

TEST_F(Widgets, TooltipIsTheLongDescriptionAndTheInternalName)
{
    wxRect row(20, 30, 300, 26);
    add<sglResourceEditWidget>(tolerance, row);
    show();
    EXPECT_EQ(control<wxStaticText>()->GetToolTipText(), "How far\nInternal name vmrTolTriangulate3d");
    EXPECT_EQ(control<sglResourceEditBox>()->GetToolTipText(), "");
}

TEST_F(Widgets, TooltipBreaksAtTheFirstSpaceBehind151Characters)
{
    std::string const a(151, 'a');
    std::string const b(150, 'b');
    struct {
        std::string text;
        std::string shown;
    } const cases[] = {
        {a + " x", a + "\nx"},
        {b + " x", b + " x"},
        {b + " x y", b + " x\ny"},
        {std::string(1000, 'c'), std::string(1000, 'c')},
        {std::string(100, 'd') + "\n" + std::string(100, 'd') + " x",
         std::string(100, 'd') + "\n" + std::string(100, 'd') + " x"},
        {"", ""},
    };
    for (auto const & [text, shown] : cases) {
        wxRect row(20, 30, 300, 22);
        auto * const widget = add<sglResourceCheckWidget>(
            sglResourceDetails("vmrOptProcessSurfaces", "d::S", utString("d::" + text)), row);
        widget->add_tooltip();
        EXPECT_EQ(control<sglResourceCheckBox>()->GetToolTipText().utf8_string(),
                  shown + "\nInternal name vmrOptProcessSurfaces");
    }
}

TEST(ResourceDetails, AreInvalidUntilAllThreeTextsAreSet)
{
    EXPECT_TRUE(sglResourceDetails().invalid());
    EXPECT_TRUE(sglResourceDetails("a", utString::make_invalid(), "c").invalid());
    sglResourceDetails details;
    details = sglResourceDetails("a", "", "c");
    EXPECT_FALSE(details.invalid());
    EXPECT_EQ(details.name(), utString("a"));
}
