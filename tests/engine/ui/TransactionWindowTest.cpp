// The transaction dialog driven as a user drives it, over the main window:
// the worked examples of entry, editing and the GST row.
#include "engine/RowLayouts.h"
#include "engine/ui/TransactionWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "support/DefaultLocale.h"
#include "widgets/AutoButton.h"
#include "widgets/CalendarControl.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class TransactionWindowTest : public SummaryWindowTest {
protected:
    // "  Shop": the Base Account, an expense and a revenue account.
    SummaryWindow* openShop(const QByteArray& transactions = {})
    {
        writeLedgers();
        writeBytes(home.books() + u"/  ShopAccountData"_s, "@#@Cash@#@@#@1000.00@#@0@#@1000@#@@#@\n"
                                                            "@#@Rent@#@Expense@#@0.00@#@0@#@0@#@@#@\n"
                                                            "@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@@#@\n");
        writeBytes(home.books() + u"/  ShopTransData"_s, transactions);
        SummaryWindow* window = shownWindow();
        window->LedgerList().SetListIndex(0);
        return window;
    }

    // The add button with an account selected, the fields typed, the date picked.
    TransactionWindow* typeNew(SummaryWindow* window, int account, const QString& amount, const QString& adjustment)
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

    QByteArray transFile() const { return readBytes(home.books() + u"/  ShopTransData"_s); }

    static QStringList cells(const Listbox& table, int row)
    {
        QStringList result;
        for (int c = TransCol::Number; c <= TransCol::Transaction; ++c)
            result << table.Cell(row, c);
        return result;
    }

    FixedClock clock{QDateTime(QDate(2026, 11, 23), QTime(12, 0))};
};

} // namespace

TEST_F(TransactionWindowTest, OkWritesWithdrawalsAndDepositsWithTheirAdjustment)
{
    SummaryWindow* window = openShop();
    TransactionWindow* dialog = typeNew(window, 1, u"100"_s, u"5"_s);
    EXPECT_EQ(dialog->PopupMenu1->currentText(), u"Rent") << "the selected account is preset";
    EXPECT_TRUE(dialog->RadioButton2->isChecked()) << "an expense account withdraws";
    EXPECT_TRUE(dialog->PushButton1->isEnabled());
    dialog->PopupMenu1->setCurrentIndex(0);
    EXPECT_FALSE(dialog->PushButton1->isEnabled()) << "no account, no OK";
    dialog->PopupMenu1->setCurrentIndex(1);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(cells(window->transBox(), 0),
              (QStringList{u""_s, u"Rent"_s, u"2026-11-02"_s, u"Office"_s, u"A7"_s, u"-100"_s, u"5"_s, u"-105.00"_s}));
    EXPECT_TRUE(transFile().startsWith("@#@Rent@#@2026-11-02@#@Office@#@A7@#@-100@#@5@#@-105.00@#@"));
    EXPECT_EQ(window->accountsBox().ListIndex(), 1);

    // A revenue account deposits; the adjustment adds to the amount's size.
    typeNew(window, 2, u"100"_s, u"5"_s);
    QTest::mouseClick(Windows::TransactionWindow()->PushButton1, Qt::LeftButton);
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Transaction), u"105.00");

    // "-100" typed on Deposit and never toggled: the total is -105, shown unsigned.
    dialog = typeNew(window, 2, u"-100"_s, u"5"_s);
    EXPECT_TRUE(dialog->RadioButton1->isChecked());
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(window->transBox().Cell(2, TransCol::Amount), u"-100");
    EXPECT_EQ(window->transBox().Cell(2, TransCol::Transaction), u"105.00");

    // A click on Deposit takes the "-" off.
    dialog = typeNew(window, 1, u"-40"_s, {});
    QTest::mouseClick(dialog->RadioButton1, Qt::LeftButton);
    EXPECT_EQ(dialog->EditField1->text(), u"40");
    QTest::mouseClick(dialog->PushButton2, Qt::LeftButton);
    EXPECT_EQ(window->transBox().ListCount(), 3) << "Cancel writes nothing";
}

