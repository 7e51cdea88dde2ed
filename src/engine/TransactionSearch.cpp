#include "engine/TransactionSearch.h"

#include "books/rowtable/Listbox.h"

#include <QStringMatcher>

std::vector<int> findRows(const Listbox& table, QStringView text)
{
    std::vector<int> hits;
    if (text.isEmpty())
        return hits;
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    // A row's stored line is its cells, each followed by "@#@". A hit in the line
    // that runs over from one cell into the next holds part of that separator,
    // so a text without "@" and "#" is found in the line exactly where a cell
    // holds it; any other text is looked for cell by cell.
    const bool wholeLine = !text.contains(u'@') && !text.contains(u'#');
    constexpr int kAhead = 16;
    for (int row = 0; row < table.ListCount(); ++row) {
        table.prefetchCell(row + kAhead, 0);
        bool hit = false;
        if (wholeLine) {
            hit = matcher.indexIn(table.storedLine(row)) >= 0;
        } else {
            for (int column = 0; column < table.ColumnCount() && !hit; ++column)
                hit = matcher.indexIn(table.CellView(row, column)) >= 0;
        }
        if (hit)
            hits.push_back(row);
    }
    return hits;
}
