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

PictureRef Picture::named(const QString& name)
{
    QImage image(u":/pictures/"_s + name + u".png"_s);
    if (image.isNull())
        return nullptr;
    return std::make_shared<Picture>(std::move(image));
}
