#include "engine/Repeats.h"
#include "engine/RowLayouts.h"
#include "ledger/SummaryBooks.h"
#include "support/DataFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TransactionTable : Listbox {
    TransactionTable()
        : Listbox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple)
    {
        setUpTransBox(*this);
    }
};

// A row as the dialog writes it, with a repeat mark.
void addRow(Listbox& table, const QString& date, const QString& mark, const QString& description = u"Rent"_s)
{
    table.AddRow(u""_s);
    const int row = table.LastIndex();
    table.SetCell(row, TransCol::Account, u"Rent");
    table.SetCell(row, TransCol::Date, date);
    table.SetCell(row, TransCol::Description, description);
    table.SetCell(row, TransCol::Transaction, u"-400.00");
    table.SetCell(row, TransCol::Repeat, mark);
}

QStringList column(const Listbox& table, int c)
{
    QStringList cells;
    for (int row = 0; row < table.ListCount(); ++row)
        cells << table.Cell(row, c);
    return cells;
}

QDateTime at(int year, int month, int day, int hour = 12, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second));
}

} // namespace

TEST(Repeats, ARowFallsDueFromTheFirstSecondOfItsNextDate)
{
    TransactionTable table;
    addRow(table, u"2026-10-23"_s, u"Monthly"_s);
    EXPECT_EQ(postDueRepeats(table, at(2026, 11, 22, 23, 59, 59)), 0);
    EXPECT_EQ(postDueRepeats(table, at(2026, 11, 23, 0, 0, 0)), 0) << "not later than the date itself";
    EXPECT_EQ(postDueRepeats(table, at(2026, 11, 23, 0, 0, 1)), 1);
    EXPECT_EQ(column(table, TransCol::Date), (QStringList{u"2026-10-23"_s, u"2026-11-23"_s}));
    EXPECT_EQ(column(table, TransCol::Repeat), (QStringList{u"never"_s, u"Monthly"_s})) << "the mark moves on";
    EXPECT_EQ(postDueRepeats(table, at(2026, 12, 1)), 0) << "the chain waits for its next step";
}

TEST(Repeats, AChainBehindCatchesUpOneStepAPass)
{
    TransactionTable table;
    addRow(table, u"2025-10-23"_s, u"Monthly"_s);
    const QDateTime now = at(2026, 11, 23);
    for (int pass = 1; pass <= 13; ++pass) {
        ASSERT_EQ(postDueRepeats(table, now), 1) << "pass " << pass;
        EXPECT_EQ(table.ListCount(), pass + 1);
    }
    EXPECT_EQ(postDueRepeats(table, now), 0);
    EXPECT_EQ(table.Cell(13, TransCol::Date), u"2026-11-23");
    EXPECT_EQ(column(table, TransCol::Repeat).count(u"Monthly"_s), 1) << "the mark stands on the latest row only";
}

TEST(Repeats, MonthEndsCarryIntoTheNextMonth)
{
    TransactionTable table;
    addRow(table, u"2026-01-31"_s, u"Monthly"_s);
    addRow(table, u"2024-01-31"_s, u"monthly"_s);
    addRow(table, u"2024-02-29"_s, u"Annually"_s);
    addRow(table, u"2026-03-31"_s, u"MONTHLY"_s);
    postDueRepeats(table, at(2026, 6, 1));
    EXPECT_EQ(column(table, TransCol::Date).mid(4),
              (QStringList{u"2026-03-03"_s, u"2024-03-02"_s, u"2025-03-01"_s, u"2026-05-01"_s}));
    // The chain stays on the day it was carried to.
    postDueRepeats(table, at(2026, 6, 1));
    EXPECT_EQ(table.Cell(8, TransCol::Date), u"2026-04-03");
}

TEST(Repeats, OnlyMarkedReadableRowsRepeatAndTheCopyTakesEveryCell)
{
    TransactionTable table;
    addRow(table, u"2026-01-05"_s, u"Never"_s);
    addRow(table, u"2026-01-05"_s, u""_s);
    addRow(table, u"someday"_s, u"Monthly"_s);
    addRow(table, u"2025-01-05"_s, u"weekly"_s); // any other word repeats yearly
    addRow(table, u"2026-01-05"_s, u"Monthly"_s, u"Full row"_s);
    for (int c = 0; c < TransCol::Count; ++c)
        if (c != TransCol::Date && c != TransCol::Repeat)
            table.SetCell(4, c, u"cell %1"_s.arg(c));
    table.SetCell(4, TransCol::Reconciled, u"true"_s);
    table.SetCellCheck(4, TransCol::Account, true);

    EXPECT_EQ(postDueRepeats(table, at(2026, 3, 1)), 2);
    EXPECT_EQ(column(table, TransCol::Repeat),
              (QStringList{u"Never"_s, u""_s, u"Monthly"_s, u"never"_s, u"never"_s, u"weekly"_s, u"Monthly"_s}))
        << "an unreadable date keeps its mark";
    EXPECT_EQ(table.Cell(5, TransCol::Date), u"2026-01-05");
    for (int c = 0; c < TransCol::Count; ++c) {
        if (c != TransCol::Date && c != TransCol::Repeat) {
            EXPECT_EQ(table.Cell(6, c), table.Cell(4, c)) << "column " << c;
        }
    }
    EXPECT_EQ(table.Cell(6, TransCol::Reconciled), u"true");
    EXPECT_FALSE(table.CellCheck(6, TransCol::Account)) << "unreconciled on screen until the ledger is loaded again";
}

TEST(Repeats, OpeningALedgerPostsWithoutStoringOrRecalculating)
{
    TempDataHome home;
    ScriptedPlatform platform;
    const FixedClock clock(at(2026, 11, 23));
    home.makeFolders();
    writeBytes(home.quillmark() + u"/BookList"_s, "  Shop\n");
    writeBytes(home.books() + u"/  ShopAccountData"_s,
               "@#@Cash@#@@#@100@#@@#@100@#@@#@\n@#@Rent@#@Expense@#@0@#@-400@#@-400@#@@#@\n");
    const QByteArray stored = "@#@Rent@#@2026-10-01@#@Rent@#@@#@-400@#@@#@-400.00@#@@#@@#@@#@Monthly@#@\n";
    writeBytes(home.books() + u"/  ShopTransData"_s, stored);

    SummaryBooks books(home.books());
    books.LedgerList.SetListIndex(0);
    EXPECT_EQ(books.transBox.ListCount(), 2);
    EXPECT_EQ(books.accountsBox.Cell(1, AccountCol::Balance), u"-400") << "not recalculated";
    EXPECT_EQ(readBytes(home.books() + u"/  ShopTransData"_s), stored) << "not stored";
}
