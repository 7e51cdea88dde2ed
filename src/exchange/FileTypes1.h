#pragma once

#include <QString>
#include <QStringList>

// The kinds of file the export and import deal in.
struct FileType {
    QString Name;
    QStringList Extensions;
    QString MacType;
    QString MacCreator;
    bool Imported = true;

    // As a file dialog lists it: "comma-separated-values (*.csv *.txt)".
    QString filter() const;
};

namespace FileTypes1 {
const FileType& Text();
const FileType& CommaSeparatedValues();
} // namespace FileTypes1
