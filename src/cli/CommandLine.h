#pragma once

#include <QHash>
#include <QStringList>

class QTextStream;
class SummaryBooks;
struct Invocation;

// The functions of the verbs that draw, by the verbs' names.
using DrawingVerbs = QHash<QString, int (*)(const Invocation& call, SummaryBooks& books)>;

// Runs one command of quillmark-cli: it finds the verb's entry in the table of
// verbs (VerbTable.h), checks the words and options against it, opens the
// ledger when the entry asks for it, and runs the verb, with no window or
// display. --data DIR takes DIR as the application data folder, --today a day
// as the present. Returns the exit status: 0 done, 1 a refused input (nothing
// written) or a file that couldn't be read or saved, 2 a usage error.
// A verb that draws, once its words and options are checked, runs with its
// function in drawing; without one there, the command goes over whole to
// quillmark-draw, which has them, and this returns only when it can't.
int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err, const DrawingVerbs& drawing = {});
