#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// Whole text files as the program keeps them: UTF-8, lines ending in "\n".

// The decoded text of a file, or nothing when it doesn't exist or can't be read.
// A file that isn't valid UTF-8 (an older file in a one-byte encoding) is read
// byte by byte as Latin-1, so no byte is lost or replaced.
std::optional<QString> readTextFile(const QString& path);

// Writes the text as the whole new content of the file. The old file is replaced
// only once the new one is completely on disk; on any failure it stays as it was.
bool writeTextFile(const QString& path, QStringView text);
// The same for bytes already encoded.
bool writeFileBytes(const QString& path, const QByteArray& bytes);

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
