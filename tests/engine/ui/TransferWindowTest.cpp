// The transfer window over the main window, driven as a user drives it.
#include "books/rowtable/ui/ListboxView.h"
#include "engine/RowLayouts.h"
#include "engine/ui/transferWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "mainwindow/Toolbar1.h"
#include "support/DefaultLocale.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

class TransferWindowTest : public SummaryWindowTest {
protected:
    // "  Shop": the Base Account, two expense accounts and a revenue account.
    SummaryWindow* openShop(const QByteArray& transactions = {})
    {
        writeLedgers();
        writeBytes(home.books() + u"/  ShopAccountData"_s, "@#@Cash@#@@#@1000.00@#@0@#@1000@#@@#@\n"
                                                            "@#@Rent@#@Expense@#@0.00@#@-40@#@-40@#@@#@\n"
                                                            "@#@Sales@#@Revenue@#@0.00@#@120.5@#@120.5@#@@#@\n"
                                                            "@#@Fuel@#@Expense@#@0.00@#@-10@#@-10@#@@#@\n");
        writeBytes(home.books() + u"/  ShopTransData"_s, transactions);
        SummaryWindow* window = shownWindow();
        window->LedgerList().SetListIndex(0);
        return window;
    }

    // The toolbar's Transfer, and the lists once the window's timer filled them.
    transferWindow* openTransfer(SummaryWindow* window)
    {
        QTest::mouseClick(window->Toolbar11->widgetForAction(window->Toolbar11->item(u"Transfer"_s)), Qt::LeftButton);
        transferWindow* transfer = Windows::transferWindow();
        EXPECT_TRUE(transfer->isVisible());
        EXPECT_EQ(transfer->ListBox1Table.ListCount(), 0) << "filled by the timer";
        QTest::qWait(300);
        return transfer;
    }

    static QStringList balances(const Listbox& list)
    {
        QStringList cells;
        for (int row = 0; row < list.ListCount(); ++row)
            cells << list.Cell(row, 1);
        return cells;
    }

    QByteArray transFile() const { return readBytes(home.books() + u"/  ShopTransData"_s); }

    FixedClock clock{QDateTime(QDate(2026, 11, 23), QTime(12, 0))};
};

} // namespace

TEST_F(TransferWindowTest, ThePreviewCountsFromTheBalancesAtSelection)
{
    SummaryWindow* window = openShop();
    transferWindow* transfer = openTransfer(window);
    EXPECT_EQ(transfer->windowTitle(), u"Transfer Funds Between Accounts");
    EXPECT_EQ(transfer->myParent, window);
    EXPECT_EQ(balances(transfer->ListBox1Table), (QStringList{u"-40"_s, u"120.5"_s, u"-10"_s}))
        << "every account but the Base Account";
    EXPECT_FALSE(transfer->EditField1->isEnabled());

    transfer->ListBox1Table.SetListIndex(1); // from Sales
    EXPECT_FALSE(transfer->EditField1->isEnabled());
    transfer->ListBox2Table.SetListIndex(0); // to Rent
    EXPECT_TRUE(transfer->EditField1->isEnabled());
    transfer->EditField1->clear();
    QTest::keyClicks(transfer->EditField1, u"10"_s);
    // 120.5 - 10 and -40 + 10 (the pattern shows no sign), not 120.5 - 1 - 10.
    EXPECT_EQ(balances(transfer->ListBox1Table), (QStringList{u"30.00"_s, u"110.50"_s, u"-10"_s}));
    EXPECT_EQ(balances(transfer->ListBox2Table), balances(transfer->ListBox1Table));
    EXPECT_TRUE(platform.messages.isEmpty());

    QTest::keyClicks(transfer->EditField1, u"0"_s); // 100
    QTest::keyClicks(transfer->EditField1, u"0"_s); // 1000: more than Sales holds
    EXPECT_EQ(platform.messages,
              QStringList{u"The selected account does not have a sufficient funds from which to transfer the "
                          "amount entered."_s});
    EXPECT_EQ(transfer->ListBox1Table.Cell(1, 1), u"20.50") << "the preview of 100 stays";

    transfer->ListBox2Table.SetListIndex(1); // to Sales too
    transfer->EditField1->setText(u"5"_s);
    EXPECT_EQ(platform.messages.last(), u"Source and destination accounts cannot be the same account.");
    // OK refuses one account on both sides; the window stays for another choice.
    QTest::mouseClick(transfer->PushButton1, Qt::LeftButton);
    EXPECT_TRUE(transfer->isVisible());
    EXPECT_EQ(window->transBox().ListCount(), 0);
}

TEST_F(TransferWindowTest, OkEntersAWithdrawalAndADepositAndClosing)
{
    SummaryWindow* window = openShop("@#@Fuel@#@2026-11-01@#@card@#@@#@-10@#@@#@-10.00@#@@#@@#@@#@Monthly@#@\n");
    transferWindow* transfer = openTransfer(window);
    transfer->ListBox1Table.SetListIndex(0); // from Rent, an expense account
    transfer->ListBox2Table.SetListIndex(2); // to Fuel, another
    transfer->EditField1->setText(u"25"_s);
    QTest::mouseClick(transfer->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(transfer->isVisible());
    ASSERT_EQ(window->transBox().ListCount(), 3);
    const QByteArray file = transFile();
    EXPECT_TRUE(file.contains("\n@#@Rent@#@2026-11-23@#@Transfer to Fuel@#@@#@-25.00@#@@#@-25.00@#@"));
    EXPECT_TRUE(file.contains("\n@#@Fuel@#@2026-11-23@#@Transfer from Rent@#@@#@25.00@#@@#@25.00@#@"));
    EXPECT_EQ(window->accountsBox().Cell(0, AccountCol::Transactions), u"-10.00") << "the two cancel out";

    // Zero posts nothing; Cancel posts nothing. Closing runs the repeat pass.
    transfer = openTransfer(window);
    transfer->ListBox1Table.SetListIndex(0);
    transfer->ListBox2Table.SetListIndex(1);
    transfer->EditField1->setText(u"0.00"_s);
    QTest::mouseClick(transfer->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(transfer->isVisible());
    EXPECT_EQ(window->transBox().ListCount(), 3);
    transfer = openTransfer(window);
    clock.set(QDateTime(QDate(2026, 12, 2), QTime(12, 0))); // the fuel card falls due
    QTest::mouseClick(transfer->PushButton2, Qt::LeftButton);
    ASSERT_EQ(window->transBox().ListCount(), 4);
    EXPECT_EQ(window->transBox().Cell(3, TransCol::Date), u"2026-12-01");
    EXPECT_EQ(transFile(), file) << "posted, not stored";
}

TEST_F(TransferWindowTest, OnACommaSystemTheListsCountUpToTheComma)
{
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    SummaryWindow* window = openShop();
    transferWindow* transfer = openTransfer(window);
    EXPECT_EQ(transfer->ListBox1Table.Cell(1, 1), u"120,5") << "as the accounts show it";
    transfer->ListBox1Table.SetListIndex(1);
    transfer->ListBox2Table.SetListIndex(2);
    EXPECT_EQ(transfer->sourceAmount, 120.0);
    transfer->EditField1->setText(u"20"_s);
    EXPECT_EQ(transfer->ListBox1Table.Cell(1, 1), u"100,00");
}
