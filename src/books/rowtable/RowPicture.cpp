#include "books/rowtable/RowPicture.h"

QString rowPictureResource(RowPicture picture)
{
    switch (picture) {
    case RowPicture::None:
        break;
    case RowPicture::BookIcon:
        return QStringLiteral(":/pictures/bookIcon.png");
    case RowPicture::Book_Icon32:
        return QStringLiteral(":/pictures/Book_Icon32.png");
    case RowPicture::accountPlus9:
        return QStringLiteral(":/pictures/accountPlus9.png");
    case RowPicture::accountMinus9:
        return QStringLiteral(":/pictures/accountMinus9.png");
    }
    return {};
}
