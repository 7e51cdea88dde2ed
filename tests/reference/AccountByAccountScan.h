#pragma once

#include "platform/DecimalSum.h"

class Listbox;

// The balance sums computed the plain way: for each account, every transaction
// is read and compared by name. It is what the one-pass calculation must equal
// to the character; the benchmarks time it beside it.
struct ScanTotals {
    DecimalSum tax;
    DecimalSum transactions;
};
ScanTotals scanAccountByAccount(Listbox& accounts, const Listbox& transactions, bool reconciledOnly);
