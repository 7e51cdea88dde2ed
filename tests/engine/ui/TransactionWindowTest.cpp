// The transaction dialog and the transfer window over the main window, driven
// as a user drives them: which calls their controls make and what they show.
#include "engine/RowLayouts.h"
#include "engine/Transfers.h"
#include "engine/ui/TransactionWindow.h"
#include "engine/ui/transferWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "support/DefaultLocale.h"
#include "widgets/AutoButton.h"
#include "widgets/CalendarControl.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

class TransactionWindowTest : public SummaryWindowTest {
protected:
    // "  Shop": the Base Account, two expense accounts and a revenue account.
    void openShop(const QByteArray& transactions = {})
    {
        window = SummaryWindowTest::openShop("@#@Cash@#@@#@1000.00@#@0@#@1000@#@@#@\n"
                                             "@#@Rent@#@Expense@#@0.00@#@-40@#@-40@#@@#@\n"
                                             "@#@Sales@#@Revenue@#@0.00@#@120.5@#@120.5@#@@#@\n"
                                             "@#@Fuel@#@Expense@#@0.00@#@-10@#@-10@#@@#@\n",
                                             transactions);
    }

    // The add button with an account selected, the fields typed, the date picked.
    TransactionWindow* typeNew(int account, const QString& amount, const QString& adjustment)
    {
        window->accountsBox().SetListIndex(account);
        QTest::mouseClick(window->addtransbtn, Qt::LeftButton, {}, QPoint(10, 10));
        TransactionWindow* dialog = Windows::TransactionWindow();
        EXPECT_TRUE(dialog->isVisible());
        QTest::keyClicks(dialog->EditField1, amount);
        QTest::keyClicks(dialog->EditField5, adjustment);
        QTest::keyClicks(dialog->EditField3, u"Office"_s);
        QTest::keyClicks(dialog->EditField4, u"A7"_s);
        dialog->CalendarControl1->SetSelectedDate(QDate(2026, 11, 2));
        return dialog;
    }

    TransactionWindow* editRow(int row)
    {
        window->transBox().SetListIndex(row);
        QTest::mouseClick(window->editTransBtn, Qt::LeftButton, {}, QPoint(10, 10));
        return Windows::TransactionWindow();
    }

    // The toolbar's Transfer, and the lists once the window filled them.
    transferWindow* openTransfer()
    {
        press(window, u"Transfer"_s);
        transferWindow* transfer = Windows::transferWindow();
        EXPECT_TRUE(transfer->isVisible());
        EXPECT_TRUE(QTest::qWaitFor([&] { return transfer->ListBox2Table.ListCount() == 3; }));
        return transfer;
    }

    SummaryWindow* window = nullptr;
    FixedClock clock{QDateTime(QDate(2026, 11, 23), QTime(12, 0))};
};

} // namespace

TEST_F(TransactionWindowTest, OkEntersTheFieldsAndPostsTheRepeatsDue)
{
    openShop();
    TransactionWindow* dialog = typeNew(1, u"100"_s, u"5"_s);
    EXPECT_EQ(dialog->PopupMenu1->currentText(), u"Rent") << "the selected account is preset";
    EXPECT_TRUE(dialog->RadioButton2->isChecked()) << "an expense account withdraws";
    EXPECT_TRUE(dialog->PushButton1->isEnabled());
    dialog->PopupMenu1->setCurrentIndex(0);
    EXPECT_FALSE(dialog->PushButton1->isEnabled()) << "no account, no OK";
    dialog->PopupMenu1->setCurrentIndex(2);
    EXPECT_TRUE(dialog->RadioButton1->isChecked()) << "a revenue account deposits";
    dialog->PopupMenu2->setCurrentIndex(1);
    dialog->CalendarControl1->SetSelectedDate(QDate(2026, 9, 10));
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(stored("Trans"), "@#@Sales@#@2026-09-10@#@Office@#@A7@#@100@#@5@#@105.00@#@3871843200@#@@#@@#@Monthly@#@\n")
        << "the posted row reaches the file with the next save";
    ASSERT_EQ(window->transBox().ListCount(), 2);
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Date), u"2026-10-10");
    EXPECT_EQ(window->accountsBox().ListIndex(), 2);

    // A click on Deposit takes the "-" off; Cancel writes nothing.
    dialog = typeNew(1, u"-40"_s, {});
    QTest::mouseClick(dialog->RadioButton1, Qt::LeftButton);
    EXPECT_EQ(dialog->EditField1->text(), u"40");
    QTest::mouseClick(dialog->PushButton2, Qt::LeftButton);
    EXPECT_EQ(window->transBox().ListCount(), 2);
}

