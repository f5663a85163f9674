#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>

/// A fresh directory that disappears with all its content at the end of a test.
class TempDirectory {
public:
    TempDirectory()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "vmr-test-XXXXXX").native();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("no temporary directory");
        m_path = pattern;
    }
    ~TempDirectory()
    {
        // A test may have taken away the rights that the removal needs.
        std::error_code error;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, error);
        for (auto const & entry : std::filesystem::directory_iterator(m_path, error))
            if (std::filesystem::is_directory(entry.symlink_status(error)))
                std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(m_path, error);
    }
    TempDirectory(TempDirectory const &) = delete;
    TempDirectory & operator=(TempDirectory const &) = delete;

    std::string path() const { return m_path; }
    std::string path(std::string const & name) const { return m_path + "/" + name; }

    /// Makes a file and gives its path.
    std::string write(std::string const & name, std::string const & content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
        return path(name);
    }
    std::string read(std::string const & name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    bool exists(std::string const & name) const
    {
        return std::filesystem::symlink_status(path(name)).type() != std::filesystem::file_type::not_found;
    }
    /// How many files and directories lie in it.
    int count() const
    {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(m_path), {}));
    }
    unsigned mode(std::string const & name) const
    {
        struct stat status {};
        return ::stat(path(name).c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
    }

private:
    std::string m_path;
};
