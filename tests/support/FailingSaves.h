#pragma once

#include "books/SaveCalls.h"

#include <QtGlobal>

#include <string>

// Makes one step of every save fail, as a full disk or a failing device would,
// for as long as it lives.
class FailingSaves {
public:
    enum class Step {
        None,
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
    SaveCalls previous_;
};

std::string stepName(FailingSaves::Step step);
