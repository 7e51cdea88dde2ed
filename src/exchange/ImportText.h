#pragma once

#include <QByteArray>
#include <QChar>
#include <QString>
#include <QStringList>

#include <vector>

// A delimited text file as the import reads it: its bytes as text, and the text
// as records of fields.

// The text of a file: a UTF-8 byte-order mark is dropped; valid UTF-8 reads as
// UTF-8, anything else as Windows-1252 (the other way a bank writes a file).
QString decodeImportText(const QByteArray& bytes);

struct Record {
    int line = 0;       // the line of the file the record starts on, from 1
    QStringList fields;
};

struct RecordList {
    std::vector<Record> records;
    int unclosedQuoteLine = 0; // the line where a quoted field begins that never ends; 0: none
    int nulLine = 0;           // the first line holding a NUL character: not a text file; 0: none
};

// Reads the records of a text one by one, as readRecords tells.
class RecordReader {
public:
    RecordReader(const QString& text, QChar separator);
    // The next record; false at the end of the text, or at a field in quotes
    // that never ends (unclosedQuoteLine then says where it begins).
    bool next(Record& record);
    int unclosedQuoteLine() const { return unclosedQuoteLine_; }
    // How far the reading has come, in characters of the text.
    qsizetype position() const { return at_; }

private:
    bool lineBreakAt(qsizetype i) const { return data_[i] == u'\n' || data_[i] == u'\r'; }
    void skipLineBreak();

    const QChar* data_;
    qsizetype size_;
    QChar separator_;
    qsizetype at_ = 0;
    int line_ = 1;
    int unclosedQuoteLine_ = 0;
};

// The line of the first NUL character in the text: not a text file; 0: none.
int nulLineOf(const QString& text);

// The records of the text, cut at one separator character as RFC 4180 has it: a
// field in double quotes may hold the separator, line breaks and "" for a quote;
// a quote inside a field that doesn't begin with one is text. A line ends at LF,
// CR LF or CR. A blank line is a record of one empty field; a line break at the
// end of the text ends the last record and begins none.
RecordList readRecords(const QString& text, QChar separator);

// The separator a file most likely uses: of comma, semicolon, tab and bar, the
// one that stands outside quotes the same number of times, and most often, in
// the first lines; a comma when none does.
QChar guessSeparator(const QString& text);
