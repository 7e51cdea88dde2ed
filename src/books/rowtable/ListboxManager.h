#pragma once

#include "books/FileStore.h"
#include "books/rowtable/Listbox.h"

#include <QString>

#include <vector>

// Saves a row table to its file in the ledger folder and loads it back.
//
// A table file holds one line a row; a line is every cell of the row followed by
// "@#@" (hidden cell and column count not included), UTF-8, ending in "\n". There is
// no escaping: a cell holding "@#@" or a line break, or ending in "@#", doesn't
// survive a reload.
class ListboxManager {
public:
    // The folder "Books" that file names are resolved in; empty while there is none.
    QString ProgramDataFolder;
    // Set while a deletion runs: every save is skipped.
    bool deletingOn = false;

    // Rewrites the file from the table. The old file is replaced in one step, so a
    // failed save leaves it as it was; the problem says why it failed. A file name
    // that isn't a plain name of the folder is never written (bookFilePath).
    FileProblem saveListBox(const Listbox& table, const QString& fileName) const;
    // Fills the table from the file. A file that is missing leaves the table as it
    // was; so does one that can't be read, and the problem says why. Blank lines
    // are skipped, column 0 of every row starts empty, missing cells read "",
    // fields beyond the last column are ignored. Rows of an "AccountData" file get
    // their account pictures; the dates of transBox are rewritten to year-month-day.
    FileProblem loadListBox(Listbox& table, const QString& fileName) const;
    // Rewrites every date of transBox in column 2 that ParseDate reads into its
    // SQLDate form; other texts stay. Does nothing to any other table.
    static void convertToSQLdate(Listbox& table);
    // Whether a cell's text comes back from its table file as it went in.
    static bool fitsTheFile(QStringView cell);

};
