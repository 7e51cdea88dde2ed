#include "books/FileCalls.h"

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

template <typename F>
void keepOrReplace(F& present, const F& replacement)
{
    if (replacement)
        present = replacement;
}

} // namespace

FileCalls installFileCalls(const FileCalls& calls)
{
    FileCalls previous = installed();
    keepOrReplace(installed().open, calls.open);
    keepOrReplace(installed().read, calls.read);
    keepOrReplace(installed().write, calls.write);
    keepOrReplace(installed().fsync, calls.fsync);
    keepOrReplace(installed().close, calls.close);
    keepOrReplace(installed().rename, calls.rename);
    return previous;
}

const FileCalls& fileCalls()
{
    return installed();
}
