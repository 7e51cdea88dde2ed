#include "books/rowtable/ListboxManager.h"

#include "books/LedgerNames.h"
#include "books/TextFiles.h"
#include "platform/Dates.h"
#include "platform/TextHelpers.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kSeparator = Listbox::kSeparator;
constexpr int kDateColumn = 2;
constexpr int kTypeColumn = 2;

// Splits a line at "@#@" into the cells of a row: cell 0 is always empty, since
// what a file holds in its first field doesn't survive a load; cells beyond the
// line's fields are empty, fields beyond the last column are ignored.
Listbox::Row rowFromLine(QStringView line, int columnCount)
{
    // A line that ends in part of a separator was cut short; the part is no text
    // of the last cell, which couldn't be stored again ("x@#" and "@#@" make
    // "x@#@#@", which splits after "x").
    while (line.endsWith(u"@#"))
        line.chop(2);
    QVarLengthArray<QStringView, 16> cells(columnCount);
    std::fill(cells.begin(), cells.end(), QStringView());
    qsizetype at = line.indexOf(kSeparator);
    for (int c = 1; c < columnCount && at >= 0; ++c) {
        const qsizetype from = at + kSeparator.size();
        at = line.indexOf(kSeparator, from);
        cells[c] = line.mid(from, at < 0 ? -1 : at - from);
    }
    return Listbox::Row(cells.data(), columnCount, columnCount);
}

RowPicture accountPicture(const Listbox::Row& row, bool first)
{
    if (first)
        return RowPicture::BookIcon;
    return row.cell(kTypeColumn).compare(u"Revenue", Qt::CaseInsensitive) == 0 ? RowPicture::accountPlus9
                                                                                : RowPicture::accountMinus9;
}

} // namespace

FileProblem ListboxManager::saveListBox(const Listbox& table, const QString& fileName) const
{
    if (deletingOn)
        return {};
    const BookFilePath target = bookFilePath(ProgramDataFolder, fileName);
    if (target.path.isEmpty())
        return {target.problem};
    // Encoded a piece at a time into one buffer that stays in the cache, and
    // put in place only once all of it is written and synced.
    FileReplacement file(target.path);
    constexpr qsizetype kChunk = 256 * 1024;
    QStringEncoder encoder(QStringEncoder::Utf8);
    QByteArray buffer(kChunk, Qt::Uninitialized);
    char* out = buffer.data();
    for (int row = 0; row < table.ListCount(); ++row) {
        table.prefetchCell(row + 16, 0);
        const QStringView line = table.storedLine(row);
        const qsizetype needed = encoder.requiredSpace(line.size()) + 1;
        if (out - buffer.data() + needed > buffer.size()) {
            if (!file.write(buffer.constData(), out - buffer.data()))
                break; // the old file stays
            if (needed > buffer.size())
                buffer.resize(needed);
            out = buffer.data();
        }
        out = encoder.appendToBuffer(out, line);
        *out++ = '\n';
    }
    file.write(buffer.constData(), out - buffer.data());
    return file.commit();
}

FileProblem ListboxManager::loadListBox(Listbox& table, const QString& fileName) const
{
    const BookFilePath source = bookFilePath(ProgramDataFolder, fileName);
    if (source.path.isEmpty())
        return {ProgramDataFolder.isEmpty() ? QString() : source.problem}; // no folder: nothing to read
    const TextContent content = readTextFile(source.path);
    if (!content.text)
        return {content.problem};
    table.replaceAllRows(rowsOfText(*content.text, table.ColumnCount(), InStr(fileName, u"AccountData") > 0));
    convertToSQLdate(table);
    return {};
}

std::vector<Listbox::Row> ListboxManager::rowsOfText(QStringView text, int columnCount, bool accountData)
{
    std::vector<Listbox::Row> rows;
    forEachLine(text, [&](QStringView line) {
        if (line.isEmpty())
            return;
        rows.push_back(rowFromLine(line, columnCount));
        if (accountData)
            rows.back().setPicture(accountPicture(rows.back(), rows.size() == 1));
    });
    return rows;
}

bool ListboxManager::fitsTheFile(QStringView cell)
{
    // A cell ending in "@#" runs into the separator after it: "x@#" + "@#@" reads
    // back as "x" and a stray "#@" at the start of the next cell.
    return !cell.contains(kSeparator) && !cell.contains(u'\n') && !cell.contains(u'\r') && !cell.endsWith(u"@#");
}

void ListboxManager::convertToSQLdate(Listbox& table)
{
    if (table.Name() != "transBox"_L1)
        return;
    for (int row = 0; row < table.ListCount(); ++row) {
        const QStringView text = table.CellView(row, kDateColumn);
        QDate date;
        if (!ParseDate(text, date))
            continue;
        // A read date of ten characters with the hyphens in place is its own SQLDate.
        const bool alreadySql = text.size() == 10 && text[4] == u'-' && text[7] == u'-';
        if (!alreadySql)
            table.SetCell(row, kDateColumn, SQLDate(date));
    }
}
