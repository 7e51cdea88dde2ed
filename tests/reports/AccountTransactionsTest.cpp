// An account's transaction list: its lines, their links and its date range.
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "reports/AccountTransactions.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AccountTransactionsTest : public ::testing::Test {
protected:
    AccountTransactionsTest()
    {
        setUpAccountList(list);
        for (const QString& line : {u"|Rent|2014-03-09|March|A1|-40|5|-45,00|3477168000|rent memo|true|Monthly"_s,
                                    u"|Sales|2014-03-10|Sale||12.5||12.50|0|||Never"_s,
                                    u"|rent|2014-04-09|April||x|y|abc|0|||Never"_s,
                                    u"1000|RENT|bad date|||||0|0|||"_s}) {
            transactions.AddRow();
            const QStringList cells = line.split(u'|');
            for (int column = 0; column < cells.size(); ++column)
                transactions.SetCell(transactions.LastIndex(), column, cells[column]);
        }
        loadAccount(list, transactions, u"Rent"_s);
    }

    QStringList lines() const
    {
        QStringList all;
        for (int line = 0; line < list.ListCount(); ++line) {
            QStringList cells;
            for (int column = 0; column <= AccountListCol::Memo; ++column)
                cells << list.Cell(line, column);
            all << cells.join(u'|');
        }
        return all;
    }

    Listbox transactions{u"transBox"_s, TransCol::Count};
    Listbox list{u"ListBox1"_s, AccountListCol::Count, Listbox::SelectionType::Multiple};
};

} // namespace

TEST_F(AccountTransactionsTest, TheAccountsRowsAnyCaseWithTheirLinksAndFiguresOfTwoDecimals)
{
    // Amounts read by Val: "-45,00" is -45; the total gets a blank after it.
    EXPECT_EQ(lines(), (QStringList{u"|Rent|2014-03-09|March|A1|-40.00|5.00|-45.00 |0|rent memo"_s,
                                    u"|rent|2014-04-09|April||0.00|0.00|0.00 |2|"_s,
                                    u"1000|RENT|bad date|||0.00|0.00|0.00 |3|"_s}));
}

TEST_F(AccountTransactionsTest, ARangeKeepsTheDaysStrictlyBetweenItsMoments)
{
    const QTime made(10, 31);
    const auto at = [&](int month, int day) { return QDateTime(QDate(2014, month, day), made); };
    // The same moment twice: nothing happens.
    const DateRangeResult same = applyDateRange(list, at(3, 9), at(3, 9));
    EXPECT_FALSE(same.applied);
    EXPECT_EQ(list.ListCount(), 3);

    // Everything inside: the lines stay, the label is their sum.
    DateRangeResult range = applyDateRange(list, QDateTime(QDate(2014, 3, 8), QTime(23, 59)), at(4, 10));
    EXPECT_TRUE(range.applied);
    EXPECT_TRUE(range.removedAny) << "the line whose date can't be read";
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(range.total, u"-45");
    range = applyDateRange(list, QDateTime(QDate(2014, 3, 8), QTime(23, 59)), at(4, 10));
    EXPECT_FALSE(range.removedAny);

    // A day at the From moment goes, only those after it stay; a day on the To
    // side stays (its midnight is before the To moment).
    range = applyDateRange(list, QDateTime(QDate(2014, 3, 9), QTime(0, 0)), at(4, 9));
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.Cell(0, TransCol::Date), u"2014-04-09");
    EXPECT_EQ(range.total, u"0");
    // Reversed limits keep nothing.
    range = applyDateRange(list, at(5, 1), at(1, 1));
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(range.total, u"0");
}
