#include "engine/Repeats.h"
#include "engine/RowLayouts.h"
#include "books/rowtable/Listbox.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// transBox with rows as the dialog writes them, each with a repeat mark.
struct TransactionTable : Listbox {
    explicit TransactionTable(const QList<std::pair<QString, QString>>& datesAndMarks)
        : Listbox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple)
    {
        setUpTransBox(*this);
        for (const auto& [date, mark] : datesAndMarks) {
            AddRow(u""_s);
            SetCell(LastIndex(), TransCol::Account, u"Rent");
            SetCell(LastIndex(), TransCol::Date, date);
            SetCell(LastIndex(), TransCol::Repeat, mark);
        }
    }

    QStringList column(int c) const
    {
        QStringList cells;
        for (int row = 0; row < ListCount(); ++row)
            cells << Cell(row, c);
        return cells;
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
    EXPECT_EQ(table.column(TransCol::Date), (QStringList{u"2026-10-23"_s, u"2026-11-23"_s}));
    EXPECT_EQ(table.column(TransCol::Repeat), (QStringList{u"never"_s, u"Monthly"_s})) << "the mark moves on";

    const QDateTime later = at(2027, 3, 1);
    for (int pass = 1; pass <= 3; ++pass)
        ASSERT_EQ(postDueRepeats(table, later), 1) << "pass " << pass;
    EXPECT_EQ(postDueRepeats(table, later), 0);
    EXPECT_EQ(table.Cell(4, TransCol::Date), u"2027-02-23");
    EXPECT_EQ(table.column(TransCol::Repeat).count(u"Monthly"_s), 1) << "the mark stands on the latest row only";
}

TEST(Repeats, MonthEndsCarryIntoTheNextMonth)
{
    TransactionTable table({{u"2026-01-31"_s, u"Monthly"_s}, {u"2024-01-31"_s, u"monthly"_s},
                            {u"2024-02-29"_s, u"Annually"_s}, {u"2026-03-31"_s, u"MONTHLY"_s}});
    postDueRepeats(table, at(2026, 6, 1));
    EXPECT_EQ(table.column(TransCol::Date).mid(4),
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
    EXPECT_EQ(table.column(TransCol::Repeat),
              (QStringList{u"Never"_s, u""_s, u"Monthly"_s, u"never"_s, u"never"_s, u"weekly"_s, u"Monthly"_s}))
        << "an unreadable date keeps its mark";
    EXPECT_EQ(table.Cell(5, TransCol::Date), u"2026-01-05");
    for (int c = 0; c < TransCol::Count; ++c)
        if (c != TransCol::Date && c != TransCol::Repeat)
            EXPECT_EQ(table.Cell(6, c), table.Cell(4, c)) << "column " << c;
    EXPECT_FALSE(table.CellCheck(6, TransCol::Account)) << "unreconciled on screen until the ledger is loaded again";
}
