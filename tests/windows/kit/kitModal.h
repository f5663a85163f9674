#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>
#include <wx/modalhook.h>

/// Answers the boxes of the program in a test's place, in the order in which they are expected, and keeps
/// what they said. A box that nobody expects, and an expected one that does not come, fail the test.
class kitModal : private wxModalDialogHook {
public:
    kitModal();
    ~kitModal() override;

    void expect_message(int answer);                    ///< a message box; wxID_OK, wxID_YES, ...
    void expect_file(std::string const & path);         ///< a file dialog in which this path is chosen
    void expect_file_cancelled();                       ///< a file dialog that is cancelled
    void expect(std::function<int(wxDialog *)> answer); ///< any dialog of the toolkit

    /// One of the program's own dialogs, which is shown; `begin` is called when it is about to be. Those for
    /// which nothing is expected are shown too.
    void expect_own(std::function<void(wxDialog *)> begin);

    std::vector<std::string> const & said() const { return m_said; } ///< texts of the message boxes so far
    std::vector<long> const & styles() const { return m_styles; }    ///< and their styles

private:
    int Enter(wxDialog * dialog) override;

    std::deque<std::function<int(wxDialog *)>> m_expected;
    std::deque<std::function<void(wxDialog *)>> m_expected_own;
    std::vector<std::string> m_said;
    std::vector<long> m_styles;
};
