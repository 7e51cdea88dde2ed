#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "reports/AccountTransactions.h"
#include "reports/LedgerReport.h"
#include "support/Cells.h"

// The ledger report's rows, filters, totals and colours, over small tables.
namespace {

class LedgerReportTest : public ::testing::Test {
protected:
    LedgerReportTest()
    {
        setUpLedgerReport(report);
        addRows(accounts, {u"7|Balance|Base Account|1000.00|-27.5|972.5|"_s,
                        u"|Rent|Expense|500.00|-40|-740.75|"_s,
                        u"|Sales|REVENUE|0.00|12.5|-3.5|"_s,
                        u"|Fuel|Expense|250|0|0|"_s});
    }

    // A transaction of an account on a day: invoice, description and total.
    void transaction(const QString& account, const QString& date, const QString& total, const QString& text = u"x"_s,
                     const QString& invoice = {})
    {
        addRows(transactions, {u"|%1|%2|%3|%4|%5||%5||||Never"_s.arg(account, date, text, invoice, total)});
    }

    QStringList rows() const { return rowsOf(report, ReportCol::Type); }

    Listbox accounts{u"accountsBox"_s, AccountCol::Count};
    Listbox transactions{u"transBox"_s, TransCol::Count};
    Listbox report{u"ledgerbox"_s, ReportCol::Count};
};

} // namespace

TEST_F(LedgerReportTest, EveryAccountWithItsTransactionsAndTheTotalsOnTheFirstLine)
{
    transaction(u"rent"_s, u"2014-02-09"_s, u"-40.00"_s, u"Feb rent"_s, u"A1"_s);
    transaction(u"Sales"_s, u"2015-03-10"_s, u"0.00"_s);
    transaction(u"Sales"_s, u"2015-02-10"_s, u"-0.00"_s);
    transaction(u"Rent"_s, u"2014-03-09"_s, u"-2,5"_s);
    transaction(u"GST"_s, u"2014-03-09"_s, u"-4.00"_s); // no account of that name
    transaction(u"Fuel"_s, u"garbage"_s, u"abc"_s);
    ASSERT_TRUE(loadLedger(report, accounts, transactions, 0));
    // Transactions in the order of transBox under the accounts in theirs; 0.00 and
    // -0.00 and an unreadable amount are deposits; "-2,5" counts -2 by Val.
    EXPECT_EQ(rows(), (QStringList{
                          u"7|Balance||1000.00|-42.00|0.00|972.5|"_s,
                          u" |||||||"_s,
                          u"   |Rent||500.00||||"_s,
                          u"2014-02-09|A1|Feb rent||-40.00|||"_s,
                          u"2014-03-09||x||-2,5|||"_s,
                          u" ||||||-740.75|Expense"_s,
                          u"   |Sales||0.00||||"_s,
                          u"2015-03-10||x|||0.00||"_s,
                          u"2015-02-10||x|||-0.00||"_s,
                          u" ||||||-3.5|REVENUE"_s,
                          u"   |Fuel||250||||"_s,
                          u"garbage||x|||abc||"_s,
                          u" ||||||0|Expense"_s,
                      }));
    EXPECT_TRUE(report.CellBold(0, ReportCol::Date));
    EXPECT_TRUE(report.CellBold(0, ReportCol::Name));
    EXPECT_TRUE(report.CellBold(2, ReportCol::Name));
    EXPECT_FALSE(report.CellBold(3, ReportCol::Name));
}

TEST_F(LedgerReportTest, AMonthOfEveryYearAndTheFeetKeepTheWholeBalance)
{
    transaction(u"Rent"_s, u"2014-02-09"_s, u"-40.00"_s);
    transaction(u"Rent"_s, u"2014-03-09"_s, u"-50.00"_s);
    transaction(u"Sales"_s, u"2015-2-28"_s, u"12.50"_s);
    transaction(u"Sales"_s, u"1999-02-31"_s, u"1.00"_s); // no such day, but the month reads 2
    transaction(u"Fuel"_s, u"2-Feb"_s, u"3.00"_s);
    ASSERT_TRUE(loadLedger(report, accounts, transactions, 2));
    // The totals count February's three rows only; no other row is added.
    EXPECT_EQ(rows().first(), u"7|Balance||1000.00|-40.00|13.50|972.5|");
    EXPECT_EQ(report.ListCount(), 2 + 3 + 4 + 2);
    // A month without rows: nothing, not even the first line.
    EXPECT_FALSE(loadLedger(report, accounts, transactions, 7));
    EXPECT_EQ(report.ListCount(), 0);
}