TEST_F(TransactionWindowTest, EditingShowsTheRowFoldedAndWritesItBack)
{
    openShop("@#@Rent@#@2026-11-05@#@Office@#@A7@#@-100@#@5@#@-105.00@#@@#@memo@#@@#@Monthly@#@\n"
             "@#@rent@#@2026-10-06@#@Refund@#@@#@50@#@@#@50.00@#@@#@@#@@#@Never@#@\n");
    editRow(-1);
    EXPECT_EQ(platform.messages, QStringList{u"No transaction selected."_s});

    TransactionWindow* dialog = editRow(0);
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->PopupMenu1->currentText(), u"Rent");
    EXPECT_EQ(dialog->EditField1->text(), u"105.00") << "the total, adjustment and all";
    EXPECT_EQ(dialog->EditField5->text(), u"");
    EXPECT_EQ(dialog->EditField6->text(), u"memo");
    EXPECT_EQ(dialog->PopupMenu2->currentText(), u"Monthly");
    EXPECT_EQ(dialog->CalendarControl1->SelectedDate(), QDate(2026, 11, 5));
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_TRUE(stored("Trans").startsWith("@#@Rent@#@2026-11-05@#@Office@#@A7@#@-105.00@#@@#@-105.00@#@"));

    // A deposit in an expense account, opened and confirmed, turns into a withdrawal.
    window->transBox().SetListIndex(1);
    window->books().transBox.userDoubleClicked();
    dialog = Windows::TransactionWindow();
    EXPECT_TRUE(dialog->RadioButton2->isChecked());
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_TRUE(stored("Trans").contains("\n@#@Rent@#@2026-10-06@#@Refund@#@@#@-50.00@#@@#@-50.00@#@"))
        << "the account as the menu names it";
}

TEST_F(TransactionWindowTest, TheGstButtonAddsATaxRowBesideTheWithdrawal)
{
    openShop();
    TransactionWindow* dialog = typeNew(2, u"100"_s, u"5"_s);
    QTest::mouseClick(dialog->Canvas1, Qt::LeftButton, {}, QPoint(30, 30));
    EXPECT_TRUE(dialog->isVisible()) << "a deposit gets no GST row";
    QTest::mouseClick(dialog->RadioButton2, Qt::LeftButton);
    QTest::mouseClick(dialog->Canvas1, Qt::LeftButton, {}, QPoint(30, 30));
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(stored("Trans"), "@#@Sales@#@2026-11-02@#@Office@#@A7@#@-100@#@5@#@-105.00@#@3876422400@#@@#@@#@Never@#@\n"
                           "1000@#@GST@#@2026-11-02@#@Office@#@A7@#@@#@@#@@#@3876422400@#@@#@@#@@#@\n")
        << "no amounts: the withdrawal holds the tax";

    // Opened for editing, the GST row offers no account and no OK.
    dialog = editRow(1);
    EXPECT_EQ(dialog->PopupMenu1->currentText(), u"Select account");
    EXPECT_FALSE(dialog->PushButton1->isEnabled());
}

