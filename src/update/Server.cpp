#include "update/Server.h"

QString serverAddress(QStringView path)
{
    QString address = QStringLiteral(QUILLMARK_SERVER);
    while (address.endsWith(u'/'))
        address.chop(1);
    return address.append(path);
}
