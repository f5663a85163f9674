#pragma once

#include "kit/kitApp.h"
#include "kit/kitAssertions.h"

#include <gtest/gtest.h>
#include <wx/init.h>

/// A test with an application object of its own, constructed and no further, on a minimal installation.
class kitAppTest : public testing::Test {
protected:
    void SetUp() override
    {
        setenv("LC_ALL", "C", 1);
        kit_install_minimum(m_folder, "installation");
        m_app = new kitApp(installation(), m_folder / "user");
        wxApp::SetInstance(m_app);
        kit_fail_on_assertions();
        m_arguments[0] = m_name;
        ASSERT_TRUE(wxEntryStart(m_argument_count, m_arguments));
    }
    void TearDown() override { wxEntryCleanup(); }

    kitApp & app() { return *m_app; }
    std::string installation() const { return m_folder / "installation"; }
    std::string user_folder() const { return m_folder / "user/Tester"; }
    kitTempFolder const & folder() const { return m_folder; }

    /// Writes a file of the installation, for instance "share/vmr/product".
    std::string install(std::string const & name, std::string const & content)
    {
        return m_folder.write("installation/" + name, content);
    }

    /// All the stages of a start.
    void start()
    {
        m_app->pre_splash_screen_init();
        ASSERT_TRUE(m_app->run_on_init());
        m_app->initialise_services();
    }

private:
    kitTempFolder m_folder;
    kitApp * m_app = nullptr; // the toolkit deletes it
    char m_name[5] = "test";
    char * m_arguments[2] = {nullptr, nullptr};
    int m_argument_count = 1;
};
