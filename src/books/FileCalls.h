#pragma once

#include <functional>

#include <sys/types.h>

// The system calls that read and save the program's files, behind one
// replaceable hook, so that a test can make any step fail (a write after so
// many bytes, the sync, the close, the rename, a read) as a full disk or a
// failing device would, without root. Each call answers as the system call of
// its name does, with errno set on failure.
struct FileCalls {
    std::function<int(const char* path, int flags, mode_t mode)> open;
    std::function<ssize_t(int fd, void* data, size_t size)> read;
    std::function<ssize_t(int fd, const void* data, size_t size)> write;
    std::function<int(int fd)> fsync;
    std::function<int(int fd)> close;
    std::function<int(const char* from, const char* to)> rename;
};

// The system's own calls.
FileCalls systemFileCalls();
// Installs calls (an empty member keeps the present one) and returns the
// previous set, so a caller can put it back.
FileCalls installFileCalls(const FileCalls& calls);
const FileCalls& fileCalls();
