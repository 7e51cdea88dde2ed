// The ledger report window over the main window, opened by the toolbar's Summary.
#include "books/rowtable/ui/ListboxView.h"
#include "engine/RowLayouts.h"
#include "engine/ui/TransactionWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "reports/ui/indAccWindow.h"
#include "reports/ui/ledgerWindow.h"
#include "support/PdfReading.h"
#include "widgets/AutoButton.h"
#include "widgets/Canvas.h"
#include "widgets/DateControl.h"
#include "widgets/UpDownArrows.h"

#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>

namespace {

class LedgerWindowTest : public SummaryWindowTest {
protected:
    // "  Shop": Rent and Sales, with rows in February of two years and one in March.
    LedgerWindowTest()
    {
        press(openShop("@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n"
                       "@#@Rent@#@Expense@#@0.00@#@-90@#@-90@#@@#@\n"
                       "@#@Sales@#@Revenue@#@0.00@#@12.5@#@12.5@#@@#@\n",
                       "@#@Rent@#@2014-02-09@#@Feb rent@#@A1@#@-40@#@@#@-40.00@#@@#@@#@@#@Never@#@\n"
                       "@#@Sales@#@2015-02-10@#@Sale@#@@#@12.5@#@@#@12.50@#@@#@@#@@#@Never@#@\n"
                       "@#@Rent@#@2015-03-09@#@Mar rent@#@@#@-50@#@@#@-50.00@#@@#@@#@@#@Never@#@\n"),
              u"Ledger"_s);
        report = Windows::ledgerWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(report));
    }

    // The dates of the transaction rows shown.
    QStringList dates() const
    {
        QStringList cells;
        for (int row = 0; row < report->ledgerboxTable.ListCount(); ++row)
            if (report->ledgerboxTable.Cell(row, 0).startsWith(u'2'))
                cells << report->ledgerboxTable.Cell(row, 0);
        return cells;
    }

    FixedClock clock{QDateTime(QDate(2015, 6, 1), QTime(12, 0))};
    ledgerWindow* report = nullptr;
};

} // namespace

