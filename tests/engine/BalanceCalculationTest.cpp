#include "engine/BalanceCalculation.h"
#include "engine/RowLayouts.h"
#include "ledger/SummaryBooks.h"
#include "reference/AccountByAccountScan.h"
#include "reference/GeneratedLedger.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/DefaultLocale.h"
#include "support/ScriptedPlatform.h"

namespace {

// A ledger written by hand, as years of use leave one: an old type word in row 0
// and in an account, amounts stored with either mark, blanks around a total, a
// GST row, a row of an account that no longer exists, a third decimal, an
// unreadable amount and date, and a short row from an older file.
constexpr const char* kAccounts =
    "@#@Balance@#@main account@#@1000.00@#@@#@@#@Start here@#@\n"
    "@#@Sales@#@asset@#@@#@@#@@#@@#@\n"
    "@#@Office@#@Expense@#@12,5@#@@#@@#@@#@\n"
    "@#@Travel@#@Expense@#@.00@#@@#@@#@@#@\n"
    "@#@Savings@#@Revenue@#@10.125@#@@#@@#@@#@\n";
constexpr const char* kTransactions =
    "@#@sales@#@2014-03-09@#@Invoice 1@#@@#@100@#@@#@100.00@#@@#@@#@true@#@Never@#@\n"
    "@#@Sales@#@2014-03-10@#@Invoice 2@#@@#@50,5@#@@#@ 50,5 @#@@#@@#@false@#@Monthly@#@\n"
    "@#@Office@#@2014-03-11@#@Paper@#@@#@-30@#@5@#@-35.00@#@@#@@#@true@#@Never@#@\n"
    "1000@#@GST@#@2014-03-11@#@Paper@#@@#@@#@@#@@#@@#@@#@@#@@#@\n"
    "@#@Closed@#@2014-03-12@#@Old@#@@#@-7@#@@#@-7@#@@#@@#@@#@@#@\n"
    "@#@OFFICE@#@someday@#@Pens@#@@#@@#@@#@n/a@#@123@#@@#@@#@@#@\n"
    "@#@Savings@#@2014-03-13@#@Interest@#@@#@@#@@#@0.333@#@\n";

class BalanceCalculationTest : public ::testing::Test {
protected:
    BalanceCalculationTest() { home.writeShop("  Shop\n", kAccounts, kTransactions); }

    TempDataHome home;
    const QString accountsFile = home.shop("Account");
    // Before the monthly row falls due: opening the ledger posts nothing.
    FixedClock clock{QDateTime(QDate(2014, 3, 31), QTime(12, 0))};
};

} // namespace

TEST_F(BalanceCalculationTest, GivesEveryAccountItsFiguresOnAPeriodSystem)
{
    SummaryBooks books(home.books());
    books.probeSeparator();
    books.LedgerList.SetListIndex(0);
    books.calcAll();

    // Sales 100 + 50.5; Office -35 and "n/a" (0); Travel nothing; Savings 0.333.
    // The Base Account sums the accounts' transactions, not their openings; "Closed"
    // and GST count in no account.
    const QStringList balances{u"1115.833"_s, u"150.50"_s, u"-22.50"_s, u"0.00"_s, u"10.458"_s};
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Type),
              (QStringList{u"Base Account"_s, u"Revenue"_s, u"Expense"_s, u"Expense"_s, u"Revenue"_s}));
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Opening),
              (QStringList{u"1000.00"_s, u"0.00"_s, u"12.50"_s, u"0.00"_s, u"10.125"_s}));
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Transactions),
              (QStringList{u"115.833"_s, u"150.50"_s, u"-35.00"_s, u"0.00"_s, u"0.333"_s}));
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Balance), balances);
    EXPECT_EQ(columnOf(books.transBox, TransCol::Transaction),
              (QStringList{u"100.00"_s, u"50.50"_s, u"-35.00"_s, u".00"_s, u"-7"_s, u"n/a.00"_s, u"0.333"_s}));
    EXPECT_EQ(books.taxText, u"5");
    EXPECT_EQ(books.balText, u"108.833");
    EXPECT_EQ(columnOf(books.transBox, TransCol::Seconds),
              (QStringList{u"3477168000"_s, u"3477254400"_s, u"3477340800"_s, u"3477340800"_s, u"3477427200"_s,
                           u"123"_s, u"3477513600"_s}))
        << "an unreadable date leaves its seconds alone";

    // The files hold the plain sums, and the totals as they stood before padding.
    EXPECT_EQ(readBytes(accountsFile),
              QByteArray("@#@Balance@#@Base Account@#@1000.00@#@115.833@#@1115.833@#@Start here@#@\n"
                         "@#@Sales@#@Revenue@#@@#@150.5@#@150.5@#@@#@\n"
                         "@#@Office@#@Expense@#@12,5@#@-35@#@-22.5@#@@#@\n"
                         "@#@Travel@#@Expense@#@.00@#@0@#@0@#@@#@\n"
                         "@#@Savings@#@Revenue@#@10.125@#@0.333@#@10.458@#@@#@\n"));
    const QByteArray transactions = readBytes(home.shop("Trans"));
    EXPECT_TRUE(transactions.contains("@#@Sales@#@2014-03-10@#@Invoice 2@#@@#@50,5@#@@#@ 50,5 @#@3477254400@#@"));
    EXPECT_TRUE(transactions.contains("\n@#@GST@#@2014-03-11@#@Paper@#@@#@@#@@#@@#@3477340800@#@"));

    // A second run gives the same figures; now the padded openings are stored.
    books.calcAll();
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Balance), balances);
    EXPECT_TRUE(readBytes(accountsFile).contains("\n@#@Office@#@Expense@#@12.50@#@-35@#@-22.5@#@@#@\n"
                                                 "@#@Travel@#@Expense@#@0.00@#@0@#@0@#@@#@\n"));
}

