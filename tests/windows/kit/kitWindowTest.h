#pragma once

#include "kit/kitApp.h"
#include "windows/kit/kitModal.h"

#include <functional>
#include <gtest/gtest.h>
#include <wx/uiaction.h>
#include <wx/wx.h>
#include <wx/xrc/xmlres.h>

/// A test over real windows: an application object that has been started on the build tree as its
/// installation, with a fresh folder for the user's files, a display and a window manager. The application
/// serves all tests of the process. An assertion of the toolkit and a critical message of its lower layers
/// fail the test, and so does a wait that is not over in time.
class kitWindowTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override; ///< destroys the windows that are left

    static kitApp & app();
    static std::string user_folder(); ///< where the application keeps the user's files
    kitTempFolder const & folder() const { return m_folder; } ///< for the files of one test

    /// Runs the event loop until `done`; fails the test when that takes more than `seconds`.
    static void run_until(std::function<bool()> const & done, int seconds = 20,
                          char const * what = "something that did not happen");
    /// Runs the event loop until nothing waits in it.
    static void settle();
    /// Shows a frame and waits until it is there.
    static wxFrame * show_frame(wxSize const & size = wxSize(640, 480));

    /// Shows the dialog modally and, once it is on the screen, runs `script` in its loop. The script, or what
    /// it does to the dialog, ends it; when the dialog is still open after `seconds`, the test fails and it
    /// is closed.
    static int show_modal(wxDialog & dialog, std::function<void()> const & script, int seconds = 30);

    /// The dialog that `boxes` meets next is shown, and `script` runs in its loop; fails the test when that
    /// leaves it open.
    static void expect_dialog(kitModal & boxes, std::function<void(wxDialog &)> const & script);

    /// The control of an identifier in the resource files; fails the test when it is not there.
    template <class T>
    static T * find(wxWindow & parent, char const * id)
    {
        auto * const found = dynamic_cast<T *>(parent.FindWindow(XRCID(id)));
        if (!found)
            ADD_FAILURE() << "no control " << id << " of that class";
        return found;
    }

    /// What the toolkit sends when a button is pressed.
    static void press(wxWindow & parent, char const * id);
    static void focus(wxWindow & window); ///< and waits until keys reach it
    static void click(wxWindow & window); ///< a click of the mouse in its middle
    static void type(char const * text);  ///< keys, to what has the focus
    static void key(int code, int modifiers = 0);
    static void choose_menu(wxWindow & window, char const * id); ///< the event of a menu item

private:
    kitTempFolder m_folder;
    utString m_layout_path;
};
