#include "books/FileCalls.h"

#include "platform/Hooks.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

FileCalls systemFileCalls()
{
    return {
        [](const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); },
        [](int fd, void* data, size_t size) { return ::read(fd, data, size); },
        [](int fd, const void* data, size_t size) { return ::write(fd, data, size); },
        [](int fd) { return ::fsync(fd); },
        [](int fd) { return ::close(fd); },
        [](const char* from, const char* to) { return ::rename(from, to); },
    };
}

namespace {

FileCalls& installed()
{
    static FileCalls calls = systemFileCalls();
    return calls;
}

} // namespace

FileCalls installFileCalls(const FileCalls& calls)
{
    return replaceSetHooks(installed(), calls, &FileCalls::open, &FileCalls::read, &FileCalls::write, &FileCalls::fsync,
                           &FileCalls::close, &FileCalls::rename);
}

const FileCalls& fileCalls()
{
    return installed();
}
