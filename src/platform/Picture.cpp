#include "platform/Picture.h"

using namespace Qt::StringLiterals;

Picture::Picture(int width, int height, int /*depth*/)
    : image_(width, height, QImage::Format_ARGB32_Premultiplied)
{
    image_.fill(Qt::transparent);
}

Picture::Picture(QImage image)
    : image_(std::move(image))
{
}

Picture::~Picture() = default;

Graphics& Picture::Graphics()
{
    if (!graphics_)
        graphics_ = std::make_unique<::Graphics>(image_);
    return *graphics_;
}

PictureRef Picture::named(const QString& name)
{
    QImage image(u":/pictures/"_s + name + u".png"_s);
    if (image.isNull())
        return nullptr;
    return std::make_shared<Picture>(std::move(image));
}
