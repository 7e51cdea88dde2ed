#pragma once

class Listbox;

// The balance sums computed the plain way: for each account, every transaction
// is read and compared by name. It is what the one-pass calculation must equal
// to the bit; the benchmarks time it beside it.
struct ScanTotals {
    double tax = 0;
    double transactions = 0;
};
ScanTotals scanAccountByAccount(Listbox& accounts, const Listbox& transactions, bool reconciledOnly);
