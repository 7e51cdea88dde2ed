#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QList>
#include <QRect>
#include <QString>

#include <array>
#include <memory>
#include <optional>

class Picture;
class QImage;
class QPagedPaintDevice;
class QPainter;

// A drawing surface with the calls the windows and reports draw with: the
// surface of a picture, or the pages of a print job. Its state (colour, font,
// pen) lasts from one call to the next, as on a real surface.
//
// Coordinates are whole units with the origin at the top left: pixels on a
// picture, points on paper. A coordinate given as a fraction is truncated toward
// zero, and one far outside any surface is held at a distance no surface has, so
// a wild figure draws nothing instead of failing. Text sizes are in the same
// units, so 9 is a text whose em is 9 pixels on a picture and 9 points on paper.
class Graphics {
public:
    // The surface of a picture. Each call paints through a painter of its own,
    // so the picture can be shown or copied between any two calls.
    explicit Graphics(QImage& image);
    // The pages of a print job, measured in points from the printable area's
    // corner. The job begins with the first drawing call, so a surface that
    // draws nothing prints nothing, and it ends when the object goes.
    explicit Graphics(std::unique_ptr<QPagedPaintDevice> pages);
    ~Graphics();
    Graphics(const Graphics&) = delete;
    Graphics& operator=(const Graphics&) = delete;

    QColor ForeColor = Qt::black;
    QString TextFont;   // a family; "" or "System" for the application's own
    int TextSize = 0;   // 0: the system's size, 10
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    int PenWidth = 1;   // 0 still draws the thinnest line, one pixel wide
    int PenHeight = 1;

    void DrawLine(double x1, double y1, double x2, double y2);
    // The outline of the width by height rectangle, inside it: the right edge
    // falls on x + width - 1.
    void DrawRect(double x, double y, double width, double height);
    // A negative width or height fills toward the left or the top.
    void FillRect(double x, double y, double width, double height);
    void FillOval(double x, double y, double width, double height);
    // points holds x, y pairs from index 1 on; index 0 is not a coordinate. Where
    // the outline crosses itself, what it winds around is filled.
    void FillPolygon(const QList<int>& points);
    // y is the baseline of the first line. With a wrap width above 0 the text
    // breaks into lines no wider than it, between words where it can.
    void DrawString(const QString& text, double x, double y, double wrapWidth = 0);
    // At the picture's own size, its top left corner at (x, y).
    void DrawPicture(const Picture& picture, double x, double y);

    int StringWidth(const QString& text) const;
    // The height of the lines the text takes when drawn with this wrap width.
    int StringHeight(const QString& text, double wrapWidth) const;
    int TextHeight() const;
    int TextAscent() const;
    int Width() const;
    int Height() const;

    // Finishes the page and begins the next one; false on a picture, or when the
    // print job has failed.
    bool NextPage();

    // Drawing shows only inside this rectangle until the clip is cleared; of a
    // text, only the lines that begin inside it.
    void setClip(const QRect& area) { clip_ = area; }
    void clearClip() { clip_.reset(); }

private:
    // The font of the present state, made again only when the state changed.
    const QFont& font() const;
    const QFontMetrics& metrics() const;
    int advance(const QString& text) const;
    bool beginPages();
    template <typename Draw> void paint(Draw draw);

    struct FontState {
        QString family;
        int size = 0;
        bool bold = false;
        bool italic = false;
        bool underline = false;
        bool operator==(const FontState&) const = default;
    };
    mutable std::optional<FontState> fontState_;
    mutable QFont font_;
    mutable std::optional<QFontMetrics> metrics_;
    struct MeasuredText {
        FontState state;
        QString text;
        int width = 0;
    };
    mutable std::array<MeasuredText, 8> measured_;
    mutable size_t nextMeasured_ = 0;
    std::optional<QRect> clip_;
    QImage* image_ = nullptr;
    std::unique_ptr<QPagedPaintDevice> pages_;
    std::unique_ptr<QPainter> pagePainter_;
};

// A coordinate as a surface takes it: truncated toward zero, NaN as 0, and held
// within a million units either way.
int surfaceUnit(double value);
