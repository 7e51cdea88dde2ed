// The chart picture, read back pixel by pixel. At the chart window's 553 by 432
// the inner picture is 543 by 398, its grid lines from row 10 down to row 382.
#include "charts/chartingPicture.h"
#include "platform/Numbers.h"
#include "support/Testing.h"

#include <QElapsedTimer>

#include <cmath>

namespace {

constexpr int kTop = 10;
constexpr int kBottom = 382;

const QColor kBlack(Qt::black);
const QColor kNavy(0, 0, 128);
const QColor kRed(200, 0, 0);
const QColor kGreen(0, 150, 0);

const auto whitish = [](QColor c) { return c.red() > 200 && c.green() > 200 && c.blue() > 200; };
const auto blackish = [](QColor c) { return c.red() < 60 && c.green() < 60 && c.blue() < 60; };

// A chart with these values, navy, red and green in turn, each with its tag.
std::unique_ptr<chartingPicture> chartOf(const QList<double>& values, int type, QSize size = {553, 432})
{
    auto chart = std::make_unique<chartingPicture>(size.width(), size.height());
    const QColor colours[] = {kNavy, kRed, kGreen};
    for (qsizetype i = 0; i < values.size(); ++i)
        chart->addColoredValue(values[i], QString(), colours[i % 3], u"Tag %1"_s.arg(i));
    chart->chartType = type;
    return chart;
}

const QImage& inner(const chartingPicture& chart)
{
    return chart.chartPicture->image();
}

// How many rows, going up from the row above the bottom line, have this colour.
int columnHeight(const chartingPicture& chart, int x, const QColor& colour)
{
    int height = 0;
    while (kBottom - 1 - height >= 0 && inner(chart).pixelColor(x, kBottom - 1 - height) == colour)
        ++height;
    return height;
}

bool anyPixelLike(const QImage& image, const QRect& area, const std::function<bool(QColor)>& like)
{
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            if (like(image.pixelColor(x, y)))
                return true;
    return false;
}

// Text as the chart measures it: on its own surface, 11 points bold.
Graphics& measure()
{
    static Picture surface(10, 10);
    surface.Graphics().TextSize = 11;
    surface.Graphics().Bold = true;
    return surface.Graphics();
}

// The left edge of the plot: 5 right of the widest label, the top one.
int plotLeft(double largest)
{
    return measure().StringWidth(Str(largest)) + 5;
}

// The point of a pie's circle at an angle, a share of the radius out.
QPoint pieAt(const chartingPicture& chart, double angle, double ofRadius)
{
    const int width = chart.chartPicture->Width();
    const int height = chart.chartPicture->Height();
    const double radius = std::min(width, height) / 2.0 * ofRadius;
    return QPoint(int(width / 2 + std::sin(angle) * radius), int(height / 2 + std::cos(angle) * radius));
}

} // namespace

TEST(ChartingPictureTest, TheScaleTopsAtTheLargestValueWithFourIntervalsOrOneAWholeUnit)
{
    struct Case {
        const char* name;
        QList<double> values;
        int lines;
    };
    const Case cases[] = {
        {"range 2.5", {2.5}, 2},
        {"range exactly 4", {4.0}, 4},
        {"range 3.99", {3.99}, 3},
        {"a large range", {1250, 40}, 4},
        {"a negative value widens the range, not the labels", {1, -1.5}, 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto chart = chartOf(c.values, 1);
        chart->drawChart();
        EXPECT_EQ(chart->numberOfLines, c.lines);
        // A line at each interval from the plot's left edge to 5 short of the right.
        const int left = plotLeft(c.values[0]);
        for (int i = 0; i <= c.lines; ++i) {
            SCOPED_TRACE(i);
            const int y = int(i * double(kBottom - kTop) / c.lines + kTop);
            EXPECT_EQ(inner(*chart).pixelColor(left, y), kBlack);
            EXPECT_NE(inner(*chart).pixelColor(left - 1, y), kBlack);
            EXPECT_EQ(inner(*chart).pixelColor(537, y), kBlack);
            EXPECT_NE(inner(*chart).pixelColor(539, y), kBlack);
            EXPECT_NE(inner(*chart).pixelColor(537, y - 1), kBlack);
        }
    }
}

TEST(ChartingPictureTest, BarsStandOnTheBottomLineInProportionWithTheColourAddedBefore)
{
    // With a largest value of 372 a unit is a pixel: heights are the values cut.
    const auto chart = chartOf({372, 186.9, 0.5, 93}, 1);
    chart->drawChart();
    const double s = (543 - plotLeft(372)) / 8.0;
    const int a = int(plotLeft(372) + s + 10);
    const int w = int(s);
    // Bar 0 is black; bar k takes the colour added with value k - 1.
    const QColor colours[] = {kBlack, kNavy, kRed, kGreen};
    const int heights[] = {372, 186, 0, 93};
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        const int x = int((2 * i - 1) * s + a);
        EXPECT_EQ(columnHeight(*chart, x, colours[i]), heights[i]);
        EXPECT_EQ(columnHeight(*chart, x + w - 1, colours[i]), heights[i]);
        if (heights[i] > 0) {
            EXPECT_NE(inner(*chart).pixelColor(x - 1, kBottom - 1), colours[i]) << "left edge";
            EXPECT_NE(inner(*chart).pixelColor(x + w, kBottom - 1), colours[i]) << "right edge";
        }
        EXPECT_EQ(inner(*chart).pixelColor(x, kBottom), kBlack) << "the bottom line shows";
    }
    // Each tag under its bar, in the bar's colour.
    const int second = int(s + a);
    EXPECT_TRUE(anyPixelLike(inner(*chart), QRect(second - w / 2, kBottom + 2, 2 * w, 14),
                             [](QColor c) { return c.red() < 120 && c.blue() - c.red() > 70; }));
}

