#include "sdb/sdbModuleFile.h"

#include <cerrno>
#include <cstring>
#include <elf.h>
#include <filesystem>
#include <fstream>
#include <link.h>

namespace {

using Header = ElfW(Ehdr);

// What a module of this machine looks like is read off the program itself.
Header own_header()
{
    Header header = {};
    std::ifstream("/proc/self/exe", std::ios::binary).read(reinterpret_cast<char *>(&header), sizeof header);
    return header;
}

} // namespace

std::string sdb_module_file_problem(std::string const & path)
{
    std::error_code error;
    auto const status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status))
        return "there is no such file";
    if (!std::filesystem::is_regular_file(status))
        return "it is not a file";

    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::string("it cannot be read: ") + std::strerror(errno);
    Header header = {};
    file.read(reinterpret_cast<char *>(&header), sizeof header);
    if (file.gcount() != sizeof header || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return "it is not a shared object";

    static Header const own = own_header();
    if (header.e_ident[EI_CLASS] != own.e_ident[EI_CLASS] ||
        header.e_ident[EI_DATA] != own.e_ident[EI_DATA] || header.e_machine != own.e_machine)
        return "it is a shared object of another kind of machine";
    if (header.e_type != ET_DYN)
        return "it is a program or an object file, not a shared object";
    return {};
}
