// The account dialog's OK without the dialog: the refusals, adding and editing,
// and what reaches the ledger's files.
#include "engine/RowLayouts.h"
#include "ledger/AccountOperations.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"
#include "reports/AccountTransactions.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/ScriptedPlatform.h"

namespace {

class AccountRulesTest : public ::testing::Test {
protected:
    AccountRulesTest() { books.LedgerList.SetListIndex(0); }

    QString save(const QString& name, const QString& type = u"Expense"_s, const QString& opening = {},
                 const QString& notes = {}, bool checkName = true, int row = -1, const QString& oldName = {})
    {
        return AccountOperations(books).saveAccount(AccountFields{name, type, opening, notes}, checkName, row, oldName);
    }

    TempDataHome home;
    const QString accountsPath = home.shop("Account");
    const QString transPath = home.shop("Trans");
    ScriptedPlatform platform;
    // "  Shop" with the Base Account, a revenue and an expense account; "  Empty" without files.
    bool written = home.writeShop("  Shop\n  Empty\n",
                                  "@#@Cash@#@@#@100.00@#@0@#@100@#@@#@\n"
                                  "@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@@#@\n"
                                  "@#@Rent@#@Expense@#@0.00@#@0@#@0@#@@#@\n",
                                  "@#@sales@#@2026-01-03@#@till@#@@#@10@#@0@#@10@#@@#@@#@@#@Never@#@\n"
                                  "@#@Rent@#@2026-01-04@#@January@#@@#@-20@#@0@#@-20@#@@#@@#@@#@Never@#@\n"
                                  "@#@SALES@#@2026-01-05@#@till@#@@#@5@#@0@#@5@#@@#@@#@@#@Never@#@\n");
    SummaryBooks books{home.books()};
};

} // namespace

TEST_F(AccountRulesTest, ARefusedAccountChangesNothing)
{
    const QByteArray accounts = readBytes(accountsPath);
    const QByteArray transactions = readBytes(transPath);
    // Any row counts, the Base Account too, in any letter case; so does the
    // edited row's own name when the name was typed at all.
    const QString inUse = u"That account name is already in use. Please enter a different name."_s;
    EXPECT_EQ(save(u"cash"_s), inUse);
    EXPECT_EQ(save(u"RENT"_s), inUse);
    EXPECT_EQ(save(u"rent"_s, u"Expense"_s, {}, {}, true, 2, u"Rent"_s), inUse);
    // Text that would break a row of the files; "@#" runs into the separator after it.
    for (const QString& breaking : {save(u"Tips@#@Jar"_s), save(u"Tips"_s, u"Expense"_s, u"1\n2"_s),
                                    save(u"Tips"_s, u"Expense"_s, {}, u"line\rbreak"_s), save(u"Tips@#"_s),
                                    save(u"Rent@#@"_s, u"Expense"_s, {}, {}, false, 2, u"Rent"_s)})
        EXPECT_TRUE(breaking.startsWith(u"An account can't hold the text \"@#@\"")) << breaking.toStdString();

    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Name), (QStringList{u"Cash"_s, u"Sales"_s, u"Rent"_s}));
    EXPECT_EQ(books.transBox.Cell(1, TransCol::Account), u"Rent");
    EXPECT_EQ(readBytes(accountsPath), accounts);
    EXPECT_EQ(readBytes(transPath), transactions);
    EXPECT_TRUE(platform.messages.isEmpty()) << "the caller shows the refusal";
}

