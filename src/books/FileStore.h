#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

// How every file of the program reaches the disk and comes back: only plain
// files are read or written, never what a link points to, a named pipe, a
// device or a folder; and a save either puts the whole new content in place or
// leaves the old file as it was, byte for byte.

// What went wrong, in words for the user: the system's own reason ("No space
// left on device"), or what stands where the file belongs.
struct FileProblem {
    QString reason;          // "" when all went well
    bool oldFileKept = true; // false only when the new file is in place but may not be on disk yet
    bool failed() const { return !reason.isEmpty(); }
};

// A new version of a file, written beside it under a temporary name
// ("<name>.saving-" and six letters or digits) and put in its place in one
// step once it is complete and synced to the disk; then the folder is synced,
// so the new name is on the disk too. Every step goes through the calls of
// FileCalls and is checked; on any failure the temporary file goes and the old
// file stays. A replacement that is never committed leaves nothing behind.
class FileReplacement {
public:
    explicit FileReplacement(const QString& path);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // Appends bytes to the new version; false once any step has failed.
    bool write(const char* data, qsizetype size);
    bool write(const QByteArray& bytes) { return write(bytes.constData(), bytes.size()); }
    // Puts the new version in place, or says why it isn't.
    FileProblem commit();

private:
    void fail(const QString& reason);
    void discardTemporary();

    QString path_;
    QByteArray temporaryPath_;
    int fd_ = -1;
    FileProblem problem_;
};

// The whole new content of a file, as FileReplacement writes it.
FileProblem replaceFile(const QString& path, const QByteArray& bytes);

// The content of a plain file. No file there: no bytes and no problem. Anything
// else that isn't a plain file, or can't be read: no bytes, and the problem.
// Nothing waits: a named pipe or a device is never opened for reading.
struct FileContent {
    std::optional<QByteArray> bytes;
    QString problem;
};
FileContent readPlainFile(const QString& path);

// A plain file read a piece at a time, with the same checks as readPlainFile:
// for a file too large to hold twice.
class PlainFileReader {
public:
    explicit PlainFileReader(const QString& path);
    ~PlainFileReader();
    PlainFileReader(const PlainFileReader&) = delete;
    PlainFileReader& operator=(const PlainFileReader&) = delete;

    bool isOpen() const { return fd_ >= 0; }
    // Why the file can't be read; "" while all goes well.
    const QString& problem() const { return problem_; }
    // The file's size when it was opened.
    qsizetype size() const { return size_; }
    // Up to max bytes; 0 at the end; -1 once reading failed.
    qsizetype read(char* into, qsizetype max);
    // Back to the start, for a second reading.
    bool rewind();

private:
    int fd_ = -1;
    qsizetype size_ = 0;
    QString problem_;
};

// Removes the temporary files that killed saves left in a folder, of every file
// whose name `ours` accepts. The temporary file of a save still running, in
// this program or another, is left alone.
void removeSaveLeftovers(const QString& folder, const std::function<bool(QStringView fileName)>& ours);
