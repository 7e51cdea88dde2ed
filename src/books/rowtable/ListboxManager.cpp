#include "books/rowtable/ListboxManager.h"

#include "books/LedgerNames.h"
#include "books/rowtable/TableFileReader.h"
#include "platform/Dates.h"
#include "platform/TextHelpers.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kSeparator = Listbox::kSeparator;
constexpr int kDateColumn = 2;

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
    TableFileRows content = readTableFile(source.path, table.ColumnCount(), InStr(fileName, u"AccountData") > 0);
    if (!content.rows)
        return {content.problem};
    table.replaceAllRows(std::move(*content.rows));
    convertToSQLdate(table);
    return {};
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
        table.prefetchAhead(row);
        const QStringView text = table.CellView(row, kDateColumn);
        // Ten characters with the hyphens in place stay as they are, whether a
        // date can be read from them or not: nearly every stored date, and no
        // need to read it.
        if (text.size() == 10 && text[4] == u'-' && text[7] == u'-')
            continue;
        QDate date;
        if (ParseDate(text, date))
            table.SetCell(row, kDateColumn, SQLDate(date));
    }
}
