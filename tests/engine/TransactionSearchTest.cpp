#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "engine/TransactionSearch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Ledger : Listbox {
    Ledger()
        : Listbox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple)
    {
        row({u"Sales"_s, u"2026-11-02"_s, u"Till"_s, u"3876422400"_s, u"cash in the jar \u212Aelvin"_s, u"Never"_s});
        row({u"Rent"_s, u"2026-11-03"_s, u"November (flat)"_s, u"3876508800"_s, u""_s, u"Monthly"_s});
        row({u"Café"_s, u"2026-11-04"_s, u"Été.*"_s, u"3876595200"_s, u"a@b"_s, u"never"_s});
    }
    void row(const QStringList& cells)
    {
        AddRow(u""_s);
        const int r = LastIndex();
        for (int i = 0; i < cells.size(); ++i)
            SetCell(r, std::array{TransCol::Account, TransCol::Date, TransCol::Description, TransCol::Seconds,
                                  TransCol::Memo, TransCol::Repeat}[size_t(i)],
                    cells[i]);
        SetCell(r, TransCol::Count, u"hidden cell, past the last column"_s);
    }
};

} // namespace

TEST(TransactionSearch, FindsPlainTextInEveryColumnIgnoringCase)
{
    const Ledger ledger;
    const QList<std::pair<QString, std::vector<int>>> cases{
        {u"rent"_s, {1}},
        {u"JAR"_s, {0}},                 // a memo nobody sees
        {u"kelvin"_s, {0}},              // the Kelvin sign folds to "k"
        {u"monthly"_s, {1}},             // the repeat word
        {u"38765"_s, {1, 2}},            // digits hit the seconds
        {u"été"_s, {2}},                 // case ignored beyond ASCII
        {u"CAFÉ"_s, {2}},
        {u"ſales"_s, {0}},               // the long s folds to "s"
        {u".*"_s, {2}},                  // plain text, no pattern
        {u"a@b"_s, {2}},
        {u"Till@#@"_s, {}},              // never across two cells
        {u"@"_s, {2}},
        {u"hidden"_s, {}},               // the cell past the last column isn't searched
        {u""_s, {}},                     // an empty text is in no cell
        {QString(10000, u'x'), {}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(findRows(ledger, text), expected) << text.left(20).toStdString();
}
