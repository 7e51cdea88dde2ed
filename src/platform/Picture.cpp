#include "platform/Picture.h"

#include <QGuiApplication>

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

qreal Picture::screenRatio()
{
    return qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
}

QImage Picture::resourceImage(const QString& name, qreal ratio)
{
    if (ratio > 1) {
        QImage twice(u":/pictures/"_s + name + u"@2x.png"_s);
        if (!twice.isNull()) {
            twice.setDevicePixelRatio(2);
            return twice;
        }
    }
    return QImage(u":/pictures/"_s + name + u".png"_s);
}

PictureRef Picture::named(const QString& name)
{
    QImage image = resourceImage(name);
    if (image.isNull())
        return nullptr;
    return std::make_shared<Picture>(std::move(image));
}
