#pragma once

#include <QString>

class Listbox;

// Ledgers made up for tests and benchmarks, the same for the same seed.
struct LedgerShape {
    int accounts = 200;       // the Base Account included
    int transactions = 1000;
    unsigned seed = 1;
    // Hostile cells: names in other letter case, unknown accounts, GST rows,
    // unreadable amounts, comma amounts, dates that can't be read, short rows.
    bool awkward = false;
};

// Fills both tables with realistic cells: dates, 20-character descriptions,
// amounts with two decimals, memos, repeat words.
void generateLedger(Listbox& accounts, Listbox& transactions, const LedgerShape& shape);

// The ledger's two files in the folder, under the ledger name, as a save writes them,
// and its line in "BookList" in the parent folder.
void writeGeneratedLedger(const QString& booksFolder, const QString& ledgerName, const LedgerShape& shape);