TEST_F(BalanceCalculationTest, ShowsCommasOnACommaSystemAndReadsThemBack)
{
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    SummaryBooks books(home.books());
    books.probeSeparator();
    books.LedgerList.SetListIndex(0);
    books.calcAll();

    const QStringList balances{u"1115,833"_s, u"150,50"_s, u"-22,50"_s, u"0,00"_s, u"10,458"_s};
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Balance), balances);
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Opening),
              (QStringList{u"1000,00"_s, u"0,00"_s, u"12,50"_s, u"0,00"_s, u"10,125"_s}));
    EXPECT_EQ(columnOf(books.transBox, TransCol::Transaction),
              (QStringList{u"100,00"_s, u"50,50"_s, u"-35,00"_s, u",00"_s, u"-7"_s, u"n/a,00"_s, u"0,333"_s}));

    // Every later read goes through the comma: the figures hold on each run, and
    // a reopened ledger gives them again.
    books.calcAll();
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Balance), balances);
    EXPECT_TRUE(readBytes(accountsFile).contains("@#@Sales@#@Revenue@#@0,00@#@150.5@#@150.5@#@"));
    books.LedgerList.SetListIndex(-1);
    books.LedgerList.SetListIndex(0);
    EXPECT_EQ(books.accountsBox.Cell(1, AccountCol::Balance), u"150,50") << "stored as shown on leaving, read back";
}

TEST_F(BalanceCalculationTest, CountsOnlyReconciledRowsWhileReconciling)
{
    SummaryBooks books(home.books());
    books.LedgerList.SetListIndex(0);
    books.reconcilecheckbox_Action(true);
    EXPECT_EQ(books.accountsBox.Cell(1, AccountCol::Transactions), u"") << "switching on computes nothing yet";
    books.calcAll();
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Transactions),
              (QStringList{u"65.00"_s, u"100.00"_s, u"-35.00"_s, u"0.00"_s, u"0.00"_s}));
    EXPECT_TRUE(readBytes(accountsFile).contains("@#@Sales@#@Revenue@#@@#@100@#@100@#@"));
    EXPECT_EQ(books.transBox.Cell(1, TransCol::Transaction), u"50.50") << "an unreconciled row keeps its amount";

    books.reconcilecheckbox_Action(false);
    EXPECT_EQ(books.accountsBox.Cell(0, AccountCol::Transactions), u"115.833");
}

TEST_F(BalanceCalculationTest, OpeningALedgerPostsTheRepeatsDueWithoutStoringOrRecalculating)
{
    clock.set(QDateTime(QDate(2014, 4, 11), QTime(12, 0)));
    SummaryBooks books(home.books());
    books.LedgerList.SetListIndex(0);
    EXPECT_EQ(books.transBox.Cell(7, TransCol::Date), u"2014-04-10");
    EXPECT_EQ(books.accountsBox.Cell(1, AccountCol::Balance), u"") << "not recalculated";
    EXPECT_EQ(readBytes(home.shop("Trans")), kTransactions) << "not stored";
}

