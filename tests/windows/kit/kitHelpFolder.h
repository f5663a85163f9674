#pragma once

#include "kit/kitApp.h"

#include <filesystem>
#include <string>

/// A folder of its own for the help books, in which there is none, for as long as this lives. The application
/// finds nothing else of its installation meanwhile.
class kitHelpFolder {
public:
    kitHelpFolder(kitApp & app, kitTempFolder const & folder)
        : m_app(app), m_installation(app.move_installation(folder / "installation"))
    {
        std::filesystem::create_directories(path());
    }
    ~kitHelpFolder() { m_app.move_installation(m_installation); }
    kitHelpFolder(kitHelpFolder const &) = delete;
    kitHelpFolder & operator=(kitHelpFolder const &) = delete;

    std::string path() const
    {
        return m_app.file_locator().search_path(sdbHRKDirectory::help).directories().front().utf8();
    }

private:
    kitApp & m_app;
    std::string m_installation; // where the real one is
};