TEST_F(LedgerWindowTest, SummaryOpensTheWholeReportTitledWithTheLedger)
{
    EXPECT_EQ(report->windowTitle(), u"  Shop - Summary");
    EXPECT_EQ(report->TextField1->text(), u"2015") << "the clock's year";
    EXPECT_EQ(dates(), (QStringList{u"2014-02-09"_s, u"2015-03-09"_s, u"2015-02-10"_s}));
    EXPECT_TRUE(report->StaticText2->isHidden());
    // The headings can't be pressed: the canvas over them takes the click.
    EXPECT_EQ(report->Canvas2->geometry(), report->ledgerbox->horizontalHeader()->rect());
    QTest::mouseClick(report->Canvas2, Qt::LeftButton, {}, QPoint(30, 5));
    EXPECT_EQ(dates().first(), u"2014-02-09");
    // The band under the first line on screen.
    const QImage grid = report->ledgerbox->viewport()->grab().toImage();
    EXPECT_EQ(grid.pixelColor(report->ledgerbox->columnWidth(0) + 5, 3), QColor(217, 233, 255));

    // The print button and File > Print print the report as it stands.
    QTemporaryDir folder;
    const QString pdf = folder.path() + u"/report.pdf"_s;
    platform.printToPdf(pdf);
    QTest::mouseClick(report->Canvas1, Qt::LeftButton);
    EXPECT_TRUE(readBytes(pdf).startsWith("%PDF"));
    EXPECT_EQ(platform.pageSetups, 1);
    QFile::remove(pdf);
    QTest::keyClick(report, Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(QFile::exists(pdf));
    EXPECT_EQ(platform.printerDialogs, 2);

    QTest::mouseClick(report->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(report->isVisible());
}

TEST_F(LedgerWindowTest, TheMonthOfEveryYearAndTheYearButtonTurnByTurn)
{
    report->PopupMenu1->setCurrentIndex(2);
    EXPECT_EQ(dates(), (QStringList{u"2014-02-09"_s, u"2015-02-10"_s})) << "February";
    report->PopupMenu1->setCurrentIndex(7);
    EXPECT_EQ(report->ledgerboxTable.ListCount(), 0);
    EXPECT_FALSE(report->StaticText2->isHidden());

    // A year without rows: the notice, and another year can be tried.
    report->TextField1->setText(u"2013"_s);
    report->PushButton2->click();
    EXPECT_FALSE(report->StaticText2->isHidden());
    EXPECT_EQ(report->PushButton2->text(), u"Show Year");
    EXPECT_TRUE(report->TextField1->isEnabled());
    // The arrows step the text typed, and change nothing else until pressed.
    report->UpDownArrows1->upButton()->click();
    report->UpDownArrows1->upButton()->click();
    EXPECT_EQ(report->TextField1->text(), u"2015");
    EXPECT_EQ(report->ledgerboxTable.ListCount(), 0);
    report->PushButton2->click();
    EXPECT_EQ(dates(), (QStringList{u"2015-03-09"_s, u"2015-02-10"_s}));
    EXPECT_TRUE(report->StaticText2->isHidden());
    EXPECT_EQ(report->PushButton2->text(), u"Show All");
    EXPECT_FALSE(report->TextField1->isEnabled());
    EXPECT_FALSE(report->UpDownArrows1->isEnabled());

    // The months still work under "Show All", over every year.
    report->PopupMenu1->setCurrentIndex(2);
    EXPECT_EQ(dates(), (QStringList{u"2014-02-09"_s, u"2015-02-10"_s}));
    EXPECT_EQ(report->PushButton2->text(), u"Show All");
    report->PushButton2->click();
    EXPECT_EQ(report->PushButton2->text(), u"Show Year");
    EXPECT_TRUE(report->TextField1->isEnabled());
    EXPECT_EQ(dates(), (QStringList{u"2014-02-09"_s, u"2015-02-10"_s})) << "the month chosen";

    // Text that isn't a number steps from 0.
    report->TextField1->setText(u"next year"_s);
    report->UpDownArrows1->downButton()->click();
    EXPECT_EQ(report->TextField1->text(), u"-1");
}

// An account's transactions window over the main window, opened by the
// toolbar's Transactions, with the transaction dialog and the printer scripted.
namespace {

class IndAccWindowTest : public SummaryWindowTest {
protected:
    // "  Shop": Rent's transactions at rows 0, 2, 4 and 5 of transBox, Sales's at 1 and 3.
    IndAccWindowTest()
    {
        window = openShop("@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n"
                          "@#@Rent@#@Expense@#@0.00@#@0@#@0@#@@#@\n"
                          "@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@@#@\n",
                          "@#@Rent@#@2014-01-09@#@r0@#@@#@-10@#@@#@-10.00@#@@#@@#@@#@Never@#@\n"
                          "@#@Sales@#@2014-01-10@#@s1@#@@#@5@#@@#@5.00@#@@#@@#@@#@Never@#@\n"
                          "@#@Rent@#@2014-02-09@#@r2@#@@#@-20@#@@#@-20.00@#@@#@@#@@#@Never@#@\n"
                          "@#@Sales@#@2014-02-10@#@s3@#@@#@7@#@@#@7.00@#@@#@@#@@#@Never@#@\n"
                          "@#@rent@#@2014-03-09@#@r4@#@@#@-40@#@@#@-40.00@#@@#@@#@@#@Never@#@\n"
                          "@#@Rent@#@2014-04-09@#@r5@#@@#@-50@#@@#@-50.00@#@@#@@#@@#@Never@#@\n");
        window->books().calcAll();
        window->accountsBox().SetListIndex(1);
        press(window, u"Transactions"_s);
        account = Windows::indAccWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(account));
    }

    QStringList descriptions() const { return columnOf(account->ListBox1Table, TransCol::Description); }

    // Whether add, delete and edit are on.
    bool editable() const
    {
        const bool on = account->Canvas1->isEnabled();
        EXPECT_EQ(account->Canvas2->isEnabled(), on);
        EXPECT_EQ(account->Canvas3->isEnabled(), on);
        return on;
    }

    FixedClock clock{QDateTime(QDate(2014, 5, 1), QTime(12, 0))};
    SummaryWindow* window = nullptr;
    indAccWindow* account = nullptr;
};

} // namespace

TEST_F(IndAccWindowTest, TheAccountsLinesAndBalanceAndDeletingTheSelectedOnes)
{
    EXPECT_EQ(account->StaticText3->text(), u"Rent");
    EXPECT_EQ(account->DateControl1->date(), QDate(2014, 5, 1)) << "today by the clock";
    EXPECT_EQ(descriptions(), (QStringList{u"r0"_s, u"r2"_s, u"r4"_s, u"r5"_s}));
    EXPECT_EQ(account->Label3->text(), u"-120.00") << "the account's balance";

    account->ListBox1Table.setSelectedRows({1, 3});
    platform.answerNextDialog(MessageDialog::Button::Action);
    QTest::mouseClick(account->Canvas2, Qt::LeftButton);
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].Message, u"Are you sure you want to delete the selected transaction(s)?");
    EXPECT_EQ(descriptions(), (QStringList{u"r0"_s, u"r4"_s}));
    EXPECT_EQ(window->transBox().ListCount(), 4);
    EXPECT_EQ(account->Label3->text(), u"-50.00") << "the balance recalculated";
}

