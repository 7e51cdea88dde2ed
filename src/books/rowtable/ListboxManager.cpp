#include "books/rowtable/ListboxManager.h"

#include "books/rowtable/Listbox.h"
#include "books/TextFiles.h"
#include "platform/Dates.h"
#include "platform/TextHelpers.h"

#include <QSaveFile>
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

QString ListboxManager::pathOf(const QString& fileName) const
{
    return ProgramDataFolder.isEmpty() ? QString() : ProgramDataFolder + u'/' + fileName;
}

void ListboxManager::saveListBox(const Listbox& table, const QString& fileName) const
{
    if (deletingOn)
        return;
    const QString path = pathOf(fileName);
    if (path.isEmpty())
        return;
    // Encoded a piece at a time into one buffer that stays in the cache, and
    // put in place only once all of it is written.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    constexpr qsizetype kChunk = 256 * 1024;
    QStringEncoder encoder(QStringEncoder::Utf8);
    QByteArray buffer(kChunk, Qt::Uninitialized);
    char* out = buffer.data();
    for (int row = 0; row < table.ListCount(); ++row) {
        const QStringView line = table.storedLine(row);
        const qsizetype needed = encoder.requiredSpace(line.size()) + 1;
        if (out - buffer.data() + needed > buffer.size()) {
            if (file.write(buffer.constData(), out - buffer.data()) < 0)
                return; // the old file stays
            if (needed > buffer.size())
                buffer.resize(needed);
            out = buffer.data();
        }
        out = encoder.appendToBuffer(out, line);
        *out++ = '\n';
    }
    if (file.write(buffer.constData(), out - buffer.data()) < 0)
        return;
    file.commit();
}

void ListboxManager::loadListBox(Listbox& table, const QString& fileName) const
{
    const QString path = pathOf(fileName);
    if (path.isEmpty())
        return;
    const std::optional<QString> content = readTextFile(path);
    if (!content)
        return;

    const bool accountData = InStr(fileName, u"AccountData") > 0;
    std::vector<Listbox::Row> rows;
    forEachLine(*content, [&](QStringView line) {
        if (line.isEmpty())
            return;
        rows.push_back(rowFromLine(line, table.ColumnCount()));
        if (accountData)
            rows.back().setPicture(accountPicture(rows.back(), rows.size() == 1));
    });
    table.replaceAllRows(std::move(rows));
    convertToSQLdate(table);
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