TEST(ChartingPictureTest, AValueLabelGoesInsideOnlyABarTallerThanTheLabel)
{
    const int labelHeight = measure().StringHeight(u"17"_s, 200);
    for (const int extra : {0, 1}) {
        SCOPED_TRACE(extra);
        // The second bar is exactly as high as its label, or a pixel higher.
        const auto chart = chartOf({372, double(labelHeight + extra)}, 1);
        chart->showValues = true;
        chart->drawChart();
        const double s = (543 - plotLeft(372)) / 4.0;
        const int x = int(s + int(plotLeft(372) + s + 10));
        const int top = kBottom - labelHeight - extra;
        const QRect bar(x, top, int(s), labelHeight + extra);
        const QRect above(x, top - 3 * labelHeight, int(s), 3 * labelHeight);
        EXPECT_EQ(anyPixelLike(inner(*chart), bar, whitish), extra == 1) << "white inside";
        EXPECT_EQ(anyPixelLike(inner(*chart), above, blackish), extra == 0) << "black above";
    }
}

TEST(ChartingPictureTest, ATagAsWideAsItsLimitIsShortenedWithDots)
{
    // One value: the tag's limit is the whole plot width.
    const QString tag = u"Rental"_s;
    const int narrowest = 10 + measure().StringWidth(u"5"_s) + 5 + measure().StringWidth(tag);
    const auto draw = [](int width, const QString& text, bool noEllipse) {
        chartingPicture chart(width, 432);
        chart.addColoredValue(5, QString(), kNavy, text);
        chart.chartType = 1;
        chart.forceNoEllipse = noEllipse;
        chart.drawChart();
        return chart.image();
    };
    const struct {
        const char* name;
        int width;
        QString shown;
    } cases[] = {
        {"a pixel wider than the tag: whole", narrowest + 1, tag},
        {"exactly the tag's width: shortened", narrowest, u"Renta..."_s},
        {"a limit of 0: nothing but the dots", narrowest - measure().StringWidth(tag), u"..."_s},
        {"a limit below 0", narrowest - measure().StringWidth(tag) - 6, u"..."_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(draw(c.width, tag, false), draw(c.width, c.shown, true)) << c.name;
}

TEST(ChartingPictureTest, OneValueMakesADotAndAWholeDisc)
{
    // The line: a dot on the left edge at the top, no segment; the value's label
    // would stand above the top line, so it goes four and a half heights lower.
    const auto line = chartOf({50}, 3);
    line->showValues = true;
    line->drawChart();
    const int left = plotLeft(50);
    EXPECT_LE(inner(*line).pixelColor(left + 1, kTop - 1).red(), 150) << "a dot, not the gradient";
    const int h = measure().StringHeight(u"50"_s, 543);
    const int labelBaseline = int(int(kTop - h * 1.5) + h * 6.0);
    EXPECT_TRUE(anyPixelLike(inner(*line), QRect(left - 20, labelBaseline - h, 40, h), blackish));
    EXPECT_FALSE(anyPixelLike(inner(*line), QRect(left + 20, kTop + 1, 400, 80), blackish)) << "no segment";

    const auto pie = chartOf({50}, 2);
    pie->drawChart();
    for (const double angle : {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0})
        EXPECT_EQ(inner(*pie).pixelColor(pieAt(*pie, angle, 0.97)), kBlack) << angle;
    // Outside the disc, where a grid line would run or a disc as wide as the picture reach.
    for (const QPoint outside : {QPoint(537, kTop), QPoint(60, 199)})
        EXPECT_NE(inner(*pie).pixelColor(outside), kBlack);
}

TEST(ChartingPictureTest, SlicesRunCounterClockwiseFromTheBottomAndANegativeOneTakesItsAngleBack)
{
    // 50 from the bottom to the top on the right; -25 draws nothing and takes the
    // next slice's start back to a quarter; 75 from the quarter round to the start.
    const auto pie = chartOf({50, -25, 75}, 2);
    pie->drawChart();
    const double quarter = 3.1415926 / 2;
    const auto colourAt = [&](double angle) { return inner(*pie).pixelColor(pieAt(*pie, angle, 0.5)); };
    EXPECT_EQ(colourAt(quarter * 0.5), kBlack) << "the first slice";
    EXPECT_EQ(colourAt(quarter * 1.5), kRed) << "the third slice, in the colour added with the second";
    EXPECT_EQ(colourAt(quarter * 2.5), kRed);
    EXPECT_EQ(colourAt(quarter * 3.5), kRed) << "closed on the start";
}

TEST(ChartingPictureTest, ChartTypeZeroDrawsTheFrameAndNoDataAndRedrawsTheSame)
{
    const auto chart = chartOf({5, -10}, 0);
    chart->title = u"Nothing"_s;
    chart->drawChart();
    const QColor grey(100, 100, 100);
    EXPECT_EQ(chart->image().pixelColor(540, 12), grey) << "the header";
    EXPECT_TRUE(anyPixelLike(chart->image(), QRect(5, 2, 60, 20), whitish)) << "its title";
    for (const QPoint edge : {QPoint(0, 200), QPoint(552, 200), QPoint(300, 431), QPoint(552, 431)})
        EXPECT_EQ(chart->image().pixelColor(edge), grey) << "the outline at " << edge.x() << "," << edge.y();
    // Blue at the top turning white: row 28 of 432 outside, row 199 of 398 inside.
    EXPECT_EQ(chart->image().pixelColor(2, 28), QColor(175, 207, 234));
    EXPECT_EQ(inner(*chart).pixelColor(541, 199), QColor(212, 229, 244));
    EXPECT_EQ(chart->image().pixelColor(546, 228), QColor(212, 229, 244)) << "the inner picture at (5, 29)";
    EXPECT_EQ(inner(*chart).pixelColor(537, kBottom), kBlack) << "grid lines";
    for (const QColor& data : {kNavy, kRed})
        EXPECT_FALSE(anyPixelLike(inner(*chart), inner(*chart).rect(), [&](QColor c) { return c == data; }));

    // Bars with their values drawn again come out the same.
    chart->chartType = 1;
    chart->showValues = true;
    chart->drawChart();
    const QImage first = chart->image();
    chart->drawChart();
    EXPECT_EQ(chart->image(), first);
    // Clearing keeps black and the tags.
    chart->clearValues();
    EXPECT_TRUE(chart->values.isEmpty());
    EXPECT_EQ(chart->valueR, QList<int>{0});
    EXPECT_EQ(chart->yTag.size(), 2);
}

TEST(ChartingPictureTest, WildFiguresDrawQuicklyAndSensibly)
{
    // Openings in the hundreds of millions take a coarser arc with the same angles.
    const auto small = chartOf({3, 1}, 2);
    small->drawChart();
    const auto large = chartOf({300'000'000, 100'000'000}, 2);
    QElapsedTimer clock;
    clock.start();
    large->drawChart();
    EXPECT_LT(clock.elapsed(), 5000);
    qsizetype differing = 0;
    for (int y = 0; y < inner(*small).height(); ++y)
        for (int x = 0; x < inner(*small).width(); ++x)
            differing += inner(*small).pixel(x, y) != inner(*large).pixel(x, y);
    EXPECT_LT(differing, 200) << "of some 124,000 pixels of the disc";

    // No whole to share: no slices, and no endless arc.
    for (const QList<double>& cancelling : {QList<double>{0.5, 0.4}, QList<double>{100, -100}}) {
        const auto pie = chartOf(cancelling, 2);
        pie->drawChart();
        EXPECT_FALSE(anyPixelLike(inner(*pie), inner(*pie).rect(), blackish));
    }
    // A slice far larger than the whole, beside a negative one: one full disc.
    const auto wound = chartOf({1e9, -1e9 + 1}, 2);
    wound->drawChart();
    EXPECT_EQ(inner(*wound).pixelColor(271, 60), kBlack);

    // Hundreds of billions scale like any other figure.
    const double billions = 1 << 30; // a unit of value then is a power of two of a pixel
    const auto bars = chartOf({372 * billions, 93 * billions}, 1);
    bars->showValues = true;
    bars->drawChart();
    const double s = (543 - plotLeft(372 * billions)) / 4.0;
    EXPECT_EQ(columnHeight(*bars, int(s + int(plotLeft(372 * billions) + s + 10)), kNavy), 93);

    // Empty lists, a value list of zeros, pictures too small for a plot.
    for (const int type : {0, 1, 2, 3}) {
        for (const QSize size : {QSize(553, 432), QSize(1, 1), QSize(20, 30)}) {
            for (const QList<double>& values : {QList<double>{}, QList<double>{0, 0}, QList<double>{1e308, -1e308}}) {
                const auto chart = chartOf(values, type, size);
                chart->showValues = true;
                chart->drawChart();
                EXPECT_EQ(chart->Width(), size.width());
            }
        }
    }
}
