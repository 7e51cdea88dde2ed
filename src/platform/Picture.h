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

    int Width() const { return image_.width(); }
    int Height() const { return image_.height(); }
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
