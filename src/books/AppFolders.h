#pragma once

#include <QString>

// Where the program keeps its files, under the user's application data folder
// (on Linux $XDG_DATA_HOME, usually ~/.local/share):
//     Quillmark Preferences, Quillmark_WindowData
//     Quillmark/BookList
//     Quillmark/Books/<ledger name>AccountData, <ledger name>TransData, WindowData
namespace AppFolders {

QString applicationData();
QString quillmark(const QString& applicationData);
QString books(const QString& applicationData);
// The folder "Books" if it exists, else "".
QString existingBooks(const QString& applicationData);

// Creates "Quillmark" and "Quillmark/Books" where they are missing, and returns the
// path of "Books", or "" when it isn't there after all. Failures are not reported.
QString makeFolders(const QString& applicationData);

// Removes what saves killed on the way left of the program's files: of the
// ledgers' files and "WindowData" in "Books", of "BookList", and of
// "Quillmark Preferences" and "Quillmark_WindowData".
void removeSaveLeftovers(const QString& applicationData);

// Puts two blanks in front of every ledger file name in the folder that lacks them:
// older versions named a ledger's files without its two leading blanks. An item
// whose new name is taken keeps its old one.
void renameOldLedgerFiles(const QString& booksFolder);

} // namespace AppFolders
