#pragma once

#include <QString>
#include <QStringView>

// The maker's web server, set when the program is built (QUILLMARK_SERVER): the
// user's guide, the support page, the version file and the download lie there.
QString serverAddress(QStringView path);
