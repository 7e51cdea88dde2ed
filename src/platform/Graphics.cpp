#include "platform/Graphics.h"

#include "platform/Picture.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPolygon>
#include <QTextLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFarthest = 1'000'000;
constexpr int kSystemTextSize = 10;

// The lines of a text broken at a wrap width, between words where it can and
// inside a word too long for a line of its own.
class WrappedText {
public:
    WrappedText(const QString& text, const QFont& font, double wrapWidth)
        : layout_(QString(text).replace(u'\n', QChar::LineSeparator), font)
    {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout_.setTextOption(option);
        const QFontMetrics metrics(font);
        layout_.beginLayout();
        for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
            line.setLineWidth(wrapWidth);
            line.setPosition(QPointF(0, lines_ * metrics.lineSpacing()));
            ++lines_;
        }
        layout_.endLayout();
        lines_ = std::max(lines_, 1);
    }

    int lines() const { return lines_; }
    // The lines whose top lies within [top, bottom) of the surface.
    void draw(QPainter& painter, QPointF topLeft, double top, double bottom) const
    {
        for (int i = 0; i < layout_.lineCount(); ++i) {
            const QTextLine line = layout_.lineAt(i);
            const double lineTop = topLeft.y() + line.y();
            if (lineTop >= top && lineTop < bottom)
                line.draw(&painter, topLeft);
        }
    }

private:
    QTextLayout layout_;
    int lines_ = 0;
};

QRect filledRect(int x, int y, int width, int height)
{
    if (width < 0) {
        x += width;
        width = -width;
    }
    if (height < 0) {
        y += height;
        height = -height;
    }
    return QRect(x, y, width, height);
}

} // namespace

int surfaceUnit(double value)
{
    if (std::isnan(value))
        return 0;
    return int(std::trunc(std::clamp(value, double(-kFarthest), double(kFarthest))));
}

Graphics::Graphics(QImage& image)
    : image_(&image)
{
}

Graphics::Graphics(std::unique_ptr<QPagedPaintDevice> pages)
    : pages_(std::move(pages))
{
}

Graphics::~Graphics()
{
    if (pagePainter_ && pagePainter_->isActive())
        pagePainter_->end();
}

const QFont& Graphics::font() const
{
    const FontState state{TextFont, TextSize, Bold, Italic, Underline};
    if (fontState_ == state)
        return font_;
    fontState_ = state;
    font_ = QGuiApplication::font();
    if (!TextFont.isEmpty() && TextFont != u"System")
        font_.setFamilies({TextFont});
    font_.setPixelSize(TextSize > 0 ? TextSize : kSystemTextSize);
    font_.setBold(Bold);
    font_.setItalic(Italic);
    font_.setUnderline(Underline);
    // On paper the text is drawn many times its size: its outlines as designed,
    // not bent to a screen's pixels, so it measures as it prints.
    if (pages_)
        font_.setHintingPreference(QFont::PreferNoHinting);
    metrics_.emplace(font_);
    return font_;
}

const QFontMetrics& Graphics::metrics() const
{
    font();
    return *metrics_;
}

int Graphics::advance(const QString& text) const
{
    // A printed cell is measured for its row's height, its own height, its
    // place and its wrapping: the widths of the last few texts are kept.
    font();
    for (const MeasuredText& measured : measured_)
        if (measured.state == fontState_ && measured.text == text)
            return measured.width;
    MeasuredText& slot = measured_[nextMeasured_++ % measured_.size()];
    slot = {*fontState_, text, metrics_->horizontalAdvance(text)};
    return slot.width;
}

template <typename Draw>
void Graphics::paint(Draw draw)
{
    const auto prepared = [this, &draw](QPainter& painter) {
        // Shapes fill whole pixels, so what is drawn is what the figures say.
        painter.setRenderHint(QPainter::Antialiasing, false);
        const int width = std::max(PenWidth, PenHeight);
        const bool onPaper = pages_ != nullptr;
        // Only what changed: on paper each change is written into the page.
        const QPen pen(ForeColor, onPaper ? std::max(width, 1) : (width > 1 ? width : 0));
        if (painter.pen() != pen)
            painter.setPen(pen);
        if (painter.brush().style() != Qt::NoBrush)
            painter.setBrush(Qt::NoBrush);
        if (painter.font() != font())
            painter.setFont(font());
        if (clip_)
            painter.setClipRect(*clip_);
        else if (painter.hasClipping())
            painter.setClipping(false);
        draw(painter);
    };
    if (image_) {
        if (image_->isNull())
            return;
        QPainter painter(image_);
        prepared(painter);
    } else if (beginPages()) {
        prepared(*pagePainter_);
    }
}

