#include "charts/ui/chartingWindow.h"

#include "charts/AccountCharts.h"
#include "platform/ui/DialogLayout.h"
#include "widgets/Canvas.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

chartingWindow::chartingWindow(const Listbox& accounts, QWidget* parent)
    : QDialog(parent)
    , accounts_(accounts)
{
    // Modal to the main window, so the title and the chart stay one ledger's.
    setObjectName(u"chartingWindow"_s);
    setWindowModality(Qt::WindowModal);
    setFixedSize(796, 472);

    Canvas1 = named(new Canvas(this), u"Canvas1"_s);
    Canvas1->setGeometry(21, 20, 553, 432);
    RadioButton1 = named(new QRadioButton(u"Transactions"_s, this), u"RadioButton1"_s);
    RadioButton1->setGeometry(586, 30, 190, 20);
    RadioButton1->setChecked(true);
    RadioButton2 = named(new QRadioButton(u"Opening/Allotments"_s, this), u"RadioButton2"_s);
    RadioButton2->setGeometry(586, 55, 190, 20);
    for (int index = 0; index < int(AccountColor.size()); ++index) {
        AccountColor[index] = named(new QFrame(this), u"AccountColor%1"_s.arg(index));
        AccountColor[index]->setGeometry(586, 107 + 15 * index, 17, 13);
        AccountLabel[index] = named(new QLabel(this), u"AccountLabel%1"_s.arg(index));
        AccountLabel[index]->setGeometry(612, 103 + 15 * index, 164, 20);
    }
    // Over the canvas, centred on the chart.
    Label1 = named(new QLabel(kNoOpeningsNotice, this), u"Label1"_s);
    Label1->setGeometry(60, 208, 475, 20);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->hide();
    PushButton1 = named(new QPushButton(u"Close"_s, this), u"PushButton1"_s);
    PushButton1->setGeometry(676, 424, 100, 28);

    connect(RadioButton1, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            RadioButton1_Action();
    });
    connect(RadioButton2, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            RadioButton2_Action();
    });
    connect(PushButton1, &QPushButton::clicked, this, &QDialog::close);

    generateChart();
}

void chartingWindow::generateChart()
{
    ClearColors();
    if (RadioButton1->isChecked())
        createBarChart();
    else if (RadioButton2->isChecked())
        createPieChart();
    update();
}

void chartingWindow::createBarChart()
{
    ClearColors();
    Label1->hide();
    showChart(transactionsChart(accounts_, Canvas1->size()).picture);
}

void chartingWindow::createLineChart()
{
    ClearColors();
    Label1->hide();
    showChart(balancesChart(accounts_, Canvas1->size()).picture);
}

void chartingWindow::createPieChart()
{
    ClearColors();
    const AccountChart chart = openingsChart(accounts_, Canvas1->size());
    for (const LegendLine& line : chart.legend) {
        AccountColor[line.row]->setStyleSheet(u"background-color: %1; border: 1px solid black;"_s.arg(line.colour.name()));
        AccountColor[line.row]->show();
        AccountLabel[line.row]->setText(line.name);
        AccountLabel[line.row]->show();
    }
    if (chart.noOpenings)
        Label1->show();
    showChart(chart.picture);
}

void chartingWindow::ClearColors()
{
    for (QFrame* swatch : AccountColor)
        swatch->hide();
    for (QLabel* name : AccountLabel)
        name->hide();
}

void chartingWindow::RadioButton1_Action()
{
    createBarChart();
    update();
}

void chartingWindow::RadioButton2_Action()
{
    createPieChart();
    update();
}

void chartingWindow::showChart(std::shared_ptr<chartingPicture> chart)
{
    barChart = std::move(chart);
    Canvas1->setBackdrop(barChart);
}