TEST_F(AccountRulesTest, AddingAppendsTheRowByItsTypeAndStoresTheLedger)
{
    EXPECT_EQ(save(u"Tips"_s, u"Revenue"_s, {}, u"jar by the till"_s), u"");
    EXPECT_EQ(books.accountsBox.Cell(3, AccountCol::Opening), u"0.00") << "an empty opening";
    EXPECT_EQ(books.accountsBox.rowPicture(3), RowPicture::accountPlus9);
    EXPECT_TRUE(readBytes(accountsPath).endsWith("999@#@Tips@#@Revenue@#@0.00@#@0@#@0@#@jar by the till@#@\n"));

    EXPECT_EQ(save(u"Fuel"_s, u"Expense"_s, u"12.5"_s), u"");
    EXPECT_EQ(books.accountsBox.rowPicture(4), RowPicture::accountMinus9);
    EXPECT_TRUE(readBytes(accountsPath).endsWith("999@#@Fuel@#@Expense@#@12.5@#@0@#@12.5@#@@#@\n"))
        << "the opening as typed; the balance from the calculation";

    // The first account of an empty ledger gets the book; the next one its type's.
    books.LedgerList.SetListIndex(1);
    ASSERT_EQ(books.accountsBox.ListCount(), 0);
    EXPECT_EQ(save(u"Balance"_s, u""_s, u"250"_s), u"");
    EXPECT_EQ(save(u"Wages"_s, u"Revenue"_s), u"");
    EXPECT_EQ(books.accountsBox.rowPicture(0), RowPicture::BookIcon);
    EXPECT_EQ(books.accountsBox.rowPicture(1), RowPicture::accountPlus9);
    EXPECT_EQ(readBytes(home.books() + u"/  EmptyAccountData"_s),
              QByteArray("999@#@Balance@#@@#@250.00@#@0@#@250@#@@#@\n999@#@Wages@#@Revenue@#@0.00@#@0@#@0@#@@#@\n"))
        << "the opening as the screen pads it reaches the file with the next save";
}

TEST_F(AccountRulesTest, EditingRenamesTheTransactionsAndKeepsTheRowInPlace)
{
    EXPECT_EQ(save(u"Takings"_s, u"Revenue"_s, {}, u"the till"_s, true, 1, u"Sales"_s), u"");
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Name), (QStringList{u"Cash"_s, u"Takings"_s, u"Rent"_s}));
    EXPECT_EQ(books.accountsBox.Cell(1, AccountCol::Opening), u"0.00") << "an empty opening after the calculation";
    EXPECT_EQ(columnOf(books.transBox, TransCol::Account), (QStringList{u"Takings"_s, u"Rent"_s, u"Takings"_s}))
        << "its transactions in any letter case";
    EXPECT_TRUE(readBytes(accountsPath).contains("\n@#@Takings@#@Revenue@#@@#@15@#@15@#@the till@#@\n"));
    EXPECT_EQ(readBytes(transPath).count("@#@Takings@#@"), 2);

    // An edit that leaves the name alone still gives the transactions its spelling.
    EXPECT_EQ(save(u"Rent"_s, u"Expense"_s, {}, {}, false, 2, u"rent"_s), u"");
    EXPECT_EQ(save(u"RENT"_s, u"Expense"_s, {}, {}, false, 2, u"Rent"_s), u"");
    EXPECT_EQ(books.transBox.Cell(1, TransCol::Account), u"RENT");
    EXPECT_TRUE(readBytes(transPath).contains("@#@RENT@#@2026-01-04@#@"));
}

TEST_F(AccountRulesTest, DeletingTakesTheRowsAndRecalculates)
{
    // The account goes with its transactions in any letter case, after a "Delete".
    books.accountsBox.SetListIndex(1);
    platform.answerNextDialog(MessageDialog::Button::Action);
    AccountOperations(books).deleteSelectedAccount();
    EXPECT_EQ(columnOf(books.accountsBox, AccountCol::Name), (QStringList{u"Cash"_s, u"Rent"_s}));
    EXPECT_EQ(columnOf(books.transBox, TransCol::Account), QStringList{u"Rent"_s});
    EXPECT_EQ(books.accountsBox.Cell(0, AccountCol::Balance), u"80.00");

    // Deleting the selected transactions recalculates too.
    books.transBox.setSelectedRows({0});
    platform.answerNextDialog(MessageDialog::Button::Action);
    TransactionOperations(books).deleteSelectedTransactions();
    EXPECT_EQ(books.transBox.ListCount(), 0);
    EXPECT_TRUE(readBytes(accountsPath).startsWith("@#@Cash@#@@#@100.00@#@0@#@100@#@@#@\n"));
}

// Entries and deletions made from an account's transactions window: its list
// and transBox change together, and the files are stored once the list has
// changed, as the window shows the figures.
namespace {

class AccountListOperationsTest : public ::testing::Test {
protected:
    AccountListOperationsTest()
    {
        books.LedgerList.SetListIndex(0);
        setUpAccountList(list);
        loadAccount(list, books.transBox, u"Rent"_s);
    }

