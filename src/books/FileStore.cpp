#include "books/FileStore.h"

#include "books/FileCalls.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kTemporaryMark = u".saving-";
constexpr int kTemporaryLetters = 6;
constexpr QStringView kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

QString systemReason(int error)
{
    return qt_error_string(error);
}

// Why the entry at a path is no plain file, or "" when it is one.
QString notPlainReason(const QString& path, mode_t mode)
{
    QString what;
    if (S_ISREG(mode))
        return {};
    if (S_ISLNK(mode))
        what = u"a link"_s;
    else if (S_ISDIR(mode))
        what = u"a folder"_s;
    else if (S_ISFIFO(mode))
        what = u"a named pipe"_s;
    else if (S_ISCHR(mode) || S_ISBLK(mode))
        what = u"a device"_s;
    else
        what = u"a special file"_s;
    return u"\"%1\" is %2, not a plain file"_s.arg(QDir::toNativeSeparators(path), what);
}

QByteArray encoded(const QString& path)
{
    return QFile::encodeName(path);
}

// The temporary name of a save, or -1 when the file name isn't one.
qsizetype temporaryMarkAt(QStringView name)
{
    const qsizetype at = name.size() - kTemporaryMark.size() - kTemporaryLetters;
    if (at <= 0 || name.mid(at, kTemporaryMark.size()) != kTemporaryMark)
        return -1;
    for (const QChar c : name.mid(at + kTemporaryMark.size()))
        if (!kLetters.contains(c))
            return -1;
    return at;
}

} // namespace

FileReplacement::FileReplacement(const QString& path)
    : path_(path)
{
    if (path.isEmpty()) {
        fail(u"the file has no name"_s);
        return;
    }
    const QByteArray target = encoded(path);
    struct stat present {};
    const bool replacing = ::lstat(target.constData(), &present) == 0;
    if (replacing) {
        if (const QString reason = notPlainReason(path, present.st_mode); !reason.isEmpty()) {
            fail(reason);
            return;
        }
    } else if (errno != ENOENT) {
        fail(systemReason(errno));
        return;
    }

    const QFileInfo info(path);
    const QString name = info.fileName();
    removeSaveLeftovers(info.path(), [&](QStringView fileName) { return fileName == name; });

    const FileCalls& calls = fileCalls();
    for (int attempt = 0; attempt < 100 && fd_ < 0; ++attempt) {
        QString suffix = kTemporaryMark.toString();
        for (int i = 0; i < kTemporaryLetters; ++i)
            suffix += kLetters[QRandomGenerator::global()->bounded(int(kLetters.size()))];
        temporaryPath_ = encoded(path + suffix);
        fd_ = calls.open(temporaryPath_.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (fd_ < 0 && errno != EEXIST)
            break;
    }
    if (fd_ < 0) {
        const int error = errno;
        temporaryPath_.clear();
        fail(systemReason(error));
        return;
    }
    // The lock tells a later cleanup that this file belongs to a save that is
    // still running; it goes with the process, however that ends.
    ::flock(fd_, LOCK_EX | LOCK_NB);
    // The new version keeps the old one's permissions; a new file gets the umask's.
    if (replacing)
        ::fchmod(fd_, present.st_mode & 07777);
}

FileReplacement::~FileReplacement()
{
    discardTemporary();
}

bool FileReplacement::write(const char* data, qsizetype size)
{
    if (problem_.failed())
        return false;
    const FileCalls& calls = fileCalls();
    while (size > 0) {
        const ssize_t written = calls.write(fd_, data, size_t(size));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            // A write that takes nothing of a plain file is a full disk in all but name.
            fail(systemReason(written < 0 ? errno : ENOSPC));
            return false;
        }
        data += written;
        size -= written;
    }
    return true;
}

