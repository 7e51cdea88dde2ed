#include "update/Server.h"

QString serverAddress(QStringView path)
{
    // QUILLMARK_SERVER in the environment replaces the build's address, for a
    // mirror or a test server.
    QString address = qEnvironmentVariable("QUILLMARK_SERVER");
    if (address.isEmpty())
        address = QStringLiteral(QUILLMARK_SERVER);
    while (address.endsWith(u'/'))
        address.chop(1);
    return address.append(path);
}
