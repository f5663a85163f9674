#include "host/hostFolders.h"

#include "sdk/sdkFiles.h"

#include <filesystem>
#include <unistd.h>
#include <utility>

void hostFolders::add(std::string const & path)
{
    if (auto folder = apMarkedFolder::open(path); folder.is_open()) {
        m_folders.push_back(std::move(folder));
    }
}

void hostFolders::remove() const
{
    for (auto const & folder : m_folders) {
        folder.remove();
    }
}

sdkResult host_enter_staging(hostJob & job)
{
    if (job.staging.empty() || job.comparison) {
        return sdkResult::completed();
    }
    auto const folder = apMarkedFolder::open(job.staging);
    if (!folder.is_open() || ::fchdir(folder.folder().descriptor()) != 0) {
        return sdkResult::write_error(
            sdkText("host::%s was not written: the folder %s, in which it was to be prepared, is gone or was "
                    "exchanged for something else. Translate again, or choose a folder in which nobody else "
                    "may write",
                    job.final_name, job.staging));
    }
    auto const file = std::filesystem::path(job.output.file);
    if (file.parent_path() == job.staging) {
        job.output.file = "./" + file.filename().native();
    }
    return sdkResult::completed();
}
