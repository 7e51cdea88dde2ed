#pragma once

#include <QString>
#include <QStringView>

class Listbox;

// What the account dialog and the toolbar do to the rows of an accounts table
// and its transactions. Names are compared ignoring case throughout.

// The fields of the account dialog.
struct AccountFields {
    QString name;
    QString typeWord; // "Revenue", "Expense", or "" for the Base Account
    QString opening;  // as typed
    QString notes;
};

// What the dialog shows for the Base Account of a new ledger: the name
// "Balance", no type, no amount, and a hint in the notes that is stored as they
// are unless the user clears it.
AccountFields baseAccountFields();

// What the dialog shows when editing a row: its name, opening and notes, and
// its type word as the dialog gives it back ("" for row 0, the Base Account;
// "Revenue" for a revenue account; "Expense" for any other).
AccountFields accountFieldsOf(const Listbox& accounts, int row);

// True when any account row, the Base Account included, has this name.
bool checkName(const Listbox& accounts, QStringView name);

// A message when the text of a field can't be kept in the table files, which
// hold a row on one line with "@#@" after each cell; "" when it can.
QString accountFieldsProblem(const AccountFields& fields);

// Appends an account row: number "999", the fields, "0.00" for an empty opening,
// the balance as typed until the next calculation, and the row's picture by its
// type (the book for the first row).
void addAccount(Listbox& accounts, const AccountFields& fields);

// Writes the dialog's fields into an existing row; its number is cleared.
void editAccountRow(Listbox& accounts, int row, const AccountFields& fields);

// Gives every transaction of the account oldName the name newName.
void updateAccountIDName(Listbox& transactions, QStringView oldName, QStringView newName);

// Removes an account row and every transaction of that account.
void deleteAccountWithTransactions(Listbox& accounts, Listbox& transactions, int row);
