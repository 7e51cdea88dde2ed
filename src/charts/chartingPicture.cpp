// The frame every chart shares: gradient, header, scale, grid lines, axis tags.
// The bars, slices and line are in ChartKinds.cpp.
#include "charts/chartingPicture.h"

#include "platform/BlockingServices.h"
#include "platform/Numbers.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QRandomGenerator>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QColor kGradientTop(170, 204, 233);
const QColor kHeaderGrey(100, 100, 100);

// Below this a value can still hold cents; above it a double has none to show.
constexpr double kLargestWithCents = 1e13;

// One row of the gradient: white toward the bottom, blue toward the top.
QColor blendAt(int y, int height)
{
    const double toWhite = double(y) / height;
    const double toBlue = double(height - y) / height;
    const auto component = [&](int white, int blue) { return int(white * toWhite + blue * toBlue); };
    return QColor(component(255, kGradientTop.red()), component(255, kGradientTop.green()),
                  component(255, kGradientTop.blue()));
}

void blend(Graphics& g, int firstRow)
{
    const int height = g.Height();
    if (height <= 0)
        return;
    for (int y = firstRow; y <= height; ++y) {
        g.ForeColor = blendAt(y, height);
        g.DrawLine(0, y, g.Width(), y);
    }
    g.ForeColor = kGradientTop;
    g.DrawLine(0, 0, g.Width(), 0);
}

} // namespace

chartingPicture::chartingPicture(int width, int height, int depth)
    : Picture(width, height, depth)
{
}

void chartingPicture::addColoredValue(double value, const QString& caption, const QColor& colour, const QString& tag)
{
    values << value;
    captions << caption;
    yTag << tag;
    valueR << colour.red();
    valueG << colour.green();
    valueB << colour.blue();
}

void chartingPicture::addValue(double value, const QString& caption)
{
    values << value;
    captions << caption;
    QRandomGenerator& chance = *QRandomGenerator::global();
    valueR << int(chance.bounded(255.0));
    valueG << int(chance.bounded(255.0));
    valueB << int(chance.bounded(255.0));
}

void chartingPicture::clearValues()
{
    captions.clear();
    values.clear();
    for (QList<int>* colours : {&valueR, &valueG, &valueB})
        colours->resize(1);
}

void chartingPicture::copyChart()
{
    drawChart();
    if (qGuiApp)
        QGuiApplication::clipboard()->setImage(image());
}

void chartingPicture::printChart()
{
    if (OpenPrinterDialog(pageSetup))
        drawChart();
}

void chartingPicture::drawChart()
{
    yOffset = 10;
    headerHeight = 24;
    chartWidth = Width() - 10;
    chartHeight = Graphics().Height() - yOffset - headerHeight;
    chartYMargin = 20;
    chartLabelHeight = 6;
    Graphics().TextSize = 10;
    chartPicture = std::make_unique<Picture>(surfaceUnit(chartWidth), chartHeight);

    setGradient();
    drawHeader();
    setYScale();
    if (chartType != 2)
        drawChartLines();
    if (chartType == 1)
        barChart();
    else if (chartType == 2)
        pieChart();
    else if (chartType == 3)
        lineChart();

    Graphics().DrawPicture(*chartPicture, 5, headerHeight + 5);
}

void chartingPicture::setGradient()
{
    blend(Graphics(), headerHeight);
    blend(chartPicture->Graphics(), 0);
}

void chartingPicture::drawHeader()
{
    ::Graphics& g = Graphics();
    g.ForeColor = kHeaderGrey;
    g.FillRect(0, 0, Width(), 24);
    g.TextSize = 11;
    g.ForeColor = Qt::white;
    g.Bold = true;
    g.DrawString(title, 5, g.TextHeight() + 2);
    g.ForeColor = kHeaderGrey;
    g.DrawRect(0, 0, Width(), Height());
}

