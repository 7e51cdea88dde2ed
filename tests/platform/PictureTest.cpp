#include "platform/Picture.h"
#include "support/Testing.h"

#include <QDir>

// On a screen of two device pixels per point every picture of the resources comes
// with twice the pixels and takes the same room; on other screens it is the
// picture as drawn.
TEST(PictureTest, EveryResourcePictureHasATwiceSizeVariantThatTakesTheSameRoom)
{
    const QStringList files = QDir(u":/pictures"_s).entryList({u"*.png"_s});
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        if (file.endsWith(u"@2x.png"_s))
            continue;
        const QString name = file.chopped(4);
        SCOPED_TRACE(name.toStdString());
        const QImage single = Picture::resourceImage(name, 1);
        const QImage twice = Picture::resourceImage(name, 2);
        EXPECT_EQ(single.devicePixelRatio(), 1);
        EXPECT_EQ(twice.size(), single.size() * 2);
        EXPECT_EQ(twice.deviceIndependentSize(), QSizeF(single.size()));
        EXPECT_EQ(QSize(Picture(twice).Width(), Picture(twice).Height()), single.size());
    }
}