    TempDataHome home;
    const QString transPath = home.shop("Trans");
    ScriptedPlatform platform;
    FixedClock clock{QDateTime(QDate(2014, 5, 1), QTime(12, 0))};
    // "  Shop": Rent's transactions at rows 0, 2 and 3 of transBox.
    bool written = home.writeShop(
        "  Shop\n", "@#@Balance@#@@#@100@#@@#@@#@@#@\n@#@Rent@#@Expense@#@0@#@@#@@#@@#@\n@#@Sales@#@Revenue@#@0@#@@#@@#@@#@\n",
        "@#@Rent@#@2014-01-09@#@r0@#@@#@-10@#@@#@-10@#@@#@@#@@#@Never@#@\n"
        "@#@Sales@#@2014-01-10@#@s1@#@@#@5@#@@#@5@#@@#@@#@@#@Never@#@\n"
        "@#@Rent@#@2014-02-09@#@r2@#@@#@-20@#@@#@-20@#@@#@@#@@#@Never@#@\n"
        "@#@rent@#@2014-03-09@#@r3@#@@#@-40@#@@#@-40@#@@#@@#@@#@Never@#@\n");
    SummaryBooks books{home.books()};
    Listbox list{u"ListBox1"_s, AccountListCol::Count, Listbox::SelectionType::Multiple};
    int balanceUpdates = 0;
    AccountList accountList{list, [this] { ++balanceUpdates; }};
};

} // namespace

TEST_F(AccountListOperationsTest, AnEntryFromTheListGoesIntoBothAndIsStoredAsShown)
{
    TransactionForm form;
    chooseAccount(form, books.accountsBox, 1);
    form.amount = u"7"_s;
    form.date = QDate(2014, 4, 1);
    TransactionOperations(books).editAddTransaction(form, false, &accountList);
    EXPECT_EQ(list.Cell(3, AccountListCol::Link), u"4") << "the new line links to its transBox row";
    EXPECT_EQ(list.Cell(3, TransCol::Number), u"999");
    EXPECT_EQ(balanceUpdates, 1);
    EXPECT_TRUE(readBytes(transPath).contains("@#@-10.00@#@")) << "transBox stored again after the padding";

    // Editing through the list changes the row its selected line links to.
    list.SetListIndex(1);
    form.amount = u"21"_s;
    TransactionOperations(books).editAddTransaction(form, true, &accountList);
    EXPECT_EQ(books.transBox.Cell(2, TransCol::Transaction), u"-21.00");
    EXPECT_EQ(books.transBox.ListCount(), 5);
}

TEST_F(AccountListOperationsTest, DeletingLinesTakesTheirRowsAndLowersTheLinksAfterThem)
{
    EXPECT_FALSE(TransactionOperations(books).deleteAccountListLines(list));
    EXPECT_EQ(platform.messages, QStringList{u"No transaction selected."_s});

    list.setSelectedRows({0, 1});
    EXPECT_FALSE(TransactionOperations(books).deleteAccountListLines(list)) << "answered Cancel";
    EXPECT_EQ(books.transBox.ListCount(), 4);

    platform.answerNextDialog(MessageDialog::Button::Action);
    EXPECT_TRUE(TransactionOperations(books).deleteAccountListLines(list));
    EXPECT_EQ(columnOf(books.transBox, TransCol::Description), (QStringList{u"s1"_s, u"r3"_s}));
    EXPECT_EQ(columnOf(list, AccountListCol::Link), QStringList{u"1"_s});
    EXPECT_EQ(readBytes(transPath),
              QByteArray("@#@Sales@#@2014-01-10@#@s1@#@@#@5@#@@#@5.00@#@3472156800@#@@#@@#@Never@#@\n"
                         "@#@rent@#@2014-03-09@#@r3@#@@#@-40@#@@#@-40.00@#@3477168000@#@@#@@#@Never@#@\n"))
        << "both tables stored once more after the calculation, as shown";
    EXPECT_TRUE(readBytes(home.shop("Account")).contains("@#@Rent@#@Expense@#@0.00@#@-40.00@#@"));
}

TEST_F(AccountListOperationsTest, ALinkFallsByOneForASingleRowRemovedBelowIt)
{
    list.setSelectedRows({1});
    platform.answerNextDialog(MessageDialog::Button::Action);
    EXPECT_TRUE(TransactionOperations(books).deleteAccountListLines(list));
    EXPECT_EQ(columnOf(list, AccountListCol::Link), (QStringList{u"0"_s, u"2"_s}));
}