FileProblem FileReplacement::commit()
{
    if (problem_.failed())
        return problem_;
    const FileCalls& calls = fileCalls();
    if (calls.fsync(fd_) != 0) {
        fail(systemReason(errno));
        return problem_;
    }
    const int fd = std::exchange(fd_, -1);
    if (calls.close(fd) != 0) {
        fail(systemReason(errno));
        return problem_;
    }
    if (calls.rename(temporaryPath_.constData(), encoded(path_).constData()) != 0) {
        fail(systemReason(errno));
        return problem_;
    }
    temporaryPath_.clear();

    // The new name is only on the disk once the folder that holds it is.
    const QByteArray folder = encoded(QFileInfo(path_).path());
    const int folderFd = calls.open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    const bool synced = folderFd >= 0 && calls.fsync(folderFd) == 0;
    const int syncError = errno;
    if (folderFd >= 0)
        calls.close(folderFd);
    if (!synced)
        problem_ = {systemReason(syncError), false};
    return problem_;
}

void FileReplacement::fail(const QString& reason)
{
    problem_ = {reason, true};
    discardTemporary();
}

void FileReplacement::discardTemporary()
{
    if (fd_ >= 0)
        fileCalls().close(std::exchange(fd_, -1));
    if (!temporaryPath_.isEmpty())
        ::unlink(std::exchange(temporaryPath_, {}).constData());
}

FileProblem replaceFile(const QString& path, const QByteArray& bytes)
{
    FileReplacement file(path);
    file.write(bytes);
    return file.commit();
}

PlainFileReader::PlainFileReader(const QString& path)
{
    const QByteArray name = encoded(path);
    const FileCalls& calls = fileCalls();
    // Not following a link, and not waiting for a writer at a named pipe.
    fd_ = calls.open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0);
    if (fd_ < 0) {
        const int error = errno;
        struct stat entry {};
        if (error == ENOENT)
            return; // no file: nothing to read, and no problem
        if (::lstat(name.constData(), &entry) == 0 && !S_ISREG(entry.st_mode))
            problem_ = notPlainReason(path, entry.st_mode);
        else
            problem_ = systemReason(error);
        return;
    }
    struct stat entry {};
    if (::fstat(fd_, &entry) != 0)
        problem_ = systemReason(errno);
    else
        problem_ = notPlainReason(path, entry.st_mode);
    if (!problem_.isEmpty()) {
        calls.close(std::exchange(fd_, -1));
        return;
    }
    size_ = qsizetype(entry.st_size);
}

PlainFileReader::~PlainFileReader()
{
    if (fd_ >= 0)
        fileCalls().close(fd_);
}

qsizetype PlainFileReader::read(char* into, qsizetype max)
{
    if (fd_ < 0 || !problem_.isEmpty())
        return -1;
    for (;;) {
        const ssize_t got = fileCalls().read(fd_, into, size_t(max));
        if (got >= 0)
            return got;
        if (errno != EINTR) {
            problem_ = systemReason(errno);
            return -1;
        }
    }
}

bool PlainFileReader::rewind()
{
    if (fd_ < 0 || !problem_.isEmpty())
        return false;
    if (::lseek(fd_, 0, SEEK_SET) != 0) {
        problem_ = systemReason(errno);
        return false;
    }
    return true;
}

FileContent readPlainFile(const QString& path)
{
    PlainFileReader file(path);
    if (!file.isOpen())
        return {std::nullopt, file.problem()};
    QByteArray bytes;
    bytes.reserve(file.size());
    char buffer[64 * 1024];
    for (;;) {
        const qsizetype got = file.read(buffer, sizeof buffer);
        if (got < 0)
            return {std::nullopt, file.problem()};
        if (got == 0)
            return {std::move(bytes), {}};
        bytes.append(buffer, got);
    }
}

void removeSaveLeftovers(const QString& folder, const std::function<bool(QStringView fileName)>& ours)
{
    if (folder.isEmpty())
        return;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        const qsizetype mark = temporaryMarkAt(name);
        if (mark < 0 || !ours(QStringView(name).left(mark)))
            continue;
        const QByteArray path = encoded(entries.filePath());
        const int fd = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0)
            continue;
        struct stat entry {};
        // Locked: a save still writes it. Free: its save was killed.
        if (::fstat(fd, &entry) == 0 && S_ISREG(entry.st_mode) && ::flock(fd, LOCK_EX | LOCK_NB) == 0)
            ::unlink(path.constData());
        ::close(fd);
    }
}
