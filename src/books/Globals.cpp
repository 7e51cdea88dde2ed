#include "books/Globals.h"

namespace Globals {

QString cvt(QStringView text)
{
    QString result = text.toString();
    result.replace(u',', u'.');
    return result;
}

} // namespace Globals
