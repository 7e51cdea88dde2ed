#pragma once

#include <QStringList>

class QTextStream;

// quillmark-cli: the ledgers on disk without any window or display, through the
// same calls the windows make.
//   list                         the ledger names of the ledger list, one a line
//   recalc NAME                  recalculates a ledger and stores it, as the main window would
//   balances NAME                each account's name, type and balance, tab-separated
//   new-ledger NAME              the "+" button, then the Base Account dialog's OK
//   add-account NAME ACCOUNT     the account dialog's OK on a new account
//   edit-account NAME ACCOUNT    the account dialog's OK on an existing one
//   delete-account NAME ACCOUNT  the toolbar's Delete, confirmed
// --data DIR takes DIR as the application data folder. Returns the exit status:
// 0 done, 1 a refused input (nothing written), 2 a usage error.
int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err);
