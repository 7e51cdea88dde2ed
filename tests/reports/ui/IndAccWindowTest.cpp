// An account's transactions window over the main window, opened by the
// toolbar's Transactions, with the transaction dialog and the printer scripted.
#include "books/rowtable/ui/ListboxView.h"
#include "engine/RowLayouts.h"
#include "engine/ui/TransactionWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "mainwindow/Toolbar1.h"
#include "reports/ui/indAccWindow.h"
#include "widgets/AutoButton.h"
#include "widgets/DateControl.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class IndAccWindowTest : public SummaryWindowTest {
protected:
    // "  Shop": Rent's transactions at rows 0, 2, 4 and 5 of transBox, Sales's at 1 and 3.
    indAccWindow* openRent()
    {
        writeLedgers();
        writeBytes(home.books() + u"/  ShopAccountData"_s, "@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n"
                                                            "@#@Rent@#@Expense@#@0.00@#@0@#@0@#@@#@\n"
                                                            "@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@@#@\n");
        writeBytes(home.books() + u"/  ShopTransData"_s,
                   "@#@Rent@#@2014-01-09@#@r0@#@@#@-10@#@@#@-10.00@#@@#@@#@@#@Never@#@\n"
                   "@#@Sales@#@2014-01-10@#@s1@#@@#@5@#@@#@5.00@#@@#@@#@@#@Never@#@\n"
                   "@#@Rent@#@2014-02-09@#@r2@#@@#@-20@#@@#@-20.00@#@@#@@#@@#@Never@#@\n"
                   "@#@Sales@#@2014-02-10@#@s3@#@@#@7@#@@#@7.00@#@@#@@#@@#@Never@#@\n"
                   "@#@rent@#@2014-03-09@#@r4@#@@#@-40@#@@#@-40.00@#@@#@@#@@#@Never@#@\n"
                   "@#@Rent@#@2014-04-09@#@r5@#@@#@-50@#@@#@-50.00@#@@#@@#@@#@Never@#@\n");
        window = shownWindow();
        window->LedgerList().SetListIndex(0);
        window->books().calcAll();
        window->accountsBox().SetListIndex(1);
        QTest::mouseClick(window->Toolbar11->widgetForAction(window->Toolbar11->item(u"Transactions"_s)),
                          Qt::LeftButton);
        indAccWindow* account = Windows::indAccWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(account));
        return account;
    }

    QStringList descriptions(const Listbox& table, int column = TransCol::Description) const
    {
        QStringList texts;
        for (int row = 0; row < table.ListCount(); ++row)
            texts << table.Cell(row, column);
        return texts;
    }

    static bool buttonsOn(const indAccWindow* account)
    {
        return account->Canvas1->isEnabled() && account->Canvas2->isEnabled() && account->Canvas3->isEnabled();
    }

    SummaryWindow* window = nullptr;
    FixedClock clock{QDateTime(QDate(2014, 5, 1), QTime(12, 0))};
};

} // namespace

TEST_F(IndAccWindowTest, DeletingSelectedLinesTakesTheirOwnRowsTwiceOver)
{
    indAccWindow* account = openRent();
    EXPECT_EQ(account->StaticText3->text(), u"Rent");
    EXPECT_EQ(account->size(), QSize(670, 310));
    EXPECT_EQ(account->DateControl1->date(), QDate(2014, 5, 1)) << "today by the clock";
    EXPECT_EQ(descriptions(account->ListBox1Table), (QStringList{u"r0"_s, u"r2"_s, u"r4"_s, u"r5"_s}));
    EXPECT_EQ(descriptions(account->ListBox1Table, AccountListCol::Link),
              (QStringList{u"0"_s, u"2"_s, u"4"_s, u"5"_s}));
    EXPECT_EQ(account->Label3->text(), u"-120.00") << "the account's balance";

    QTest::mouseClick(account->Canvas2, Qt::LeftButton);
    EXPECT_EQ(platform.messages, QStringList{u"No transaction selected."_s});

    account->ListBox1Table.setSelectedRows({1, 3});
    QTest::mouseClick(account->Canvas2, Qt::LeftButton); // cancelled
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].Message, u"Are you sure you want to delete the selected transaction(s)?");
    EXPECT_EQ(platform.dialogs[0].Explanation, u"This action cannot be undone.");
    EXPECT_EQ(platform.dialogs[0].ActionButton, u"Delete");
    EXPECT_EQ(platform.dialogs[0].CancelButton, u"Cancel");
    EXPECT_EQ(window->transBox().ListCount(), 6);

    platform.answerNextDialog(MessageDialog::Button::Action);
    QTest::mouseClick(account->Canvas2, Qt::LeftButton);
    EXPECT_EQ(descriptions(window->transBox()), (QStringList{u"r0"_s, u"s1"_s, u"s3"_s, u"r4"_s}));
    EXPECT_EQ(descriptions(account->ListBox1Table, AccountListCol::Link), (QStringList{u"0"_s, u"3"_s}))
        << "r4's link fell with the row before it";
    EXPECT_EQ(account->Label3->text(), u"-50.00") << "the balance recalculated";

    // Again: r4 is the right row at its new place.
    account->ListBox1Table.setSelectedRows({1});
    platform.answerNextDialog(MessageDialog::Button::Action);
    QTest::mouseClick(account->Canvas2, Qt::LeftButton);
    EXPECT_EQ(descriptions(window->transBox()), (QStringList{u"r0"_s, u"s1"_s, u"s3"_s}));
    EXPECT_EQ(descriptions(account->ListBox1Table), QStringList{u"r0"_s});
    EXPECT_FALSE(readBytes(home.books() + u"/  ShopTransData"_s).contains("r4")) << "stored";
}

