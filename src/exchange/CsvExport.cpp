#include "exchange/CsvExport.h"

#include "books/FileStore.h"
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString twoDigits(int value)
{
    const QString text = Str(value);
    return text.size() == 1 ? u"0"_s + text : text;
}

// The day as eight digits when the cell reads as a date, else the cell as it is.
QString datePosted(QStringView cell)
{
    QDate day;
    if (!ParseDate(cell, day))
        return cell.toString();
    return Str(day.year()) + twoDigits(day.month()) + twoDigits(day.day());
}

} // namespace

QByteArray exportRecords(const Listbox& transactions)
{
    QString text = kExportHeader + u"\r\n"_s;
    for (int row = 0; row < transactions.ListCount(); ++row) {
        const QStringView total = transactions.CellView(row, TransCol::Transaction);
        text += transactions.CellView(row, TransCol::Account);
        text += total.startsWith(u'-') ? u",DEBIT,"_s : u",CREDIT,"_s;
        text += datePosted(transactions.CellView(row, TransCol::Date));
        text += u',';
        text += total.trimmed();
        text += u',';
        text += transactions.CellView(row, TransCol::Description);
        text += u'\n';
    }
    return text.toUtf8();
}

QString exportFileName(const QString& chosenPath)
{
    return chosenPath.right(4).compare(u".csv", Qt::CaseInsensitive) == 0 ? chosenPath : chosenPath + u".csv"_s;
}

QString exportData(const Listbox& transactions, const QString& chosenPath)
{
    const QString fileName = QFileInfo(chosenPath).fileName();
    if (const FileProblem problem = replaceFile(chosenPath, exportRecords(transactions)); problem.failed())
        return u"Quillmark couldn't export the transactions to \"%1\": %2."_s.arg(fileName, problem.reason);
    const QString finalPath = exportFileName(chosenPath);
    if (finalPath == chosenPath)
        return {};
    // A rename never replaces a file that is there already.
    if (!QFile::rename(chosenPath, finalPath))
        return u"The transactions were exported to \"%1\": \"%2\" is there already, or couldn't be named so."_s.arg(
            fileName, QFileInfo(finalPath).fileName());
    return {};
}
