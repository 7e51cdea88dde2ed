#include "reports/AccountTransactions.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Dates.h"
#include "platform/DecimalSum.h"
#include "platform/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

QString signedAmount(QStringView cell)
{
    const double value = Val(cell);
    return Format(value, value < 0 ? u"-########0.00" : u"########0.00");
}

} // namespace

void setUpAccountList(Listbox& list)
{
    const double widths[] = {0, 0, 15, 53, 18, 0, 0, 15};
    for (int column = 0; column <= TransCol::Transaction; ++column) {
        list.setColumnWidthPercent(column, widths[column]);
        const bool right = column == TransCol::Number || column == TransCol::Amount || column == TransCol::Tax
                           || column == TransCol::Transaction;
        list.SetColumnAlignment(column, right ? Listbox::AlignRight : Listbox::AlignLeft);
    }
    const QStringList headings{u"Account #"_s, u"Account Name"_s, u"Date"_s,    u"Description"_s,
                               u"Inv #"_s,     u"Amount"_s,       u"Tax"_s,     u"Transaction "_s};
    for (int column = 0; column < int(headings.size()); ++column)
        list.SetHeading(column, headings[column]);
    list.setColumnWidthPercent(AccountListCol::Link, 0);
    list.SetHasHeading(true);
}

void loadAccount(Listbox& list, const Listbox& transactions, const QString& accNum)
{
    const int first = list.ListCount();
    for (int k = 0; k < transactions.ListCount(); ++k) {
        if (!isWord(transactions.CellView(k, TransCol::Account), accNum))
            continue;
        list.AddRow(transactions.CellView(k, TransCol::Number));
        const int line = list.LastIndex();
        for (int column = 1; column <= AccountListCol::Count; ++column)
            list.SetCell(line, column, transactions.CellView(k, column));
        list.SetCell(line, AccountListCol::Link, Str(k));
    }
    for (int line = first; line < list.ListCount(); ++line) {
        list.SetCell(line, TransCol::Amount, signedAmount(list.CellView(line, TransCol::Amount)));
        list.SetCell(line, TransCol::Tax, Format(Val(list.CellView(line, TransCol::Tax)), u"########0.00"));
        list.SetCell(line, TransCol::Transaction, signedAmount(list.CellView(line, TransCol::Transaction)) + u' ');
    }
}

QString selectedAccountBalance(const Listbox& accounts)
{
    return accounts.Cell(accounts.ListIndex(), AccountCol::Balance);
}

QDateTime lineMoment(QStringView dateCell)
{
    QDate day;
    return readStoredDate(dateCell, day) ? QDateTime(day, QTime(0, 0)) : QDateTime();
}

DateRangeResult applyDateRange(Listbox& list, const QDateTime& from, const QDateTime& to)
{
    DateRangeResult result;
    if (from == to)
        return result;
    result.applied = true;
    for (int line = list.ListCount() - 1; line >= 0; --line) {
        const QDateTime moment = lineMoment(list.CellView(line, TransCol::Date));
        if (moment.isValid() && moment > from && moment < to)
            continue;
        list.RemoveRow(line);
        result.removedAny = true;
    }
    DecimalSum sum;
    for (int line = 0; line < list.ListCount(); ++line)
        sum.addVal(list.CellView(line, TransCol::Transaction));
    result.total = sum.text();
    return result;
}
