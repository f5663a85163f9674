#pragma once

#include <string>
#include <string_view>

#include "ap/apFileDescriptor.h"
#include "ap/apFileResult.h"

/// New content for a file, written beside it and put into its place in one step. Without commit() the file
/// stays as it was and nothing is left over.
class apStagedFile {
public:
    explicit apStagedFile(std::string const & target); ///< see result() for how it went
    ~apStagedFile();
    apStagedFile(apStagedFile const &) = delete;
    apStagedFile & operator=(apStagedFile const &) = delete;

    apFileResult result() const { return m_result; } ///< the first failure so far
    void write(std::string_view bytes);
    void use_permissions_of_target(); ///< where there is a target; otherwise those of a new file
    apFileResult commit();

private:
    void note(apFileResult result);

    std::string m_target;
    std::string m_directory;
    std::string m_path;
    apFileDescriptor m_file;
    apFileResult m_result;
};
