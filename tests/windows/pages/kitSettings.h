#pragma once

#include "windows/kit/kitWindowTest.h"

#include "sdu/sduStartupKeys.h"

/// Gives the application startup settings with a file of their own.
class kitSettingsTest : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        load();
    }
    void TearDown() override
    {
        kitWindowTest::TearDown();
        settings().load((user_folder() + "/resources/startup.hrk").c_str());
    }

    static sduStartupInfo & settings() { return app().startup_info(); }
    std::string path() const { return folder() / "startup.hrk"; }
    void load() const { settings().load(path().c_str()); }

    /// As another program would write it, behind the application's back.
    void write_elsewhere(utString const & value) const
    {
        sduStartupInfo other;
        other.load(path().c_str());
        other.add_field(sduSTARTASVIEWER, value);
    }
    /// What the next start will find.
    utString on_disk() const
    {
        sduStartupInfo other;
        other.load(path().c_str());
        return other.find_field(sduSTARTASVIEWER);
    }
    static utString in_this_run() { return settings().find_field(sduSTARTASVIEWER); }
};
