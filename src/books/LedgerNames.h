#pragma once

#include <QString>

class Listbox;

// Ledger names: the text of a row of the ledger list, always beginning with two
// blanks, which stay part of the name in file names and titles too.

inline const QString kLedgerPrefix = QStringLiteral("  ");

// The message for a name another ledger has, in the list or on disk.
QString ledgerNameInUseMessage();

// The name with the two leading blanks, added when missing.
QString withLedgerPrefix(const QString& name);

// Why a ledger name can't be used, or "" when it can: an empty name, a name only
// differing in case from another row of the list (the row `ownRow` left out), a
// character the file system refuses ("/", a control character), or a name too
// long for a file name. Files are named after the ledger, so any of these would
// lose or mix up a ledger's books.
QString ledgerNameProblem(const QString& name, const Listbox& ledgerList, int ownRow);

// The path of a file in the folder "Books" (a ledger's table file, "WindowData"),
// made by this function alone, so that no name leads anywhere else: the file
// name must be one name of its own, without "/", NUL or any other control
// character, not "." or "..", and short enough to be saved (255 bytes with the
// temporary name of a save). Otherwise the path is empty and the problem says why.
struct BookFilePath {
    QString path;
    QString problem;
};
BookFilePath bookFilePath(const QString& booksFolder, const QString& fileName);
