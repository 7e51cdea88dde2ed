#pragma once

#include "books/FileStore.h"

#include <QString>
#include <QStringView>

#include <optional>

// Whole text files as the program keeps them: UTF-8, lines ending in "\n".

// The text of bytes read from a file. Bytes that aren't valid UTF-8 (an older
// file in a one-byte encoding) are read one by one as Latin-1, so no byte is
// lost or replaced. A UTF-8 byte-order mark at the start is dropped.
QString decodeText(const QByteArray& bytes);

// The decoded text of a plain file; no text and no problem when there is no
// file; no text and the problem when it can't be read.
struct TextContent {
    std::optional<QString> text;
    QString problem;
};
TextContent readTextFile(const QString& path);

// Writes the text as the whole new content of the file (see FileReplacement).
FileProblem writeTextFile(const QString& path, QStringView text);

// Calls f for each line of text, without its line end. "\n", "\r\n" and a lone "\r"
// all end a line, so files from other systems read alike. A final line end
// doesn't make an extra empty line.
template <typename F>
void forEachLine(QStringView text, F&& f)
{
    qsizetype start = 0;
    const qsizetype size = text.size();
    while (start < size) {
        qsizetype end = start;
        while (end < size && text[end] != u'\n' && text[end] != u'\r')
            ++end;
        f(text.mid(start, end - start));
        if (end < size && text[end] == u'\r' && end + 1 < size && text[end + 1] == u'\n')
            ++end;
        start = end + 1;
    }
}