void Graphics::DrawLine(double x1, double y1, double x2, double y2)
{
    paint([&](QPainter& painter) {
        painter.drawLine(QPoint(surfaceUnit(x1), surfaceUnit(y1)), QPoint(surfaceUnit(x2), surfaceUnit(y2)));
    });
}

void Graphics::DrawRect(double x, double y, double width, double height)
{
    const int w = surfaceUnit(width);
    const int h = surfaceUnit(height);
    if (w <= 0 || h <= 0)
        return;
    paint([&](QPainter& painter) { painter.drawRect(QRectF(surfaceUnit(x), surfaceUnit(y), w - 1, h - 1)); });
}

void Graphics::FillRect(double x, double y, double width, double height)
{
    paint([&](QPainter& painter) {
        painter.fillRect(filledRect(surfaceUnit(x), surfaceUnit(y), surfaceUnit(width), surfaceUnit(height)),
                         ForeColor);
    });
}

void Graphics::FillOval(double x, double y, double width, double height)
{
    paint([&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ForeColor);
        painter.drawEllipse(filledRect(surfaceUnit(x), surfaceUnit(y), surfaceUnit(width), surfaceUnit(height)));
    });
}

void Graphics::FillPolygon(const QList<int>& points)
{
    QPolygon polygon;
    polygon.reserve(points.size() / 2);
    for (qsizetype i = 1; i + 1 < points.size(); i += 2)
        polygon << QPoint(std::clamp(points[i], -kFarthest, kFarthest), std::clamp(points[i + 1], -kFarthest, kFarthest));
    if (polygon.size() < 3)
        return;
    paint([&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ForeColor);
        painter.drawPolygon(polygon, Qt::WindingFill);
    });
}

void Graphics::DrawString(const QString& text, double x, double y, double wrapWidth)
{
    if (text.isEmpty())
        return;
    const QPoint at(surfaceUnit(x), surfaceUnit(y));
    // Under a clip, only the lines that begin inside it: a line cut in two
    // would show half on one page and half on the next.
    const double top = clip_ ? clip_->top() : -double(kFarthest);
    const double bottom = clip_ ? clip_->top() + clip_->height() : double(kFarthest);
    const bool oneLine = !text.contains(u'\n') && (wrapWidth <= 0 || advance(text) <= wrapWidth);
    if (oneLine) {
        const int lineTop = at.y() - metrics().ascent();
        if (lineTop >= top && lineTop < bottom)
            paint([&](QPainter& painter) { painter.drawText(at, text); });
        return;
    }
    const WrappedText lines(text, font(), wrapWidth > 0 ? wrapWidth : double(kFarthest));
    paint([&](QPainter& painter) { lines.draw(painter, QPointF(at.x(), at.y() - metrics().ascent()), top, bottom); });
}

void Graphics::DrawPicture(const Picture& picture, double x, double y)
{
    paint([&](QPainter& painter) { painter.drawImage(QPoint(surfaceUnit(x), surfaceUnit(y)), picture.image()); });
}

int Graphics::StringWidth(const QString& text) const
{
    return advance(text);
}

int Graphics::StringHeight(const QString& text, double wrapWidth) const
{
    int lines = int(text.count(u'\n')) + 1;
    if (wrapWidth > 0 && (lines > 1 || advance(text) > wrapWidth))
        lines = WrappedText(text, font(), wrapWidth).lines();
    return metrics().height() + (lines - 1) * metrics().lineSpacing();
}

int Graphics::TextHeight() const
{
    return metrics().height();
}

int Graphics::TextAscent() const
{
    return metrics().ascent();
}

int Graphics::Width() const
{
    if (image_)
        return image_->width();
    return pages_ ? int(pages_->width() * 72.0 / pages_->logicalDpiX()) : 0;
}

int Graphics::Height() const
{
    if (image_)
        return image_->height();
    return pages_ ? int(pages_->height() * 72.0 / pages_->logicalDpiY()) : 0;
}

bool Graphics::beginPages()
{
    if (!pages_)
        return false;
    if (!pagePainter_) {
        pagePainter_ = std::make_unique<QPainter>();
        if (pagePainter_->begin(pages_.get()))
            pagePainter_->scale(pages_->logicalDpiX() / 72.0, pages_->logicalDpiY() / 72.0);
    }
    return pagePainter_->isActive();
}

bool Graphics::NextPage()
{
    return beginPages() && pages_->newPage();
}
