#pragma once

#include "platform/DecimalSum.h"

#include <QString>
#include <QStringView>

#include <optional>

class Listbox;

// The figures of a ledger, computed from its transaction rows. The steps are
// separate because the ledger is stored between them: the files hold the plain
// sums, the screen shows them padded (and with commas on a comma system).

struct BalanceTotals {
    DecimalSum tax;          // column Tax over the counted transactions
    DecimalSum transactions; // column Transaction over the counted transactions
};

// Brings old type words up to date and writes Transactions and Balance of every
// account and of the Base Account (row 0), counting only transactions whose
// reconcile box is checked when reconciledOnly is set. A transaction belongs to
// every account whose name equals its account cell, ignoring case; one that
// belongs to none counts in the totals returned but in no account.
//
// The sums are exact in decimal (DecimalSum), so the figures are what the
// amounts add up to, whatever the order of the transactions.
BalanceTotals calculateBalances(Listbox& accounts, const Listbox& transactions, bool reconciledOnly);

// Column Seconds of every transaction whose date can be read.
void writeSeconds(Listbox& transactions);

// Trims column Transaction, then pads the amounts shown to two decimals: account
// columns Opening, Transactions and Balance, then column Transaction.
void padAmounts(Listbox& accounts, Listbox& transactions);

// Shows "," as the decimal mark in the amounts that padAmounts touched.
void showDecimalCommas(Listbox& accounts, Listbox& transactions);

// The padding of one cell. Let t be the cell read with "," as "." and trimmed;
// when the piece of t behind its first "." isn't two characters long, one
// character gets a "0" (12.5 becomes 12.50) and no "." gets ".00" (12 becomes
// 12.00); anything else keeps the cell's own text (12.345 and "12." stay).
// An empty cell becomes ".00". Returns the new text, or nothing when it stays.
std::optional<QString> paddedAmount(QStringView cell);
// The same for column Transaction, except that the test is whether the whole of t
// is two characters long: "12" and "-5" stay as they are.
std::optional<QString> paddedTransaction(QStringView cell);

// "." turned into "," for display on a comma system.
QString cmm(QStringView text);
