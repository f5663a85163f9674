#include "screens/screens.h"
#include "sglAboutDlg.h"
#include "sglUsageDialogs.h"

namespace {

class ServiceScreens : public Screens {
protected:
    void SetUp() override
    {
        Screens::SetUp();
        reporter.initialise(app().application_information(), utString(folder() / "usage"), "1.0.0",
                            sgl_usage_data_text());
        sgl_present_usage_dialogs(&reporter);
    }
    void TearDown() override
    {
        sgl_end_usage_dialogs();
        Screens::TearDown();
    }

    /// Takes the picture of the dialog that comes next, and closes it.
    static void picture_of_next(kitModal & boxes, std::string const & name)
    {
        expect_dialog(boxes, [name](wxDialog & dialog) {
            picture(dialog, name);
            dialog.EndModal(wxID_CANCEL);
        });
    }

    sglAnalytics reporter;
};

} // namespace

TEST_F(ServiceScreens, OfTheAboutBox)
{
    wxIcon icon;
    ASSERT_TRUE(icon.LoadFile(VMR_BUILD_TREE "/share/vmr/icons/vmr-64.png", wxBITMAP_TYPE_PNG));
    app().set_main_icon(icon);
    sglAboutDlg dialog(frame());
    show_modal(dialog, [&] {
        picture(dialog, "about");
        press(dialog, "wxID_OK");
    });
    app().set_main_icon(wxNullIcon);
}

TEST_F(ServiceScreens, OfTheQuestionAboutUsageData)
{
    kitModal boxes;
    picture_of_next(boxes, "usage-question");
    reporter.show_startup_dialog(frame());
}

TEST_F(ServiceScreens, OfTheUsageData)
{
    ASSERT_TRUE(reporter.usage_record().choose(true));
    auto const part = apString::from_utf8(sample("screw.step", "part.step"));
    for (auto const * const format : {L"STEP", L"IGES", L"STL"}) {
        reporter.read_file(part, apString(format));
        reporter.write_file(part, L"BREP");
    }
    kitModal boxes;
    picture_of_next(boxes, "usage-record");
    reporter.show_menu_dialog(frame());
}