TEST_F(LedgerReportTest, AYearIsTheTextTypedComparedWithRealDays)
{
    transaction(u"Rent"_s, u"2014-02-09"_s, u"-40.00"_s);
    transaction(u"Sales"_s, u"2015-02-10"_s, u"12.50"_s);
    transaction(u"Sales"_s, u"2015-02-30"_s, u"99.00"_s); // not a day of any year
    transaction(u"Fuel"_s, u"2015-2-1"_s, u"5.00"_s);     // not written as the report reads a day
    ASSERT_TRUE(loadLedgerYear(report, accounts, transactions, u"2015"_s));
    EXPECT_EQ(report.Cell(0, ReportCol::Withdrawal), u"0.00");
    EXPECT_EQ(report.Cell(0, ReportCol::Deposit), u"12.50");
    EXPECT_EQ(report.ListCount(), 2 + 3 * 2 + 1);
    for (const QString& typed : {u" 2015"_s, u"2015.0"_s, u"15"_s, u"2016"_s, u""_s}) {
        EXPECT_FALSE(loadLedgerYear(report, accounts, transactions, typed)) << typed.toStdString();
        EXPECT_EQ(report.ListCount(), 0);
    }
}

TEST_F(LedgerReportTest, TheFirstLineIsGreenAndAFootRedUnderANegativeBalanceUnlessRevenue)
{
    transaction(u"Rent"_s, u"2014-02-09"_s, u"-40.00"_s);
    loadLedger(report, accounts, transactions, 0);
    const QColor red(255, 0, 0);
    EXPECT_EQ(ledgerTextColour(report, 0), QColor(0, 128, 64));
    EXPECT_EQ(ledgerTextColour(report, 4), red) << "Rent's foot";
    EXPECT_FALSE(ledgerTextColour(report, 3).isValid()) << "a transaction";
    EXPECT_FALSE(ledgerTextColour(report, 6).isValid()) << "a revenue account's foot, whatever the case";
    EXPECT_FALSE(ledgerTextColour(report, 8).isValid()) << "a balance of 0";
    EXPECT_EQ(ledgerBackground(0), QColor(217, 233, 255));
    EXPECT_EQ(ledgerBackground(1), QColor(Qt::white));
}

// An account's transaction list: its lines, their links and its date range.
namespace {

class AccountTransactionsTest : public ::testing::Test {
protected:
    AccountTransactionsTest()
    {
        setUpAccountList(list);
        addRows(transactions, {u"|Rent|2014-03-09|March|A1|-40|5|-45,00|3477168000|rent memo|true|Monthly"_s,
                               u"|Sales|2014-03-10|Sale||12.5||12.50|0|||Never"_s,
                               u"|rent|2014-04-09|April||x|y|abc|0|||Never"_s, u"1000|RENT|bad date|||||0|0|||"_s});
        loadAccount(list, transactions, u"Rent"_s);
    }

    Listbox transactions{u"transBox"_s, TransCol::Count};
    Listbox list{u"ListBox1"_s, AccountListCol::Count, Listbox::SelectionType::Multiple};
};

} // namespace

TEST_F(AccountTransactionsTest, TheAccountsRowsAnyCaseWithTheirLinksAndFiguresOfTwoDecimals)
{
    // Amounts read by Val: "-45,00" is -45; the total gets a blank after it.
    EXPECT_EQ(rowsOf(list, AccountListCol::Memo), (QStringList{u"|Rent|2014-03-09|March|A1|-40.00|5.00|-45.00 |0|rent memo"_s,
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
