#include "support/FailingSaves.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>

FailingSaves::FailingSaves(Step step, qint64 bytes)
    : step_(step)
    , limit_(bytes)
{
    const FileCalls system = systemFileCalls();
    FileCalls calls;
    calls.open = [this, system](const char* path, int flags, mode_t mode) {
        if (step_ == Step::Create && (flags & O_CREAT) != 0) {
            errno = EACCES;
            return -1;
        }
        return system.open(path, flags, mode);
    };
    calls.write = [this, system](int fd, const void* data, size_t size) -> ssize_t {
        if (step_ == Step::Write) {
            const qint64 room = limit_ - written_;
            if (room <= 0) {
                errno = ENOSPC;
                return -1;
            }
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
        if ((step_ == Step::Sync && !folder) || (step_ == Step::FolderSync && folder)) {
            errno = EIO;
            return -1;
        }
        return system.fsync(fd);
    };
    calls.close = [this, system](int fd) {
        const int result = system.close(fd);
        if (step_ == Step::Close) {
            errno = EIO;
            return -1;
        }
        return result;
    };
    calls.rename = [this, system](const char* from, const char* to) {
        if (step_ == Step::Rename) {
            errno = EXDEV;
            return -1;
        }
        return system.rename(from, to);
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
        if (failing_.contains(fd)) {
            errno = EIO;
            return -1;
        }
        return system.read(fd, data, size);
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
