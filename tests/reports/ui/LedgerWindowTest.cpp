// The ledger report window over the main window, opened by the toolbar's Summary.
#include "books/rowtable/ui/ListboxView.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "reports/ui/ledgerWindow.h"
#include "widgets/AutoButton.h"
#include "widgets/Canvas.h"
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
