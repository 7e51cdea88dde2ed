#pragma once

#include "books/rowtable/Listbox.h"

#include <QString>

#include <optional>

// Reads a table file into rows a piece at a time, decoding straight into the
// rows' store: neither the file's bytes nor its text is ever held whole, so a
// load needs little more memory than the table it fills.
//
// Lines end at "\n", "\r\n" or a lone "\r", and the last one may end without;
// blank lines are skipped. A line is split at "@#@": its first field is
// dropped (column 0 starts empty), missing cells read "", fields beyond the
// last column are ignored. The text is UTF-8, a byte-order mark at the start
// dropped; a file with any byte that isn't valid UTF-8 (an older file in a
// one-byte encoding) is read again, every byte as Latin-1, so none is lost.
struct TableFileRows {
    std::optional<Listbox::Rows> rows; // none when there is no file or it can't be read
    QString problem;                   // why it can't be read
};
TableFileRows readTableFile(const QString& path, int columnCount, bool accountData);
