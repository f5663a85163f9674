// Calls that open, make, name and size files.

#include "faultCall.h"

struct _IO_FILE;

// The third argument counts only where a file is made; otherwise it is passed on as what it happens to be,
// which the real one does not look at.
// clang-format off
FAULT_CALL(open, -1, int, open, (char const * path, int flags, mode_t mode), (path, flags, mode))
FAULT_CALL(open, -1, int, open64, (char const * path, int flags, mode_t mode), (path, flags, mode))
FAULT_CALL(open, -1, int, openat, (int folder, char const * path, int flags, mode_t mode), (folder, path, flags, mode))
FAULT_CALL(open, -1, int, openat64, (int folder, char const * path, int flags, mode_t mode), (folder, path, flags, mode))
FAULT_CALL(open, -1, int, __open_2, (char const * path, int flags), (path, flags))
FAULT_CALL(open, -1, int, __open64_2, (char const * path, int flags), (path, flags))
FAULT_CALL(open, -1, int, __openat_2, (int folder, char const * path, int flags), (folder, path, flags))
FAULT_CALL(open, -1, int, __openat64_2, (int folder, char const * path, int flags), (folder, path, flags))
FAULT_CALL(open, -1, int, creat, (char const * path, mode_t mode), (path, mode))
FAULT_CALL(open, -1, int, creat64, (char const * path, mode_t mode), (path, mode))
FAULT_CALL(open, -1, int, mkstemp, (char * path), (path))
FAULT_CALL(open, -1, int, mkostemp, (char * path, int flags), (path, flags))
FAULT_CALL(open, nullptr, _IO_FILE *, fopen, (char const * path, char const * mode), (path, mode))
FAULT_CALL(open, nullptr, _IO_FILE *, fopen64, (char const * path, char const * mode), (path, mode))

FAULT_CALL(fsync, -1, int, fsync, (int file), (file))
FAULT_CALL(fsync, -1, int, fdatasync, (int file), (file))
FAULT_CALL(fsync, -1, int, syncfs, (int file), (file))

FAULT_CALL(rename, -1, int, rename, (char const * from, char const * to), (from, to))
FAULT_CALL(rename, -1, int, renameat, (int from_folder, char const * from, int to_folder, char const * to), (from_folder, from, to_folder, to))
FAULT_CALL(rename, -1, int, renameat2, (int from_folder, char const * from, int to_folder, char const * to, unsigned flags), (from_folder, from, to_folder, to, flags))
FAULT_CALL(rename, -1, int, link, (char const * from, char const * to), (from, to))
FAULT_CALL(rename, -1, int, linkat, (int from_folder, char const * from, int to_folder, char const * to, int flags), (from_folder, from, to_folder, to, flags))

FAULT_CALL(mkdir, -1, int, mkdir, (char const * path, mode_t mode), (path, mode))
FAULT_CALL(mkdir, -1, int, mkdirat, (int folder, char const * path, mode_t mode), (folder, path, mode))
FAULT_CALL(mkdir, nullptr, char *, mkdtemp, (char * path), (path))

FAULT_CALL(truncate, -1, int, ftruncate, (int file, off_t size), (file, size))
FAULT_CALL(truncate, -1, int, ftruncate64, (int file, off_t size), (file, size))
FAULT_CALL(truncate, -1, int, truncate, (char const * path, off_t size), (path, size))
FAULT_CALL(truncate, -1, int, truncate64, (char const * path, off_t size), (path, size))
FAULT_CALL(truncate, -1, int, fallocate, (int file, int mode, off_t from, off_t size), (file, mode, from, size))
FAULT_CALL(truncate, -1, int, fallocate64, (int file, int mode, off_t from, off_t size), (file, mode, from, size))
// clang-format on
