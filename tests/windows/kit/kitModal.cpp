#include "windows/kit/kitModal.h"

#include "nls/sglLongMessageDialog.h"

#include <chrono>
#include <gtest/gtest.h>
#include <optional>
#include <wx/dirdlg.h>
#include <wx/evtloop.h>
#include <wx/filedlg.h>
#include <wx/msgdlg.h>

namespace {

struct Message {
    std::string text;
    long style;
};

std::optional<Message> message_of(wxDialog const & dialog)
{
    if (auto const * const box = dynamic_cast<wxMessageDialog const *>(&dialog))
        return Message{box->GetMessage().utf8_string(), box->GetMessageDialogStyle()};
    if (auto const * const window = dynamic_cast<sglLongMessageDialog const *>(&dialog))
        return Message{window->message().utf8_string(), window->message_style()};
    return std::nullopt;
}

} // namespace

kitModal::kitModal()
{
    Register();
}

kitModal::~kitModal()
{
    Unregister();
    EXPECT_TRUE(m_expected.empty()) << m_expected.size() << " expected boxes did not come";
    EXPECT_TRUE(m_expected_own.empty()) << m_expected_own.size() << " expected dialogs did not come";
}

void kitModal::expect(std::function<int(wxDialog *)> answer)
{
    m_expected.push_back(std::move(answer));
}

void kitModal::expect_own(std::function<void(wxDialog *)> begin)
{
    m_expected_own.push_back(std::move(begin));
}

void kitModal::expect_message(int answer)
{
    expect([answer](wxDialog * dialog) {
        EXPECT_TRUE(message_of(*dialog)) << "not a message box";
        return answer;
    });
}

void kitModal::expect_file(std::string const & path)
{
    expect([path](wxDialog * dialog) {
        auto * const files = dynamic_cast<wxFileDialog *>(dialog);
        if (!files) {
            ADD_FAILURE() << "not a file dialog";
            return static_cast<int>(wxID_CANCEL);
        }
        auto const chosen = wxString::FromUTF8(path);
        files->SetPath(chosen);
        // The dialog takes a path over in the course of an event loop.
        auto * const loop = wxEventLoopBase::GetActive();
        auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (files->GetPath() != chosen && std::chrono::steady_clock::now() < deadline)
            loop->DispatchTimeout(10);
        EXPECT_EQ(files->GetPath().utf8_string(), path);
        return static_cast<int>(wxID_OK);
    });
}

void kitModal::expect_file_cancelled()
{
    expect([](wxDialog * dialog) {
        EXPECT_TRUE(dynamic_cast<wxFileDialog *>(dialog)) << "not a file dialog";
        return static_cast<int>(wxID_CANCEL);
    });
}

int kitModal::Enter(wxDialog * dialog)
{
    auto const message = message_of(*dialog);
    bool const files = dynamic_cast<wxFileDialog *>(dialog) || dynamic_cast<wxDirDialog *>(dialog);
    if (!message && !files) {
        // One of the program's own dialogs, which the test drives.
        if (!m_expected_own.empty()) {
            m_expected_own.front()(dialog);
            m_expected_own.pop_front();
        }
        return wxID_NONE;
    }
    if (message) {
        m_said.push_back(message->text);
        m_styles.push_back(message->style);
    }
    if (m_expected.empty()) {
        ADD_FAILURE() << "an unexpected box: " << (message ? m_said.back() : "a file dialog");
        return wxID_CANCEL;
    }
    auto const answer = std::move(m_expected.front());
    m_expected.pop_front();
    return answer(dialog);
}
