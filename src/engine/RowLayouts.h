#pragma once

#include <QStringView>

class Listbox;

// The columns of an account row (accountsBox). Row 0 is the Base Account.
namespace AccountCol {
enum : int {
    Number = 0,       // "999" when added, "" after an edit or a load; no identity
    Name = 1,         // unique in the ledger, compared ignoring case; the link to transactions
    Type = 2,         // an account type word
    Opening = 3,      // amount text; for row 0 the total available cash
    Transactions = 4, // sum of the account's transactions; row 0: sum over all other rows
    Balance = 5,      // Opening + Transactions
    Notes = 6,        // never on screen
    Count = 7
};
}

// The columns of a transaction row (transBox).
namespace TransCol {
enum : int {
    Number = 0,      // account number; "1000" on a GST row; no logic matches on it
    Account = 1,     // name of the owning account, "GST" on a GST row; also the reconcile box
    Date = 2,        // YYYY-MM-DD
    Description = 3,
    Invoice = 4,
    Amount = 5,      // signed amount as entered, without the adjustment
    Tax = 6,         // adjustment as entered
    Transaction = 7, // signed total of amount and adjustment: the only column any balance reads
    Seconds = 8,     // TotalSeconds of the date
    Memo = 9,
    Reconciled = 10, // "true", "false" or "" (never used)
    Repeat = 11,     // "Never", "Monthly", "Annually"; "never" once a repeat was posted
    Count = 12
};
}

// Account type words. They change no arithmetic: the sign lives in each
// transaction; the word picks the icon, the balance colour and the default of
// the Deposit and Withdrawal buttons. Compared ignoring case.
namespace AccountType {
inline constexpr QStringView Revenue = u"Revenue";
inline constexpr QStringView Expense = u"Expense";
inline constexpr QStringView BaseAccount = u"Base Account";
// Older words, never written: row 0 turns them into "Base Account", any other row
// turns "asset" into "Revenue".
inline constexpr QStringView OldAsset = u"asset";
inline constexpr QStringView OldMainAccount = u"main account";
} // namespace AccountType

// True when a cell holds the word, ignoring case ("revenue" is "Revenue").
bool isWord(QStringView cell, QStringView word);

// The headings, widths, alignments and cell kinds of the three tables of the
// main window, as their Open events set them.
void setUpLedgerList(Listbox& table);
void setUpAccountsBox(Listbox& table);
void setUpTransBox(Listbox& table);
// The two lists of the transfer window: "Account" and "Balance".
void setUpTransferList(Listbox& table);

// Row heights of the grids on screen.
inline constexpr int kLedgerListRowHeight = 32;
inline constexpr int kAccountsRowHeight = 30;
inline constexpr int kTransRowHeight = 18;
