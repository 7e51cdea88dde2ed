#include "charts/AccountCharts.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Numbers.h"
#include "platform/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace {

std::array<QColor, 66> makeColourTable()
{
    const QColor first[21] = {
        {255, 0, 0},     {126, 164, 29},  {255, 196, 15},  {255, 128, 0},   {12, 101, 206},  {128, 0, 64},
        {128, 0, 255},   {102, 204, 255}, {255, 0, 0},     {128, 128, 0},   {0, 128, 255},   {102, 102, 102},
        {204, 102, 255}, {64, 0, 128},    {255, 255, 0},   {204, 255, 102}, {102, 102, 255}, {204, 204, 204},
        {0, 0, 255},     {128, 64, 0},    {255, 111, 207},
    };
    std::array<QColor, 66> table;
    table.fill(QColor(0, 0, 0));
    for (int i = 0; i <= 20; ++i)
        table[i] = first[i];
    // 21 to 40 and 41 to 60 repeat 1 to 20, but for a near black in place of 4's blue.
    for (int i = 1; i <= 20; ++i) {
        table[20 + i] = first[i];
        table[40 + i] = first[i];
    }
    table[24] = table[44] = QColor(1, 1, 1);
    return table;
}

// A bar's value: the cell's text before the point, without its sign. "-12.75"
// gives 12.
double wholeUnsigned(const QString& cell)
{
    QString whole = NthField(cell, u".", 1);
    if (Left(whole, 1) == u"-")
        whole = whole.mid(1);
    return Val(whole);
}

AccountChart accountValuesChart(const Listbox& accounts, QSize canvas, int column, int chartType, const QString& title)
{
    AccountChart chart;
    chart.picture = std::make_shared<chartingPicture>(canvas.width(), canvas.height());
    for (int row = 1; row < accounts.ListCount(); ++row)
        chart.picture->addColoredValue(wholeUnsigned(accounts.Cell(row, column)), QString(), chartColour(row),
                                       accounts.Cell(row, AccountCol::Name));
    chart.picture->chartType = chartType;
    chart.picture->showValues = true;
    chart.picture->title = title;
    chart.picture->drawChart();
    return chart;
}

} // namespace

const std::array<QColor, 66>& chartColourTable()
{
    static const std::array<QColor, 66> table = makeColourTable();
    return table;
}

QColor chartColour(int index)
{
    return chartColourTable()[std::size_t(index) % chartColourTable().size()];
}

AccountChart transactionsChart(const Listbox& accounts, QSize canvas)
{
    return accountValuesChart(accounts, canvas, AccountCol::Transactions, 1, u"Transactions"_s);
}

AccountChart balancesChart(const Listbox& accounts, QSize canvas)
{
    return accountValuesChart(accounts, canvas, AccountCol::Balance, 3, u"Balances"_s);
}

AccountChart openingsChart(const Listbox& accounts, QSize canvas)
{
    AccountChart chart;
    chart.picture = std::make_shared<chartingPicture>(canvas.width(), canvas.height());
    chartingPicture& pie = *chart.picture;
    for (int row = 1; row < accounts.ListCount(); ++row) {
        const double opening = Val(accounts.CellView(row, AccountCol::Opening));
        if (opening == 0)
            continue;
        const QString name = accounts.Cell(row, AccountCol::Name);
        pie.addColoredValue(opening, QString(), chartColour(row + 1), name);
        // The slice is drawn in the colour added with the value before it.
        const qsizetype slice = pie.values.size() - 1;
        if (row < kLegendLines)
            chart.legend.push_back({row, QColor(pie.valueR[slice], pie.valueG[slice], pie.valueB[slice]), name});
    }
    chart.noOpenings = pie.values.isEmpty();
    pie.chartType = 2;
    pie.showValues = true;
    pie.title = u"Opening/Allotments"_s;
    pie.drawChart();
    return chart;
}
