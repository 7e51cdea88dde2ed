#include "engine/RowLayouts.h"

#include "books/rowtable/Listbox.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct ColumnLayout {
    QStringView heading;
    double widthPercent; // below 0: no width, never on screen
    int alignment;
    int alignmentOffset;
};

void apply(Listbox& table, std::initializer_list<ColumnLayout> columns)
{
    int column = 0;
    for (const ColumnLayout& layout : columns) {
        table.SetHeading(column, layout.heading.toString());
        table.setColumnWidthPercent(column, layout.widthPercent);
        table.SetColumnAlignment(column, layout.alignment);
        table.SetColumnAlignmentOffset(column, layout.alignmentOffset);
        ++column;
    }
    table.SetHasHeading(true);
}

constexpr int AlignL = Listbox::AlignDefault;
constexpr int AlignR = Listbox::AlignRight;
constexpr double None = -1;

} // namespace

bool isWord(QStringView cell, QStringView word)
{
    // The cells are mostly ASCII words, read in every row of a pass; comparing
    // those by hand spares Qt's Unicode case folding, which takes the rest.
    // Folding keeps the length, so texts of other lengths never match.
    if (cell.size() != word.size())
        return false;
    const auto lower = [](char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; };
    for (qsizetype i = 0; i < cell.size(); ++i) {
        const char16_t a = cell[i].unicode();
        const char16_t b = word[i].unicode();
        if (a >= 0x80 || b >= 0x80)
            return cell.compare(word, Qt::CaseInsensitive) == 0;
        if (lower(a) != lower(b))
            return false;
    }
    return true;
}

void setUpLedgerList(Listbox& table)
{
    apply(table, {{u"Ledgers", 100, AlignL, 0}});
}

void setUpTransferList(Listbox& table)
{
    apply(table, {{u"Account", 60, AlignL, 0}, {u"Balance", 40, AlignR, 0}});
}

void setUpAccountsBox(Listbox& table)
{
    apply(table, {
                     {u" ", 5, AlignR, 0},
                     {u"Account Name", 30, AlignL, 0},
                     {u"Type", 12, AlignL, 0},
                     {u"Opening", 18, AlignR, 0},
                     {u"Transactions", 18, AlignR, 0},
                     {u"Balance ", 18, AlignR, -5},
                     {u"", None, AlignL, 0},
                 });
}

void setUpTransBox(Listbox& table)
{
    apply(table, {
                     {u"Account #", 0, AlignR, 0},
                     {u"Account Name", 19, AlignL, 0},
                     {u"Date", 15, AlignL, 0},
                     {u"Description", 38, AlignL, 0},
                     {u"Inv #", 14, AlignL, 0},
                     {u"Amount", 0, AlignR, 0},
                     {u"Tax", 0, AlignR, 0},
                     {u"Transaction ", 15, AlignR, -5},
                     {u"", None, AlignL, 0},
                     {u"", None, AlignL, 0},
                     {u"", None, AlignL, 0},
                     {u"", None, AlignL, 0},
                 });
    table.SetColumnType(TransCol::Account, Listbox::TypeCheckbox);
}