TEST_F(TransactionWindowTest, CommasAreReadAsTheRowsWriteThem)
{
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    SummaryWindow* window = openShop();
    ASSERT_EQ(window->books().separatorType, u"comma");
    TransactionWindow* dialog = typeNew(window, 2, u"10,5"_s, u"1,5"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    // The amount's comma becomes a point; the adjustment is read up to its comma.
    EXPECT_EQ(window->transBox().Cell(0, TransCol::Amount), u"10.5");
    EXPECT_EQ(window->transBox().Cell(0, TransCol::Tax), u"1,5");
    EXPECT_EQ(window->transBox().Cell(0, TransCol::Transaction), u"11,50");
    EXPECT_TRUE(transFile().contains("@#@10.5@#@1,5@#@11,50@#@"));
    EXPECT_EQ(window->accountsBox().Cell(2, AccountCol::Balance), u"11,50");
}

TEST_F(TransactionWindowTest, EditingFoldsTheAdjustmentAndFollowsTheAccountsType)
{
    SummaryWindow* window = openShop("@#@Rent@#@2026-11-05@#@Office@#@A7@#@-100@#@5@#@-105.00@#@@#@memo@#@@#@Monthly@#@\n"
                                     "@#@rent@#@2026-10-06@#@Refund@#@@#@50@#@@#@50.00@#@@#@@#@@#@Never@#@\n");
    QTest::mouseClick(window->editTransBtn, Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(platform.messages, QStringList{u"No transaction selected."_s});

    window->transBox().SetListIndex(0);
    QTest::mouseClick(window->editTransBtn, Qt::LeftButton, {}, QPoint(10, 10));
    TransactionWindow* dialog = Windows::TransactionWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->PopupMenu1->currentText(), u"Rent");
    EXPECT_EQ(dialog->EditField1->text(), u"105.00") << "the total, adjustment and all";
    EXPECT_EQ(dialog->EditField5->text(), u"");
    EXPECT_EQ(dialog->EditField6->text(), u"memo");
    EXPECT_EQ(dialog->PopupMenu2->currentText(), u"Monthly");
    EXPECT_EQ(dialog->CalendarControl1->SelectedDate(), QDate(2026, 11, 5));
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(cells(window->transBox(), 0), (QStringList{u""_s, u"Rent"_s, u"2026-11-05"_s, u"Office"_s, u"A7"_s,
                                                         u"-105.00"_s, u""_s, u"-105.00"_s}));

    // A deposit in an expense account, opened and confirmed, turns into a withdrawal.
    window->transBox().SetListIndex(1);
    window->books().transBox.userDoubleClicked();
    dialog = Windows::TransactionWindow();
    EXPECT_TRUE(dialog->RadioButton2->isChecked());
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Transaction), u"-50.00");
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Account), u"Rent") << "the account as the menu names it";
}

TEST_F(TransactionWindowTest, TheGstButtonAddsATaxRowBesideTheWithdrawal)
{
    SummaryWindow* window = openShop();
    TransactionWindow* dialog = typeNew(window, 2, u"100"_s, u"5"_s);
    QTest::mouseClick(dialog->Canvas1, Qt::LeftButton, {}, QPoint(30, 30));
    EXPECT_TRUE(dialog->isVisible()) << "a deposit gets no GST row";
    QTest::mouseClick(dialog->RadioButton2, Qt::LeftButton);
    QTest::mouseClick(dialog->Canvas1, Qt::LeftButton, {}, QPoint(30, 30));
    EXPECT_FALSE(dialog->isVisible());
    ASSERT_EQ(window->transBox().ListCount(), 2);
    EXPECT_EQ(window->transBox().Cell(0, TransCol::Transaction), u"-105.00");
    EXPECT_TRUE(transFile().endsWith("\n1000@#@GST@#@2026-11-02@#@Office@#@A7@#@@#@@#@@#@3876422400@#@@#@@#@@#@\n"))
        << "no amounts: the withdrawal holds the tax";

    // Opened for editing, the GST row offers no account and no OK.
    window->transBox().SetListIndex(1);
    QTest::mouseClick(window->editTransBtn, Qt::LeftButton, {}, QPoint(10, 10));
    dialog = Windows::TransactionWindow();
    EXPECT_EQ(dialog->PopupMenu1->currentText(), u"Select account");
    EXPECT_FALSE(dialog->PushButton1->isEnabled());
    QTest::mouseClick(dialog->PushButton2, Qt::LeftButton);

    // The GST button while editing keeps the edited row and adds a tax row.
    window->transBox().SetListIndex(0);
    QTest::mouseClick(window->editTransBtn, Qt::LeftButton, {}, QPoint(10, 10));
    dialog = Windows::TransactionWindow();
    QTest::keyClicks(dialog->EditField5, u"2"_s);
    QTest::mouseClick(dialog->RadioButton2, Qt::LeftButton); // a revenue account opens on Deposit
    QTest::mouseClick(dialog->Canvas1, Qt::LeftButton, {}, QPoint(30, 30));
    ASSERT_EQ(window->transBox().ListCount(), 3);
    EXPECT_EQ(window->transBox().Cell(0, TransCol::Account), u"Sales");
    EXPECT_EQ(window->transBox().Cell(0, TransCol::Transaction), u"-107.00");
    EXPECT_EQ(window->transBox().Cell(2, TransCol::Account), u"GST");
}

TEST_F(TransactionWindowTest, OkPostsTheRepeatsDueWhichWaitForTheNextSave)
{
    SummaryWindow* window = openShop();
    TransactionWindow* dialog = typeNew(window, 1, u"400"_s, {});
    dialog->PopupMenu2->setCurrentIndex(1);
    dialog->CalendarControl1->SetSelectedDate(QDate(2026, 9, 10));
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    ASSERT_EQ(window->transBox().ListCount(), 2);
    EXPECT_EQ(window->transBox().Cell(0, TransCol::Repeat), u"never");
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Date), u"2026-10-10");
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Repeat), u"Monthly");
    EXPECT_EQ(transFile().count('\n'), 1) << "the posted row reaches the file with the next save";
}