TEST_F(IndAccWindowTest, ApplyNarrowsTheListAndShowAllBringsItBack)
{
    indAccWindow* account = openRent();
    // Equal dates: nothing changes.
    account->DateControl1->setDateValue(QDateTime(QDate(2014, 2, 1), QTime(9, 0)));
    account->DateControl2->setDateValue(QDateTime(QDate(2014, 2, 1), QTime(9, 0)));
    account->PushButton1->click();
    EXPECT_EQ(account->ListBox1Table.ListCount(), 4);
    EXPECT_EQ(account->Label3->text(), u"-120.00");
    EXPECT_TRUE(buttonsOn(account));

    // A range that keeps everything: the buttons stay on, the label is the sum.
    account->DateControl1->setDateValue(QDateTime(QDate(2013, 12, 31), QTime(9, 0)));
    account->DateControl2->setDateValue(QDateTime(QDate(2014, 4, 9), QTime(9, 0)));
    account->PushButton1->click();
    EXPECT_EQ(account->ListBox1Table.ListCount(), 4) << "the To day stays";
    EXPECT_EQ(account->Label3->text(), u"-120");
    EXPECT_TRUE(buttonsOn(account));

    // The From day goes; add, edit and delete go off.
    account->DateControl1->setDateValue(QDateTime(QDate(2014, 2, 9), QTime(9, 0)));
    account->PushButton1->click();
    EXPECT_EQ(descriptions(account->ListBox1Table), (QStringList{u"r4"_s, u"r5"_s}));
    EXPECT_EQ(account->Label3->text(), u"-90");
    EXPECT_FALSE(account->Canvas1->isEnabled());
    EXPECT_FALSE(account->Canvas2->isEnabled());
    EXPECT_FALSE(account->Canvas3->isEnabled());
    EXPECT_TRUE(account->Canvas4->isEnabled()) << "printing stays";
    EXPECT_EQ(window->transBox().ListCount(), 6);

    account->PushButton2->click();
    EXPECT_EQ(account->ListBox1Table.ListCount(), 4);
    EXPECT_EQ(account->Label3->text(), u"-120.00");
    EXPECT_TRUE(buttonsOn(account));
}

TEST_F(IndAccWindowTest, AddingAndEditingFromTheWindowChangeBothTables)
{
    indAccWindow* account = openRent();
    QTest::mouseClick(account->Canvas3, Qt::LeftButton);
    EXPECT_EQ(platform.messages, QStringList{u"No transaction selected"_s});

    QTest::mouseClick(account->Canvas1, Qt::LeftButton);
    TransactionWindow* dialog = Windows::TransactionWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->PopupMenu1->currentText(), u"Rent");
    EXPECT_FALSE(dialog->PopupMenu1->isEnabled()) << "the account can't be changed";
    dialog->EditField1->setText(u"30"_s);
    dialog->EditField3->setText(u"added here"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    ASSERT_EQ(window->transBox().ListCount(), 7);
    EXPECT_EQ(window->transBox().Cell(6, TransCol::Transaction), u"-30.00");
    ASSERT_EQ(account->ListBox1Table.ListCount(), 5);
    EXPECT_EQ(account->ListBox1Table.Cell(4, TransCol::Description), u"added here");
    EXPECT_EQ(account->ListBox1Table.Cell(4, AccountListCol::Link), u"6");
    EXPECT_EQ(account->Label3->text(), u"-150.00") << "the new balance";

    // Edit the second line: the dialog shows its figures; OK writes its own row.
    account->ListBox1Table.SetListIndex(1);
    QTest::mouseClick(account->Canvas3, Qt::LeftButton);
    dialog = Windows::TransactionWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->editingOn);
    EXPECT_EQ(dialog->EditField1->text(), u"20.00 ") << "the total without its sign, as the list holds it";
    EXPECT_EQ(dialog->EditField3->text(), u"r2");
    dialog->EditField3->setText(u"r2 changed"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(window->transBox().Cell(2, TransCol::Description), u"r2 changed");
    EXPECT_EQ(account->ListBox1Table.Cell(1, TransCol::Description), u"r2 changed");
    EXPECT_EQ(window->transBox().ListCount(), 7);
    EXPECT_TRUE(readBytes(home.books() + u"/  ShopTransData"_s).contains("r2 changed"));
}

TEST_F(IndAccWindowTest, ThePrintShowsTheLinesOnShowAndTheirTotal)
{
    indAccWindow* account = openRent();
    QTemporaryDir folder;
    const QString pdf = folder.path() + u"/rent.pdf"_s;
    platform.printToPdf(pdf);
    account->DateControl1->setDateValue(QDateTime(QDate(2014, 2, 9), QTime(9, 0)));
    account->PushButton1->click();
    QTest::mouseClick(account->Canvas4, Qt::LeftButton);
    QProcess text;
    text.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
    ASSERT_TRUE(text.waitForFinished(30000));
    const QString printed = QString::fromUtf8(text.readAllStandardOutput());
    EXPECT_TRUE(printed.contains(u"Account Transactions: Rent")) << printed.toStdString();
    EXPECT_TRUE(printed.contains(u"r4")) << printed.toStdString();
    EXPECT_FALSE(printed.contains(u"r2")) << "the lines on show only";
    EXPECT_TRUE(printed.contains(u"Total:")) << printed.toStdString();
    EXPECT_TRUE(printed.contains(u"-90"));
    EXPECT_EQ(platform.pageSetups, 0) << "the page set up in this run, not a new one";
}
