#pragma once

#include "charts/chartingPicture.h"

#include <QDialog>

#include <array>
#include <memory>

class Canvas;
class Listbox;
class QFrame;
class QLabel;
class QPushButton;
class QRadioButton;

// The charts of the open ledger's accounts: the transaction totals as bars or
// the opening amounts as a pie with its legend. Each chart is made from the
// account table as it stands when the chart is made; the window holds no data
// of its own and doesn't follow later changes.
class chartingWindow : public QDialog {
    Q_OBJECT

public:
    chartingWindow(const Listbox& accounts, QWidget* parent);

    std::shared_ptr<chartingPicture> barChart; // the chart on show, whichever its kind

    QRadioButton* RadioButton1;                // "Transactions"
    QRadioButton* RadioButton2;                // "Opening/Allotments"
    Canvas* Canvas1;
    std::array<QFrame*, 20> AccountColor;      // the legend's swatches
    std::array<QLabel*, 20> AccountLabel;      // the legend's names
    QLabel* Label1;                            // the notice of a pie without slices
    QPushButton* PushButton1;                  // "Close"

    void generateChart();
    void createBarChart();
    // The balances as a line; no control offers it.
    void createLineChart();
    void createPieChart();
    void ClearColors();

    void RadioButton1_Action();
    void RadioButton2_Action();

private:
    void showChart(std::shared_ptr<chartingPicture> chart);

    const Listbox& accounts_;
};
