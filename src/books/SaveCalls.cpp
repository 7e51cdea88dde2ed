#include "books/SaveCalls.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

SaveCalls systemSaveCalls()
{
    return {
        [](const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); },
        [](int fd, const void* data, size_t size) { return ::write(fd, data, size); },
        [](int fd) { return ::fsync(fd); },
        [](int fd) { return ::close(fd); },
        [](const char* from, const char* to) { return ::rename(from, to); },
    };
}

namespace {

SaveCalls& installed()
{
    static SaveCalls calls = systemSaveCalls();
    return calls;
}

template <typename F>
void keepOrReplace(F& present, const F& replacement)
{
    if (replacement)
        present = replacement;
}

} // namespace

SaveCalls installSaveCalls(const SaveCalls& calls)
{
    SaveCalls previous = installed();
    keepOrReplace(installed().open, calls.open);
    keepOrReplace(installed().write, calls.write);
    keepOrReplace(installed().fsync, calls.fsync);
    keepOrReplace(installed().close, calls.close);
    keepOrReplace(installed().rename, calls.rename);
    return previous;
}

const SaveCalls& saveCalls()
{
    return installed();
}
