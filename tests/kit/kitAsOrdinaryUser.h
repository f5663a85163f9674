#pragma once

#include "kit/kitOrdinaryUser.h"

#include <filesystem>
#include <stdexcept>

/// Takes the rights of root from this process, and from those that it starts, for as long as this lives. Of
/// no effect where it has none. The threads of the process all change.
class kitAsOrdinaryUser {
public:
    kitAsOrdinaryUser() : m_root(geteuid() == 0)
    {
        if (m_root && (setresgid(ordinary_user, ordinary_user, 0) != 0 ||
                       setresuid(ordinary_user, ordinary_user, 0) != 0))
            throw std::runtime_error("the rights of root cannot be given up");
    }
    ~kitAsOrdinaryUser()
    {
        if (m_root && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0))
            std::terminate();
    }
    kitAsOrdinaryUser(kitAsOrdinaryUser const &) = delete;
    kitAsOrdinaryUser & operator=(kitAsOrdinaryUser const &) = delete;

private:
    bool m_root;
};

/// Gives a folder and all that is in it to the ordinary user.
inline void give_folder_to_ordinary_user(std::string const & path)
{
    give_to_ordinary_user(path);
    for (auto const & entry : std::filesystem::recursive_directory_iterator(path))
        if (!entry.is_symlink())
            give_to_ordinary_user(entry.path().string());
}
