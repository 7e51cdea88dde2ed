// The three kinds of chart, each drawn on the inner picture once the frame and
// the scale stand: bars, a pie and a line.
#include "charts/chartingPicture.h"

#include <cmath>

namespace {

constexpr double kPi = 3.1415926;

// The arc of a slice has a point at each whole step j of (value + cum) * d,
// which for amounts in the millions makes millions of points each a fraction of
// a pixel from the last. Above this many points a turn, the steps widen so a
// turn has about this many: the polygon keeps its shape to the pixel and the
// slice begins and ends on the same angles.
constexpr double kArcPointsPerDiameter = 8;

struct PieGeometry {
    int xc = 0;
    int yc = 0;
    int d = 0;
    double total = 0;

    double angleAt(double j) const { return ((j / d) * 2 * kPi) / total; }
    void appendPoint(QList<int>& points, double angle) const
    {
        points << surfaceUnit(xc + std::sin(angle) * d / 2) << surfaceUnit(yc + std::cos(angle) * d / 2);
    }
};

// The points of one slice's arc, j from cum * d while j <= (value + cum) * d.
// An arc that winds round more than twice (a slice larger than the whole, beside
// negative ones) is cut by whole turns to between one and two: it covers the
// same disc and ends on the same point.
void appendArc(QList<int>& points, const PieGeometry& pie, double cum, double value)
{
    const double first = cum * pie.d;
    const double last = (value + cum) * pie.d;
    if (!(last >= first))
        return;
    const double pointsPerTurn = std::fabs(pie.total) * pie.d;
    const double step = std::max(1.0, std::floor(pointsPerTurn / (kArcPointsPerDiameter * pie.d)));
    double steps = std::floor((last - first) / step);
    const double stepsPerTurn = pointsPerTurn / step;
    if (steps > 2 * stepsPerTurn) {
        const double turns = std::floor(steps / stepsPerTurn) - 1;
        const double endAngle = pie.angleAt(first + steps * step);
        const double startAngle = pie.angleAt(first);
        // What is left of the arc, in angle: its end shifted back by whole turns.
        const double keptAngle = endAngle - startAngle - turns * 2 * kPi * (pie.total > 0 ? 1 : -1);
        const double angleStep = pie.angleAt(step) - pie.angleAt(0);
        const double kept = std::floor(keptAngle / angleStep);
        for (double k = 0; k <= kept; ++k)
            pie.appendPoint(points, startAngle + k * angleStep);
        pie.appendPoint(points, endAngle);
        return;
    }
    for (double k = 0; k <= steps; ++k)
        pie.appendPoint(points, pie.angleAt(first + k * step));
}

} // namespace

void chartingPicture::barChart()
{
    ::Graphics& measure = Graphics();
    ::Graphics& g = chartPicture->Graphics();
    const qsizetype n = values.size();
    if (n > 0) {
        const double s = chartWidth / (2.0 * n);
        const int a = surfaceUnit(xOffset + s + 10);
        for (qsizetype i = 0; i < n; ++i) {
            g.ForeColor = useRandomColors ? randomColor() : colourOf(i);
            const int x = surfaceUnit((2.0 * i - 1) * s + a);
            const int w = surfaceUnit(s);
            const int h = surfaceUnit(values[i] * yscale);
            const int top = bottomOfChart - h;
            g.FillRect(x, top, w, h);
            if (!showValues)
                continue;
            const QString label = formatValue(values[i]);
            const int lx = surfaceUnit(x + w / 2.0 - measure.StringWidth(label) / 2.5);
            g.TextSize = 9;
            const int labelHeight = measure.StringHeight(label, w);
            if (h > labelHeight) {
                g.ForeColor = Qt::white;
                g.DrawString(label, lx, surfaceUnit(labelHeight / 2.5 + top + h / 2.0));
            } else {
                const int ww = w + 8;
                g.ForeColor = Qt::black;
                g.DrawString(label, lx, surfaceUnit(top - measure.StringHeight(label, ww)), ww);
            }
        }
    }
    createXAxisTags();
}

void chartingPicture::pieChart()
{
    double total = 0;
    for (const double value : values)
        total = std::trunc(total + value);

    ::Graphics& g = chartPicture->Graphics();
    const int width = g.Width();
    const int height = g.Height();
    PieGeometry pie;
    pie.xc = width / 2;
    pie.yc = surfaceUnit(height - height / 2.0);
    pie.d = height <= width ? height : width;
    pie.total = total;
    g.PenWidth = chartLineWidth;
    g.PenHeight = chartLineWidth;
    g.ForeColor = titleColor;
    // Amounts that cancel out or stay below 1 leave no whole to share: no slices.
    if (total == 0 || !std::isfinite(total) || pie.d <= 0)
        return;

    double cum = 0;
    QList<int> points;
    for (qsizetype i = 0; i < values.size(); ++i) {
        points.resize(1);
        points << pie.xc << pie.yc;
        appendArc(points, pie, cum, values[i]);
        pie.appendPoint(points, i == values.size() - 1 ? 0.0 : ((values[i] + cum) * 2 * kPi) / total);
        g.ForeColor = colourOf(i);
        g.FillPolygon(points);
        cum = std::trunc(values[i] + cum);
    }
}

void chartingPicture::lineChart()
{
    ::Graphics& measure = Graphics();
    ::Graphics& g = chartPicture->Graphics();
    g.PenWidth = chartLineWidth;
    const qsizetype n = values.size();
    if (n > 0) {
        const double p = chartWidth / n;
        const auto px = [&](qsizetype i) { return i * p + xOffset; };
        const auto py = [&](qsizetype i) {
            return chartHeight - chartYMargin / 2.0 - chartLabelHeight - (values[i] - min) * yscale;
        };

        int prevX = xOffset;
        int prevY = topOfChart;
        for (qsizetype i = 0; i < n; ++i) {
            if (prevX != xOffset || prevY != topOfChart) {
                g.ForeColor = colourOf(i);
                g.DrawLine(prevX, prevY, px(i), py(i));
            }
            prevX = surfaceUnit(px(i));
            prevY = surfaceUnit(py(i));
        }

        g.TextSize = 9;
        for (qsizetype i = 0; i < n; ++i) {
            const int x = surfaceUnit(px(i));
            const int y = surfaceUnit(py(i));
            g.ForeColor = randomColor();
            g.FillOval(x - 1, y - 2, 4, 4);
            if (!showValues)
                continue;
            const QString label = formatValue(values[i]);
            const int w = measure.StringWidth(label);
            const int h = measure.StringHeight(label, chartPicture->Width());
            const int lx = surfaceUnit(x - w / 2.0);
            int ly = surfaceUnit(y - h * 1.5);
            if (ly < topOfChart)
                ly = surfaceUnit(ly + h * 1.5 * 4.0);
            g.ForeColor = Qt::black;
            g.DrawString(label, lx, ly);
        }
    }
    createXAxisTags();
}
