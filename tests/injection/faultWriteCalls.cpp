// Calls that write to files and sockets.

#include "faultCall.h"

struct _IO_FILE;
struct iovec;
struct msghdr;

extern "C" int fileno(_IO_FILE * stream);

// clang-format off
FAULT_WRITE(-1, file, ssize_t, write, (int file, void const * bytes, size_t size), (file, bytes, size))
FAULT_WRITE(-1, file, ssize_t, pwrite, (int file, void const * bytes, size_t size, off_t at), (file, bytes, size, at))
FAULT_WRITE(-1, file, ssize_t, pwrite64, (int file, void const * bytes, size_t size, off_t at), (file, bytes, size, at))
FAULT_WRITE(-1, file, ssize_t, writev, (int file, iovec const * parts, int count), (file, parts, count))
FAULT_WRITE(-1, file, ssize_t, pwritev, (int file, iovec const * parts, int count, off_t at), (file, parts, count, at))
FAULT_WRITE(-1, file, ssize_t, send, (int file, void const * bytes, size_t size, int flags), (file, bytes, size, flags))
FAULT_WRITE(-1, file, ssize_t, sendmsg, (int file, msghdr const * message, int flags), (file, message, flags))
FAULT_WRITE(0, fileno(stream), size_t, fwrite, (void const * bytes, size_t size, size_t count, _IO_FILE * stream), (bytes, size, count, stream))
// clang-format on