TEST_F(TransactionWindowTest, TheTransferPreviewCountsFromTheBalancesAtSelection)
{
    openShop();
    transferWindow* transfer = openTransfer();
    EXPECT_EQ(columnOf(transfer->ListBox1Table, 1), (QStringList{u"-40"_s, u"120.5"_s, u"-10"_s}))
        << "every account but the Base Account";
    transfer->ListBox1Table.SetListIndex(1); // from Sales
    EXPECT_FALSE(transfer->EditField1->isEnabled());
    transfer->ListBox2Table.SetListIndex(0); // to Rent
    EXPECT_TRUE(transfer->EditField1->isEnabled());
    transfer->EditField1->clear();
    QTest::keyClicks(transfer->EditField1, u"10"_s);
    // 120.5 - 10 and -40 + 10 (the pattern shows no sign), not 120.5 - 1 - 10.
    EXPECT_EQ(columnOf(transfer->ListBox1Table, 1), (QStringList{u"30.00"_s, u"110.50"_s, u"-10"_s}));
    EXPECT_EQ(columnOf(transfer->ListBox2Table, 1), columnOf(transfer->ListBox1Table, 1));
    EXPECT_TRUE(platform.messages.isEmpty());

    QTest::keyClicks(transfer->EditField1, u"00"_s); // 1000: more than Sales holds
    EXPECT_EQ(platform.messages, QStringList{kInsufficientFunds});
    EXPECT_EQ(transfer->ListBox1Table.Cell(1, 1), u"20.50") << "the preview of 100 stays";

    // OK refuses one account on both sides; the window stays for another choice.
    transfer->ListBox2Table.SetListIndex(1);
    transfer->EditField1->setText(u"5"_s);
    EXPECT_EQ(platform.messages.last(), kSameAccount);
    QTest::mouseClick(transfer->PushButton1, Qt::LeftButton);
    EXPECT_TRUE(transfer->isVisible());
    EXPECT_EQ(window->transBox().ListCount(), 0);
}

TEST_F(TransactionWindowTest, TransferOkEntersAWithdrawalAndADepositAndClosingPostsTheRepeats)
{
    openShop("@#@Fuel@#@2026-11-01@#@card@#@@#@-10@#@@#@-10.00@#@@#@@#@@#@Monthly@#@\n");
    transferWindow* transfer = openTransfer();
    transfer->ListBox1Table.SetListIndex(0); // from Rent, an expense account
    transfer->ListBox2Table.SetListIndex(2); // to Fuel, another
    transfer->EditField1->setText(u"25"_s);
    QTest::mouseClick(transfer->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(transfer->isVisible());
    ASSERT_EQ(window->transBox().ListCount(), 3);
    const QByteArray file = stored("Trans");
    EXPECT_TRUE(file.contains("\n@#@Rent@#@2026-11-23@#@Transfer to Fuel@#@@#@-25.00@#@@#@-25.00@#@"))
        << "from the first list to the second";

    // Zero posts nothing; Cancel posts nothing. Closing runs the repeat pass.
    transfer = openTransfer();
    transfer->ListBox1Table.SetListIndex(0);
    transfer->ListBox2Table.SetListIndex(1);
    transfer->EditField1->setText(u"0.00"_s);
    QTest::mouseClick(transfer->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(transfer->isVisible());
    EXPECT_EQ(window->transBox().ListCount(), 3);
    transfer = openTransfer();
    clock.set(QDateTime(QDate(2026, 12, 2), QTime(12, 0))); // the fuel card falls due
    QTest::mouseClick(transfer->PushButton2, Qt::LeftButton);
    ASSERT_EQ(window->transBox().ListCount(), 4);
    EXPECT_EQ(stored("Trans"), file) << "posted, not stored";
}

TEST_F(TransactionWindowTest, OnACommaSystemTheTransferListsCountUpToTheComma)
{
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    openShop();
    transferWindow* transfer = openTransfer();
    EXPECT_EQ(transfer->ListBox1Table.Cell(1, 1), u"120,5") << "as the accounts show it";
    transfer->ListBox1Table.SetListIndex(1);
    transfer->ListBox2Table.SetListIndex(2);
    transfer->EditField1->setText(u"20"_s);
    EXPECT_EQ(transfer->ListBox1Table.Cell(1, 1), u"100,00") << "120 - 20";
}