TEST(BalanceCalculation, OnePassEqualsTheAccountByAccountScan)
{
    for (unsigned seed = 1; seed <= 12; ++seed) {
        for (bool reconciledOnly : {false, true}) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << (reconciledOnly ? ", reconciled only" : ""));
            const LedgerShape shape{seed % 2 ? 40 : 4, 3000, seed, true};
            Listbox accounts(u"accountsBox"_s, AccountCol::Count), scannedAccounts(u"accountsBox"_s, AccountCol::Count);
            Listbox transactions(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
            Listbox scannedTransactions(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
            generateLedger(accounts, transactions, shape);
            generateLedger(scannedAccounts, scannedTransactions, shape);

            const BalanceTotals fast = calculateBalances(accounts, transactions, reconciledOnly);
            const ScanTotals scan = scanAccountByAccount(scannedAccounts, scannedTransactions, reconciledOnly);
            EXPECT_EQ(fast.tax.text(), scan.tax.text());
            EXPECT_EQ(fast.transactions.text(), scan.transactions.text());
            for (int c = 0; c < AccountCol::Count; ++c)
                ASSERT_EQ(columnOf(accounts, c), columnOf(scannedAccounts, c)) << "column " << c;
        }
    }
}

TEST(BalanceCalculation, MalformedRowsChangeNoOtherAccount)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    Listbox transactions(u"transBox"_s, TransCol::Count);
    generateLedger(accounts, transactions, LedgerShape{20, 500, 5, false});
    calculateBalances(accounts, transactions, false);
    const QStringList balances = columnOf(accounts, AccountCol::Balance);

    for (const QString& text : {u""_s, u"-"_s, u"."_s, u"--5"_s, u"abc"_s, u"@#@"_s, u"\u0000\uFFFF"_s, u"\U0001F4B6"_s,
                                QString(5000, u'9').prepend(u"x"_s), u"\t\n\r"_s}) {
        transactions.AddRow(text); // a short row: only its first cell
        for (int c : {TransCol::Account, TransCol::Date, TransCol::Tax, TransCol::Transaction})
            transactions.SetCell(transactions.LastIndex(), c, text);
        transactions.AddRow(u""_s);
        transactions.SetCell(transactions.LastIndex(), TransCol::Account, accounts.Cell(3, AccountCol::Name));
        transactions.SetCell(transactions.LastIndex(), TransCol::Transaction, text);
    }
    calculateBalances(accounts, transactions, false);
    EXPECT_EQ(columnOf(accounts, AccountCol::Balance), balances) << "unreadable amounts count 0, wherever they stand";
    writeSeconds(transactions);
    padAmounts(accounts, transactions);
    EXPECT_EQ(transactions.Cell(transactions.ListCount() - 2, TransCol::Transaction), u".00") << "blanks trimmed, then padded";
}

TEST(BalanceCalculation, MatchesNamesIgnoringCaseAcrossScripts)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    Listbox transactions(u"transBox"_s, TransCol::Count);
    addRows(accounts, {u"|Balance"_s, u"|Café Été"_s, u"|ΣΟΦΙΑ"_s, u"|Straße"_s});
    addRows(transactions, {u"|café été||||||1"_s, u"|CAFÉ ÉTÉ||||||1"_s, u"|σοφια||||||1"_s, u"|STRASSE||||||1"_s,
                           u"|straße||||||1"_s, u"|balance||||||1"_s});
    calculateBalances(accounts, transactions, false);
    EXPECT_EQ(columnOf(accounts, AccountCol::Transactions), (QStringList{u"4"_s, u"2"_s, u"1"_s, u"1"_s}));
}

TEST(BalanceCalculation, PadsAmountsToTwoDecimals)
{
    const std::nullopt_t stays = std::nullopt;
    const struct {
        QString cell;
        std::optional<QString> account;
        std::optional<QString> transaction;
    } cases[] = {
        {u"12"_s, u"12.00"_s, stays},           {u"100"_s, u"100.00"_s, u"100.00"_s},
        {u"5"_s, u"5.00"_s, u"5.00"_s},         {u"-5"_s, u"-5.00"_s, stays},
        {u"12.5"_s, u"12.50"_s, u"12.50"_s},    {u"12.50"_s, stays, stays},
        {u"12.345"_s, stays, stays},            {u"12."_s, stays, stays},
        {u""_s, u".00"_s, u".00"_s},            {u" 12.5 "_s, u"12.50"_s, u"12.50"_s},
        {u"12,5"_s, u"12.50"_s, u"12.50"_s},    {u"12,50"_s, stays, stays},
        {u".5"_s, u".50"_s, stays},             {u"n/a"_s, u"n/a.00"_s, u"n/a.00"_s},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(paddedAmount(c.cell), c.account) << c.cell.toStdString();
        EXPECT_EQ(paddedTransaction(c.cell), c.transaction) << c.cell.toStdString();
    }
}
