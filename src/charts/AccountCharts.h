#pragma once

#include "charts/chartingPicture.h"

#include <QColor>
#include <QSize>
#include <QString>

#include <array>
#include <memory>
#include <vector>

class Listbox;

// The charts of a ledger's accounts as the chart window shows them, made from
// the account table as it stands: every account but the Base Account, one bar,
// point or slice each, in table order.

// One line of the pie's legend: the account's row in the table (the line's own
// place), the colour its slice is drawn in, and its name.
struct LegendLine {
    int row = 0;
    QColor colour;
    QString name;
};

struct AccountChart {
    std::shared_ptr<chartingPicture> picture; // drawn, at the canvas's size
    std::vector<LegendLine> legend;           // the pie's visible lines, by row
    bool noOpenings = false;                  // a pie with no slice: the notice shows
};

// The legend has this many lines, 0 to 19; line 0 is never used, and an account
// in a row past the last has its slice but no line.
constexpr int kLegendLines = 20;
inline const QString kNoOpeningsNotice = QStringLiteral("None of the accounts have been alloted opening amounts.");

// The chart colours, indices 0 to 65.
const std::array<QColor, 66>& chartColourTable();
// The colour for an account row; past the table's end the colours start over.
QColor chartColour(int index);

// "Transactions": a bar per account of its transaction total in whole units,
// the cents cut off and the sign dropped, named under the bar.
AccountChart transactionsChart(const Listbox& accounts, QSize canvas);
// "Balances": the same of the balances, as a line.
AccountChart balancesChart(const Listbox& accounts, QSize canvas);
// "Opening/Allotments": a slice per account with an opening amount, and its
// legend line.
AccountChart openingsChart(const Listbox& accounts, QSize canvas);
