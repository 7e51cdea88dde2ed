#pragma once

#include "platform/Graphics.h"

#include <QImage>
#include <QString>

#include <memory>

// A picture that windows hand around by reference. Which picture a control shows
// is a question of identity (is it this one or that one?), never of pixels, so
// pictures travel as PictureRef and compare as pointers; a null PictureRef is
// "no picture".
class Picture {
public:
    // An empty, fully transparent picture; depth is always 32.
    Picture(int width, int height, int depth = 32);
    explicit Picture(QImage image);
    virtual ~Picture();
    // Its surface draws into its pixels, so it stays where it is.
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    // The picture of the application's resources by its name ("addpng_32x32"),
    // or null when there is none.
    static std::shared_ptr<Picture> named(const QString& name);
    // The resource picture "name.png" for screens of ratio device pixels per
    // point. Above 1 it is the twice-size "name@2x.png" where there is one, marked
    // with its ratio, so it takes the same room and stays sharp.
    static QImage resourceImage(const QString& name, qreal ratio = screenRatio());
    // The highest ratio of the application's screens; 1 without an application.
    static qreal screenRatio();

    // The size in points, whatever the pixels.
    int Width() const { return qRound(image_.deviceIndependentSize().width()); }
    int Height() const { return qRound(image_.deviceIndependentSize().height()); }
    const QImage& image() const { return image_; }
    QImage& image() { return image_; }
    // The picture's drawing surface: one for the picture's whole life, so a
    // colour or text size set through it holds for the next drawing call.
    ::Graphics& Graphics();

private:
    QImage image_;
    std::unique_ptr<::Graphics> graphics_;
};

using PictureRef = std::shared_ptr<Picture>;
