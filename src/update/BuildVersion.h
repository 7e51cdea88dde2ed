#pragma once

#include <QString>

// The version of this build, the project's own (CMake's project version, one
// place for it): what the version check compares the server's file with. The
// About box shows a fixed text of its own.
QString buildVersion();