void chartingPicture::setYScale()
{
    for (const double value : values) {
        if (value > max)
            max = value;
        else if (value < min)
            min = value;
    }
    const double range = max - min;
    // A range below 1 (all values zero, or none) still gets one interval, from 0
    // to the largest value; with nothing to scale, every value stands at 0.
    numberOfLines = range < 1.0 ? 1 : range < 4.0 ? int(range) : 4;
    const int plotHeight = chartHeight - chartYMargin - chartLabelHeight;
    yscale = range > 0 ? plotHeight / range : 0.0;
    interval = double(plotHeight) / numberOfLines;
}

void chartingPicture::drawChartLines()
{
    ::Graphics& measure = Graphics();
    ::Graphics& g = chartPicture->Graphics();
    g.ForeColor = titleColor;
    g.PenWidth = chartLineWidth;

    QList<double> labels;
    for (int i = numberOfLines; i >= 0; --i)
        labels << i * (max / numberOfLines);

    for (int i = 0; i <= numberOfLines; ++i) {
        const double y = i * interval + chartYMargin / 2.0;
        if (i == 0)
            topOfChart = surfaceUnit(y);
        else if (i == numberOfLines)
            bottomOfChart = surfaceUnit(y);
        g.TextSize = 9;
        xOffset = surfaceUnit(measure.StringWidth(formatValue(max)) + 5);
        const QString label = formatValue(labels[i]);
        const int x = surfaceUnit(xOffset - (measure.StringWidth(label) + 5));
        g.DrawString(label, x, y + 4);
        g.DrawLine(xOffset, y, chartPicture->Width() - 5, y);
    }
    chartWidth = chartWidth - xOffset;
}

void chartingPicture::createXAxisTags()
{
    const qsizetype n = values.size();
    if (n == 0)
        return;
    ::Graphics& measure = Graphics();
    ::Graphics& g = chartPicture->Graphics();
    const double s = chartWidth / (2.0 * n);
    const int b = surfaceUnit(xOffset + s);
    const int row = chartPicture->Height() - 2;
    for (qsizetype i = 0; i < n; ++i) {
        const QString text = createEllipse(yTag.value(i), surfaceUnit(2 * s));
        int x = surfaceUnit((2.0 * i - 1) * s + b);
        if (chartType == 1)
            x = surfaceUnit(x + s / 2 - measure.StringWidth(text) / 2.5 + 10);
        if (chartType == 3)
            x = surfaceUnit(x - measure.StringWidth(text) / 3.0);
        g.ForeColor = colourOf(i);
        g.DrawString(text, x, row);
    }
}

QString chartingPicture::createEllipse(const QString& text, int limit)
{
    ::Graphics& measure = Graphics();
    if (forceNoEllipse || measure.StringWidth(text) < limit)
        return text;
    // The longest beginning that measures below the limit, one character shorter
    // at least; a beginning never measures less than a shorter one, so halving
    // finds what dropping one character at a time would. No beginning fits a
    // limit of 0 or less: the text goes down to nothing.
    qsizetype fits = 0;
    qsizetype tooWide = text.size();
    while (tooWide - fits > 1) {
        const qsizetype middle = (fits + tooWide) / 2;
        if (measure.StringWidth(text.left(middle)) < limit)
            fits = middle;
        else
            tooWide = middle;
    }
    if (fits > 0 && text[fits - 1].isHighSurrogate())
        --fits;
    return text.left(fits) + u"..."_s;
}

QColor chartingPicture::randomColor() const
{
    QRandomGenerator& chance = *QRandomGenerator::global();
    return QColor(chance.bounded(30, 151), chance.bounded(30, 151), chance.bounded(30, 201));
}

QColor chartingPicture::colourOf(qsizetype index) const
{
    return QColor(valueR.value(index), valueG.value(index), valueB.value(index));
}

QString chartingPicture::formatValue(double value) const
{
    if (!yFormat.isEmpty())
        return Format(value, yFormat);
    // The plain number, to the cent at most: 1234.5, 308.64, -12.
    if (std::fabs(value) < kLargestWithCents)
        value = std::round(value * 100) / 100;
    return Str(value).replace(u'.', QLocale().decimalPoint());
}
