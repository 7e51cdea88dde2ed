// Entries and deletions made from an account's transactions window: its list
// and transBox change together, and the files are stored once the list has
// changed, as the window shows the figures.
#include "engine/RowLayouts.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"
#include "reports/AccountTransactions.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/ScriptedPlatform.h"

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
