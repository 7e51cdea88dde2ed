#pragma once

#include <QString>
#include <QStringView>

// The maker's web server, set when the program is built and replaced by the
// environment's QUILLMARK_SERVER when that is set: the user's guide, the support
// page, the version file and the download lie there. path starts with "/".
QString serverAddress(QStringView path);
