#include "support/FailingSaves.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>

namespace {

// A system call failing with this error.
int failing(int error)
{
    errno = error;
    return -1;
}

} // namespace

FailingSaves::FailingSaves(Step step, qint64 bytes)
    : step_(step)
    , limit_(bytes)
{
    const FileCalls system = systemFileCalls();
    FileCalls calls;
    calls.open = [this, system](const char* path, int flags, mode_t mode) {
        if (step_ == Step::Create && (flags & O_CREAT) != 0)
            return failing(EACCES);
        return system.open(path, flags, mode);
    };
    calls.write = [this, system](int fd, const void* data, size_t size) -> ssize_t {
        if (step_ == Step::Write) {
            const qint64 room = limit_ - written_;
            if (room <= 0)
                return ssize_t(failing(ENOSPC));
            size = std::min<size_t>(size, size_t(room)); // a short write first, as a filling disk gives
        }
        const ssize_t done = system.write(fd, data, size);
        if (done > 0)
            written_ += done;
        return done;
    };
    calls.fsync = [this, system](int fd) {
        const int mode = fcntl(fd, F_GETFL);
        const bool folder = mode >= 0 && (mode & O_ACCMODE) == O_RDONLY;
        if ((step_ == Step::Sync && !folder) || (step_ == Step::FolderSync && folder))
            return failing(EIO);
        return system.fsync(fd);
    };
    calls.close = [this, system](int fd) {
        const int result = system.close(fd);
        return step_ == Step::Close ? failing(EIO) : result;
    };
    calls.rename = [this, system](const char* from, const char* to) {
        return step_ == Step::Rename ? failing(EXDEV) : system.rename(from, to);
    };
    previous_ = installFileCalls(calls);
}

FailingSaves::~FailingSaves()
{
    installFileCalls(previous_);
}

std::string stepName(FailingSaves::Step step)
{
    switch (step) {
    case FailingSaves::Step::Create: return "create";
    case FailingSaves::Step::Write: return "write";
    case FailingSaves::Step::Sync: return "sync";
    case FailingSaves::Step::Close: return "close";
    case FailingSaves::Step::Rename: return "rename";
    case FailingSaves::Step::FolderSync: return "folder sync";
    }
    return {};
}

FailingReads::FailingReads(const QString& fileName)
    : name_(fileName.toUtf8())
{
    const FileCalls system = systemFileCalls();
    FileCalls calls;
    calls.open = [this, system](const char* path, int flags, mode_t mode) {
        const int fd = system.open(path, flags, mode);
        const QByteArray opened(path);
        if (fd >= 0 && (flags & O_ACCMODE) == O_RDONLY && opened.endsWith('/' + name_))
            failing_.insert(fd);
        return fd;
    };
    calls.read = [this, system](int fd, void* data, size_t size) -> ssize_t {
        return failing_.contains(fd) ? ssize_t(failing(EIO)) : system.read(fd, data, size);
    };
    calls.close = [this, system](int fd) {
        failing_.remove(fd);
        return system.close(fd);
    };
    previous_ = installFileCalls(calls);
}

FailingReads::~FailingReads()
{
    installFileCalls(previous_);
}
