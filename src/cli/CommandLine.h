#pragma once

#include <QStringList>

class QTextStream;

// quillmark-cli: the ledgers on disk without any window or display.
//   list             the ledger names of the ledger list, one a line
//   recalc NAME      recalculates a ledger and stores it, as the main window would
//   balances NAME    each account's name, type and balance, tab-separated
// --data DIR takes DIR as the application data folder. Returns the exit status.
int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err);
