#include "engine/TransactionSearch.h"

#include "books/rowtable/Listbox.h"

#include <QStringMatcher>

#include <algorithm>
#include <functional>

namespace {

char16_t folded(char16_t c)
{
    if (c < 0x80)
        return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
    // A few letters beyond ASCII fold into it: the Kelvin sign is a "k".
    return QChar(c).toCaseFolded().unicode();
}

// Whether the text holds the needle, ignoring case; the needle is ASCII and
// already folded. Qt's matcher folds every character through the Unicode
// tables, which a search of 100,000 rows can't afford.
bool holdsAscii(QStringView text, QStringView needle)
{
    const qsizetype last = text.size() - needle.size();
    const char16_t first = needle[0].unicode();
    for (qsizetype at = 0; at <= last; ++at) {
        if (folded(text[at].unicode()) != first)
            continue;
        qsizetype i = 1;
        while (i < needle.size() && folded(text[at + i].unicode()) == needle[i].unicode())
            ++i;
        if (i == needle.size())
            return true;
    }
    return false;
}

} // namespace

std::vector<int> findRows(const Listbox& table, QStringView text)
{
    std::vector<int> hits;
    if (text.isEmpty())
        return hits;
    const bool ascii = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    QString needle = text.toString();
    if (ascii)
        std::transform(needle.begin(), needle.end(), needle.begin(), [](QChar c) { return QChar(folded(c.unicode())); });
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    const std::function<bool(QStringView)> holds = ascii
        ? std::function<bool(QStringView)>([&](QStringView cell) { return holdsAscii(cell, needle); })
        : std::function<bool(QStringView)>([&](QStringView cell) { return matcher.indexIn(cell) >= 0; });

    // A row's stored line is its cells, each followed by "@#@". A hit in the line
    // that runs over from one cell into the next holds part of that separator,
    // so a text without "@" and "#" is found in the line exactly where a cell
    // holds it; any other text is looked for cell by cell.
    const bool wholeLine = !text.contains(u'@') && !text.contains(u'#');
    for (int row = 0; row < table.ListCount(); ++row) {
        bool hit = false;
        if (wholeLine) {
            hit = holds(table.storedLine(row));
        } else {
            for (int column = 0; column < table.ColumnCount() && !hit; ++column)
                hit = holds(table.CellView(row, column));
        }
        if (hit)
            hits.push_back(row);
    }
    return hits;
}
