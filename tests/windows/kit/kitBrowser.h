#pragma once

#include "kit/kitTempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <string>

/// Stands in for the user's browser, for as long as this lives, and keeps the addresses that it was to open.
class kitBrowser {
public:
    kitBrowser() : m_path(std::getenv("PATH"))
    {
        auto const program = m_folder.write("bin/xdg-open", "#!/bin/sh\nprintf 'open <%s>\\n' \"$*\" >> \"" +
                                                                (m_folder / "opened") + "\"\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        setenv("PATH", ((m_folder / "bin") + ":" + m_path).c_str(), 1);
    }
    ~kitBrowser() { setenv("PATH", m_path.c_str(), 1); }
    kitBrowser(kitBrowser const &) = delete;
    kitBrowser & operator=(kitBrowser const &) = delete;

    std::string opened() const { return kit_read_file(m_folder / "opened"); } ///< one line each

private:
    kitTempFolder m_folder;
    std::string m_path;
};
