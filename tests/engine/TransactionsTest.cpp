#include "books/rowtable/Listbox.h"
#include "engine/Repeats.h"
#include "engine/RowLayouts.h"
#include "engine/TransactionEntry.h"
#include "engine/TransactionSearch.h"
#include "support/Cells.h"

// OK wants an account and an amount; the GST button an amount and an
// adjustment of a withdrawal, and no account. OK writes the amount as typed
// (its comma a point) and the total signed by the buttons alone, the
// adjustment adding to the amount's size.
TEST(TransactionEntry, TheButtonsRefuseWhatTheyLackAndOkSignsTheTotal)
{
    struct Case {
        int account;
        QString amount;
        QString adjustment;
        bool deposit;
        bool ok;
        bool gst;
        QString amountCell;
        QString total;
    } const cases[] = {
        {1, u"100"_s, u"5"_s, false, true, true, u"-100"_s, u"-105.00"_s},
        {0, u"100"_s, u"5"_s, false, false, true, u"-100"_s, u"-105.00"_s},
        {1, {}, u"1"_s, false, false, false, u"-"_s, u"-1.00"_s},
        {1, u"5"_s, {}, false, true, false, u"-5"_s, u"-5.00"_s},
        {1, u"100"_s, u"5"_s, true, true, false, u"100"_s, u"105.00"_s},
        {1, u"-100"_s, u"5"_s, true, true, false, u"-100"_s, u"105.00"_s}, // -105 shown unsigned
        {1, u"10,5"_s, u"1,5"_s, true, true, false, u"10.5"_s, u"11.50"_s}, // the adjustment up to its comma
    };
    Listbox table(u"transBox"_s, TransCol::Count);
    table.AddRow(u""_s);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.account << " " << c.amount.toStdString() << " " << c.deposit);
        const TransactionForm form{.account = c.account, .amount = c.amount, .deposit = c.deposit, .adjustment = c.adjustment};
        EXPECT_EQ(okEnabled(form), c.ok);
        EXPECT_EQ(gstEnabled(form), c.gst);
        EXPECT_EQ(okRefusal(form).isEmpty(), c.ok);
        EXPECT_EQ(gstRefusal(form).isEmpty(), c.gst);
        writeTransaction(table, 0, form);
        EXPECT_EQ(table.Cell(0, TransCol::Amount), c.amountCell);
        EXPECT_EQ(table.Cell(0, TransCol::Transaction), c.total);
    }
}

namespace {

// Account, date, description, seconds, memo and repeat word; the cell past the
// last column is hidden.
struct Ledger : Listbox {
    Ledger()
        : Listbox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple)
    {
        addRows(*this, {u"|Sales|2026-11-02|Till|||||3876422400|cash in the jar \u212Aelvin||Never|hidden"_s,
                        u"|Rent|2026-11-03|November (flat)|||||3876508800|||Monthly|hidden"_s,
                        u"|Café|2026-11-04|Été.*|||||3876595200|a@b||never|hidden"_s});
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

namespace {

// transBox with rows as the dialog writes them, each with a repeat mark.
struct TransactionTable : Listbox {
    explicit TransactionTable(const QList<std::pair<QString, QString>>& datesAndMarks)
        : Listbox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple)
    {
        setUpTransBox(*this);
        for (const auto& [date, mark] : datesAndMarks)
            addRows(*this, {u"|Rent|%1|||||||||%2"_s.arg(date, mark)});
    }
};

QDateTime at(int year, int month, int day, int hour = 12, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second));
}

} // namespace

TEST(Repeats, ARowFallsDueAfterItsNextDateAndABehindChainCatchesUpOneStepAPass)
{
    TransactionTable table({{u"2026-10-23"_s, u"Monthly"_s}});
    EXPECT_EQ(postDueRepeats(table, at(2026, 11, 23, 0, 0, 0)), 0) << "not later than the date itself";
    EXPECT_EQ(postDueRepeats(table, at(2026, 11, 23, 0, 0, 1)), 1);
    EXPECT_EQ(columnOf(table, TransCol::Date), (QStringList{u"2026-10-23"_s, u"2026-11-23"_s}));
    EXPECT_EQ(columnOf(table, TransCol::Repeat), (QStringList{u"never"_s, u"Monthly"_s})) << "the mark moves on";

    const QDateTime later = at(2027, 3, 1);
    for (int pass = 1; pass <= 3; ++pass)
        ASSERT_EQ(postDueRepeats(table, later), 1) << "pass " << pass;
    EXPECT_EQ(postDueRepeats(table, later), 0);
    EXPECT_EQ(table.Cell(4, TransCol::Date), u"2027-02-23");
    EXPECT_EQ(columnOf(table, TransCol::Repeat).count(u"Monthly"_s), 1) << "the mark stands on the latest row only";
}

TEST(Repeats, MonthEndsCarryIntoTheNextMonth)
{
    TransactionTable table({{u"2026-01-31"_s, u"Monthly"_s}, {u"2024-01-31"_s, u"monthly"_s},
                            {u"2024-02-29"_s, u"Annually"_s}, {u"2026-03-31"_s, u"MONTHLY"_s}});
    postDueRepeats(table, at(2026, 6, 1));
    EXPECT_EQ(columnOf(table, TransCol::Date).mid(4),
              (QStringList{u"2026-03-03"_s, u"2024-03-02"_s, u"2025-03-01"_s, u"2026-05-01"_s}));
    // The chain stays on the day it was carried to.
    postDueRepeats(table, at(2026, 6, 1));
    EXPECT_EQ(table.Cell(8, TransCol::Date), u"2026-04-03");
}

TEST(Repeats, OnlyMarkedReadableRowsRepeatAndTheCopyTakesEveryCell)
{
    // Any word but "never" and "monthly" repeats yearly.
    TransactionTable table({{u"2026-01-05"_s, u"Never"_s}, {u"2026-01-05"_s, u""_s}, {u"someday"_s, u"Monthly"_s},
                            {u"2025-01-05"_s, u"weekly"_s}, {u"2026-01-05"_s, u"Monthly"_s}});
    for (int c = 0; c < TransCol::Count; ++c)
        if (c != TransCol::Date && c != TransCol::Repeat)
            table.SetCell(4, c, u"cell %1"_s.arg(c));
    table.SetCellCheck(4, TransCol::Account, true);

    EXPECT_EQ(postDueRepeats(table, at(2026, 3, 1)), 2);
    EXPECT_EQ(columnOf(table, TransCol::Repeat),
              (QStringList{u"Never"_s, u""_s, u"Monthly"_s, u"never"_s, u"never"_s, u"weekly"_s, u"Monthly"_s}))
        << "an unreadable date keeps its mark";
    EXPECT_EQ(table.Cell(5, TransCol::Date), u"2026-01-05");
    for (int c = 0; c < TransCol::Count; ++c)
        if (c != TransCol::Date && c != TransCol::Repeat)
            EXPECT_EQ(table.Cell(6, c), table.Cell(4, c)) << "column " << c;
    EXPECT_FALSE(table.CellCheck(6, TransCol::Account)) << "unreconciled on screen until the ledger is loaded again";
}