TEST_F(IndAccWindowTest, ApplyNarrowsTheListAndShowAllBringsItBack)
{
    const auto apply = [&](QDate from, QDate to) {
        account->DateControl1->setDateValue(QDateTime(from, QTime(9, 0)));
        account->DateControl2->setDateValue(QDateTime(to, QTime(9, 0)));
        account->PushButton1->click();
    };
    // Equal dates: nothing changes.
    apply(QDate(2014, 2, 1), QDate(2014, 2, 1));
    EXPECT_EQ(account->Label3->text(), u"-120.00");
    EXPECT_TRUE(editable());

    // A range that keeps everything: the buttons stay on, the label is the sum.
    apply(QDate(2013, 12, 31), QDate(2014, 4, 9));
    EXPECT_EQ(account->Label3->text(), u"-120");
    EXPECT_TRUE(editable());

    // Lines go: add, edit and delete go off, printing stays.
    apply(QDate(2014, 2, 9), QDate(2014, 4, 9));
    EXPECT_EQ(descriptions(), (QStringList{u"r4"_s, u"r5"_s}));
    EXPECT_EQ(account->Label3->text(), u"-90");
    EXPECT_FALSE(editable());
    EXPECT_TRUE(account->Canvas4->isEnabled());
    EXPECT_EQ(window->transBox().ListCount(), 6);

    // The print shows the lines on show and their total, on the run's page setup.
    QTemporaryDir folder;
    const QString pdf = folder.path() + u"/rent.pdf"_s;
    platform.printToPdf(pdf);
    QTest::mouseClick(account->Canvas4, Qt::LeftButton);
    const QList<Word> words = wordsOf(pdf);
    for (const QString& shown : {u"Transactions:"_s, u"Rent"_s, u"r4"_s, u"r5"_s, u"Total:"_s, u"-90"_s})
        EXPECT_EQ(named(words, shown).size(), 1) << shown.toStdString();
    EXPECT_TRUE(named(words, u"r2"_s).isEmpty());
    EXPECT_EQ(platform.pageSetups, 0);

    account->PushButton2->click();
    EXPECT_EQ(account->ListBox1Table.ListCount(), 4);
    EXPECT_EQ(account->Label3->text(), u"-120.00");
    EXPECT_TRUE(editable());
}

TEST_F(IndAccWindowTest, AddingAndEditingFromTheWindowChangeBothTables)
{
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
    EXPECT_EQ(window->transBox().ListCount(), 7);
    EXPECT_EQ(descriptions().value(4), u"added here");
    EXPECT_EQ(account->Label3->text(), u"-150.00") << "the new balance";

    // Edit the second line: the dialog shows its figures; OK writes its own row.
    account->ListBox1Table.SetListIndex(1);
    QTest::mouseClick(account->Canvas3, Qt::LeftButton);
    dialog = Windows::TransactionWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->EditField1->text(), u"20.00 ") << "the total without its sign, as the list holds it";
    dialog->EditField3->setText(u"r2 changed"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(window->transBox().Cell(2, TransCol::Description), u"r2 changed");
    EXPECT_EQ(descriptions().value(1), u"r2 changed");
}
