// The chart window over the main window, opened by the toolbar's Charts.
#include "charts/ui/chartingWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "widgets/Canvas.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

class ChartingWindowTest : public SummaryWindowTest {
protected:
    // "  Shop" with the Base Account and these account rows, open in the main
    // window; then Charts.
    chartingWindow* openCharts(const QByteArray& accounts)
    {
        press(openShop("@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n" + accounts, {}), u"Graphs"_s);
        chartingWindow* charts = Windows::chartingWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(charts));
        return charts;
    }

    // The legend as the user sees it: "row colour name" for each line showing.
    static QStringList legend(chartingWindow* charts)
    {
        QStringList lines;
        for (int row = 0; row < 20; ++row) {
            EXPECT_EQ(charts->AccountColor[row]->isHidden(), charts->AccountLabel[row]->isHidden()) << row;
            if (charts->AccountLabel[row]->isHidden())
                continue;
            const QColor swatch = charts->AccountColor[row]->grab().toImage().pixelColor(8, 6);
            lines << u"%1 %2 %3"_s.arg(row).arg(swatch.name(), charts->AccountLabel[row]->text());
        }
        return lines;
    }
};

} // namespace

TEST_F(ChartingWindowTest, ChartsShowsTheTransactionTotalsAsBarsAndAPieWithoutOpeningsTheNotice)
{
    chartingWindow* charts = openCharts("@#@Rent@#@Expense@#@0.00@#@-12.75@#@-12.75@#@@#@\n"
                                        "@#@Sales@#@Revenue@#@0.00@#@3120.5@#@3120.5@#@@#@\n"
                                        "@#@Fuel@#@Expense@#@0.00@#@0@#@0@#@@#@\n");
    EXPECT_EQ(charts->windowTitle(), u"  Shop");
    ASSERT_TRUE(charts->barChart);
    EXPECT_EQ(charts->Canvas1->Backdrop(), charts->barChart);
    EXPECT_EQ(charts->barChart->Width(), 553);
    EXPECT_EQ(charts->barChart->chartType, 1);
    // Every account but the Base Account, zero included; cents cut, sign dropped.
    EXPECT_EQ(charts->barChart->values, (QList<double>{12, 3120, 0}));
    EXPECT_EQ(charts->barChart->yTag, (QStringList{u"Rent"_s, u"Sales"_s, u"Fuel"_s}));
    EXPECT_TRUE(legend(charts).isEmpty());
    EXPECT_TRUE(charts->Label1->isHidden());

    // Every opening is zero: no slice, and the notice until the bars come back.
    charts->RadioButton2->click();
    EXPECT_FALSE(charts->Label1->isHidden());
    EXPECT_TRUE(charts->barChart->values.isEmpty());
    EXPECT_TRUE(legend(charts).isEmpty());
    charts->RadioButton1->click();
    EXPECT_TRUE(charts->Label1->isHidden());

    QTest::mouseClick(charts->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(charts->isVisible());
}

TEST_F(ChartingWindowTest, ThePieLeavesOutZeroOpeningsAndItsLegendKeepsTheRowPlaces)
{
    chartingWindow* charts = openCharts("@#@Rent@#@Expense@#@300@#@0@#@300@#@@#@\n"
                                        "@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@@#@\n"
                                        "@#@Fuel@#@Expense@#@100@#@0@#@100@#@@#@\n"
                                        "@#@Wages@#@Expense@#@-0.4@#@0@#@0@#@@#@\n");
    charts->RadioButton2->click();
    const chartingPicture& pie = *charts->barChart;
    EXPECT_EQ(pie.chartType, 2);
    EXPECT_EQ(pie.values, (QList<double>{300, 100, -0.4}));
    // The first slice is black; Fuel's takes the colour added with Rent, the
    // table's entry 2; each line at its account's row, Sales leaving a gap.
    EXPECT_EQ(legend(charts), (QStringList{u"1 #000000 Rent"_s, u"3 #ffc40f Fuel"_s, u"4 #0c65ce Wages"_s}));
    EXPECT_TRUE(charts->Label1->isHidden());

    charts->RadioButton1->click();
    EXPECT_TRUE(legend(charts).isEmpty());
    EXPECT_EQ(charts->barChart->chartType, 1);
}

TEST_F(ChartingWindowTest, AccountsPastTheLegendAndTheColourTableStillChart)
{
    QByteArray accounts;
    for (int row = 1; row < 80; ++row)
        accounts += "@#@Account " + QByteArray::number(row) + "@#@Expense@#@" + QByteArray::number(row) + "@#@-"
                    + QByteArray::number(row) + "@#@0@#@@#@\n";
    chartingWindow* charts = openCharts(accounts);
    EXPECT_EQ(charts->barChart->values.size(), 79);
    EXPECT_EQ((QList<int>{charts->barChart->valueR.at(24), charts->barChart->valueR.at(67)}), (QList<int>{1, 126}))
        << "row 24 near black in place of entry 4's blue; row 67 takes entry 1 again";
    charts->RadioButton2->click();
    EXPECT_EQ(charts->barChart->values.size(), 79);
    const QStringList lines = legend(charts);
    ASSERT_EQ(lines.size(), 19);
    EXPECT_EQ(lines.last(), u"19 #804000 Account 19");
}
