#include "sglMessageBox.h"

#include "windows/kit/kitWindowTest.h"

#include <wx/evtloop.h>
#include <wx/timer.h>

namespace {

using MessageBox = kitWindowTest;

} // namespace

TEST_F(MessageBox, TakesAQuestionThatIsClosedForNo)
{
    show_frame();
    // The box of the platform has no window of the toolkit to wait for: the key comes again until it is gone.
    wxTimer again;
    again.Bind(wxEVT_TIMER, [](wxTimerEvent &) { wxUIActionSimulator().Char(WXK_ESCAPE); });
    again.Start(100);
    EXPECT_EQ(sglMessageBox("vmrgrlib", 1115, wxYES_NO), wxID_NO);
}
