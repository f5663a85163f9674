#pragma once

#include "ut/utString.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// Images of a test's own among those of the build tree's installation, for as long as this lives.
class kitInstalledImages {
public:
    kitInstalledImages() = default;
    ~kitInstalledImages()
    {
        for (auto const & file : m_files)
            std::filesystem::remove_all(file);
    }
    kitInstalledImages(kitInstalledImages const &) = delete;
    kitInstalledImages & operator=(kitInstalledImages const &) = delete;

    /// Gives the name again.
    utString install(std::string const & name, std::string const & content)
    {
        m_files.push_back(place() + name);
        std::ofstream(m_files.back(), std::ios::binary) << content;
        return utString(name);
    }
    utString install_folder(std::string const & name)
    {
        m_files.push_back(place() + name);
        std::filesystem::create_directory(m_files.back());
        return utString(name);
    }

private:
    static std::string place() { return VMR_BUILD_TREE "/share/vmr/xrc/"; }

    std::vector<std::string> m_files;
};
