#pragma once

#include <QStringList>

class QTextStream;

// Runs one command of quillmark-cli: it finds the verb's entry in the table of
// verbs (VerbTable.h), checks the words and options against it, opens the
// ledger when the entry asks for it, and runs the verb, with no window or
// display. --data DIR takes DIR as the application data folder, --today a day
// as the present. Returns the exit status: 0 done, 1 a refused input (nothing
// written) or a file that couldn't be read or saved, 2 a usage error.
int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err);

// Whether the command draws, and so needs an application of the GUI rather
// than the core's. A command that doesn't parse draws nothing.
bool commandDraws(const QStringList& arguments);
