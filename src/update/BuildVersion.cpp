#include "update/BuildVersion.h"

QString buildVersion()
{
    return QStringLiteral(QUILLMARK_VERSION);
}
