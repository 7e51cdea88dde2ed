#pragma once

#include "platform/Picture.h"
#include "platform/PrinterSetup.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

// An off-screen chart of a list of values that draws itself: a grey header with
// the title, a blue-to-white gradient, and on the inner picture the grid lines
// with their labels, the bars, slices or line, and a tag under each value.
//
// The colour lists hold one element more than the values, black at index 0, and
// a value is drawn in the colour of its own index: value 0 in black, value k in
// the colour added together with value k - 1. The chart window counts on it.
//
// Sizes of text are measured on the picture's own surface, which after the
// header stands at 11 points bold, and drawn on the inner picture at 9, so every
// label is placed with room to spare.
class chartingPicture : public Picture {
public:
    chartingPicture(int width, int height, int depth = 32);

    QStringList captions;      // one a value, never drawn
    int chartLineWidth = 0;    // pen of the grid lines, the line and the pie
    int chartType = 0;         // 1 bars, 2 pie, 3 line; others: the frame only
    double interval = 0;       // pixels between two grid lines
    double max = 0;            // largest value seen, never below 0
    double min = 0;            // smallest value seen, never above 0
    PrinterSetup pageSetup;
    QList<int> valueB{0};
    QList<int> valueG{0};
    QList<int> valueR{0};
    double yscale = 0;         // pixels a unit of value
    QList<double> values;
    int yOffset = 0;
    int xOffset = 0;           // left edge of the plot, after the widest y label
    QString yFormat;           // pattern of every number; empty: the plain number
    int headerHeight = 0;
    std::unique_ptr<Picture> chartPicture; // the inner picture, new at each drawing
    double chartWidth = 0;
    int chartHeight = 0;
    bool showValues = false;   // each value on its bar or point; the pie has none
    bool useRandomColors = false;
    int topOfChart = 0;
    int bottomOfChart = 0;
    int chartYMargin = 0;
    QStringList yTag;          // the tag under each value
    int chartLabelHeight = 0;
    bool forceNoEllipse = false;
    int numberOfLines = 0;     // grid intervals
    QColor titleColor = Qt::black;
    QString title;

    void addColoredValue(double value, const QString& caption, const QColor& colour, const QString& tag);
    // A value in a colour of chance, without a tag.
    void addValue(double value, const QString& caption);
    // Empties the values and captions and cuts the colours back to black; the
    // tags stay.
    void clearValues();
    // Draws the chart and puts it on the clipboard.
    void copyChart();
    void drawChart();
    // Asks for a printer with the page setup, and draws the chart once the user
    // accepts.
    void printChart();

private:
    void setGradient();
    void drawHeader();
    void setYScale();
    void drawChartLines();
    void barChart();
    void pieChart();
    void lineChart();
    void createXAxisTags();
    QString createEllipse(const QString& text, int limit);
    QColor randomColor() const;
    QColor colourOf(qsizetype index) const;
    QString formatValue(double value) const;
};
