#pragma once

#include <QStringList>

class QTextStream;

// quillmark-cli: the ledgers on disk without any window or display, through the
// same calls the windows make; the verbs are listed in its help text and live
// in Verbs.h. --data DIR takes DIR as the application data folder, --today a
// day as the present. Returns the exit status: 0 done, 1 a refused input
// (nothing written) or a file that couldn't be read or saved, 2 a usage error.
int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err);
