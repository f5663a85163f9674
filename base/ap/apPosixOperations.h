#pragma once

#include "ap/apIFileOperations.h"
#include "ap/apILibraryLoaderOperations.h"
#include "ap/apIProcessEnvironmentOperations.h"
#include "ap/apIProcessThreadOperations.h"
#include "ap/apISynchOperations.h"

/// The operations of this platform. None of them holds state: objects may be made where they are needed.
class apPosixFileOperations : public apIFileOperations {
public:
    bool exists(apPathName const & path) const override;
    bool is_file(apPathName const & path) const override;
    bool is_directory(apPathName const & path) const override;
    bool is_writable_directory(apPathName const & path) const override;
    apFileResult size(apPathName const & path, std::uint64_t & bytes) const override;
    apFileResult list_directory(apPathName const & directory, std::vector<apFileName> & names) const override;
    apFileResult list_by_extension(apPathName const & directory, apString const & extension,
                                   apIStringCompare const & compare,
                                   std::vector<apPathName> & paths) const override;
    apFileResult read_file(apPathName const & path, std::string & content,
                           std::size_t limit = std::size_t(64) << 20) const override;
    apFileResult replace_file(apPathName const & path, std::string_view content) const override;
    bool can_replace_file(apPathName const & path) const override;
    apFileResult copy(apPathName const & from, apPathName const & to) const override;
    apFileResult rename(apPathName const & from, apPathName const & to) const override;
    apFileResult remove(apPathName const & path) const override;
    apFileResult make_directory(apPathName const & path) const override;
    apFileResult make_directories(apPathName const & path) const override;
    apPathName temp_directory() const override;
};

class apPosixProcessEnvironmentOperations : public apIProcessEnvironmentOperations {
public:
    utString environment(utString const & name) const override;
    apPathName executable_path() const override;
    apPathName current_directory() const override;
};

class apPosixSynchOperations : public apISynchOperations {
public:
    std::unique_ptr<apILock> make_lock() const override;
};

class apPosixProcessThreadOperations : public apIProcessThreadOperations {
public:
    std::thread start_thread(std::function<void()> body) const override;
    int process_id() const override;
};

class apPosixLibraryLoaderOperations : public apILibraryLoaderOperations {
public:
    void * load(apPathName const & path, utString & error) const override;
    void * symbol(void * handle, utString const & name) const override;
    void unload(void * handle) const override;
};
