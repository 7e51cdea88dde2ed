#include "engine/Repeats.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Dates.h"

int postDueRepeats(Listbox& transactions, const QDateTime& now)
{
    const double nowSeconds = TotalSeconds(now);
    const int last = transactions.ListCount() - 1;
    int posted = 0;
    for (int row = 0; row <= last; ++row) {
        transactions.prefetchAhead(row);
        const QStringView mark = transactions.CellView(row, TransCol::Repeat);
        if (mark.isEmpty() || isWord(mark, u"never"))
            continue;
        QDate date;
        if (!ParseDate(transactions.CellView(row, TransCol::Date), date))
            continue;
        const QDate next = isWord(mark, u"monthly") ? addMonthsCarrying(date, 1) : addYearsCarrying(date, 1);
        if (!(nowSeconds > TotalSeconds(next)))
            continue;
        transactions.AddRow(u"");
        const int copy = transactions.LastIndex();
        for (int column = 0; column < transactions.ColumnCount(); ++column)
            transactions.SetCell(copy, column, transactions.Cell(row, column));
        transactions.SetCell(copy, TransCol::Date, SQLDate(next));
        transactions.SetCell(row, TransCol::Repeat, u"never");
        ++posted;
    }
    return posted;
}
