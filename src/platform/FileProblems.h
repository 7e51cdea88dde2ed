#pragma once

#include <QString>

// Problems with the program's own files (a save that failed, a file that can't
// be read), told to the user through MsgBox: at once, or, while an operation
// gathers them, once at its end.
void tellFileProblem(const QString& message);

// Gathers the file problems told while it lives; when the outermost gathering
// ends, they show as one message, each distinct text once. An operation that
// stores both files of a ledger on a full disk thus says so once.
class FileProblemGathering {
public:
    FileProblemGathering();
    ~FileProblemGathering();
    FileProblemGathering(const FileProblemGathering&) = delete;
    FileProblemGathering& operator=(const FileProblemGathering&) = delete;
};
