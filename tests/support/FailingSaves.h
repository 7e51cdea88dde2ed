#pragma once

#include "books/FileCalls.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <string>

// Makes one step of every save fail, as a full disk or a failing device would,
// for as long as it lives.
class FailingSaves {
public:
    enum class Step {
        Create,      // the temporary file can't be made
        Write,       // the disk fills up after `bytes` bytes of the file
        Sync,        // the file's sync reports an I/O error
        Close,       // the close reports an I/O error
        Rename,      // the new file can't take the old one's place
        FolderSync,  // the folder's sync reports an I/O error, after the rename
    };

    explicit FailingSaves(Step step, qint64 bytes = 0);
    ~FailingSaves();
    FailingSaves(const FailingSaves&) = delete;
    FailingSaves& operator=(const FailingSaves&) = delete;

    // Bytes written to the file under save so far, as the system took them.
    qint64 written() const { return written_; }

private:
    Step step_;
    qint64 limit_;
    qint64 written_ = 0;
    FileCalls previous_;
};

std::string stepName(FailingSaves::Step step);

// Makes every read of the files of one name fail with an I/O error, as a bad
// disk block would, for as long as it lives: the file is there but can't be read.
class FailingReads {
public:
    explicit FailingReads(const QString& fileName);
    ~FailingReads();
    FailingReads(const FailingReads&) = delete;
    FailingReads& operator=(const FailingReads&) = delete;

private:
    QByteArray name_;
    QSet<int> failing_;
    FileCalls previous_;
};
