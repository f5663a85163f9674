#include "vmr/vmrResourceFile.h"

#include "ap/apPosixOperations.h"

namespace {

// No translator has options of this size; a file beyond it is something else that was chosen by mistake.
constexpr std::size_t largest_file = 16 << 20;

} // namespace

int vmr_resource_load(utString const & file, coResourceTable & table, std::vector<std::string> & problems)
{
    std::string text;
    auto const result =
        apPosixFileOperations().read_file(apPathName::from_utf8(file.view()), text, largest_file);
    if (!result) {
        problems.push_back(file.str() + ": " + result.message().str());
        return 0;
    }
    auto const before = problems.size();
    vmr_read_resource_text(text, table, problems);
    for (auto i = before; i < problems.size(); ++i)
        problems[i] = file.str() + ", " + problems[i];
    return 1;
}

int vmr_resource_save(utString const & file, coResourceTable const * table)
{
    apPosixFileOperations const files;
    auto const path = apPathName::from_utf8(file.view());
    // Replacing a file would not ask for the permission to write it.
    if (!table || file.empty() || !files.can_replace_file(path))
        return 0;
    return static_cast<bool>(files.replace_file(path, vmr_resource_text(*table)));
}
