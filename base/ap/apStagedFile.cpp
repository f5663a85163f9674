#include "ap/apStagedFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

#include "ap/apPathName.h"

apStagedFile::apStagedFile(std::string const & target) : m_target(target)
{
    m_directory = apPathName::from_utf8(target).directory().utf8();
    if (m_directory.empty())
        m_directory = ".";
    std::random_device random;
    do {
        m_path = m_directory + "/.vmr-" + std::to_string(random()) + std::to_string(random()) + ".tmp";
        m_file = apFileDescriptor(m_path, O_WRONLY | O_CREAT | O_EXCL, 0666);
    } while (!m_file.open() && errno == EEXIST);
    if (!m_file.open()) {
        m_result = apFileResult(errno);
        m_path.clear();
    }
}

apStagedFile::~apStagedFile()
{
    if (!m_path.empty())
        ::unlink(m_path.c_str());
}

void apStagedFile::note(apFileResult result)
{
    if (m_result)
        m_result = result;
}

void apStagedFile::write(std::string_view bytes)
{
    if (m_result)
        note(m_file.write(bytes));
}

void apStagedFile::use_permissions_of_target()
{
    struct stat status;
    if (m_result && ::stat(m_target.c_str(), &status) == 0 &&
        ::fchmod(m_file.get(), status.st_mode & 0777) != 0)
        note(apFileResult(errno));
}

apFileResult apStagedFile::commit()
{
    if (m_result)
        note(m_file.sync());
    if (m_result && ::rename(m_path.c_str(), m_target.c_str()) != 0)
        note(apFileResult(errno));
    if (m_result) {
        m_path.clear();
        // The new name itself must reach the disk too; a file system that has no such notion does no harm.
        apFileDescriptor const directory(m_directory, O_RDONLY | O_DIRECTORY);
        if (directory.open())
            note(directory.sync());
    }
    return m_result;
}
