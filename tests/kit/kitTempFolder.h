#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

/// A fresh folder that is gone, with all that is in it, at the end of the test.
class kitTempFolder {
public:
    kitTempFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "vmr-test-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no folder for temporary files");
        m_path = name;
    }
    ~kitTempFolder()
    {
        std::error_code ignored;
        for (auto const & entry : std::filesystem::recursive_directory_iterator(m_path, ignored))
            if (entry.is_directory(ignored))
                std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all,
                                             std::filesystem::perm_options::add, ignored);
        std::filesystem::remove_all(m_path, ignored);
    }
    kitTempFolder(kitTempFolder const &) = delete;
    kitTempFolder & operator=(kitTempFolder const &) = delete;

    std::filesystem::path const & path() const { return m_path; }
    std::string operator/(std::string const & name) const { return (m_path / name).string(); }

    /// Writes a file, with the folders above it, and gives its path.
    std::string write(std::string const & name, std::string const & content) const
    {
        auto const file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file.string();
    }

    std::string read(std::string const & name) const
    {
        std::ifstream stream(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    /// Whether there is anything of that name, also a link that leads nowhere.
    bool exists(std::string const & name) const
    {
        return std::filesystem::symlink_status(m_path / name).type() != std::filesystem::file_type::not_found;
    }
    /// How many files and folders lie in it.
    int count() const
    {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(m_path), {}));
    }
    /// The rights of a file, 0 when there is none.
    unsigned mode(std::string const & name) const
    {
        auto const status = std::filesystem::status(m_path / name);
        return std::filesystem::exists(status) ? static_cast<unsigned>(status.permissions()) & 07777U : 0U;
    }

private:
    std::filesystem::path m_path;
};

inline std::string kit_read_file(std::string const & path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
