#pragma once

#include "engine/TransactionEntry.h"

#include <QDate>
#include <QString>

class Listbox;

// The transfer between two accounts, without its window: the two lists it
// picks from, the preview of their balances while an amount is typed, and the
// two transactions that carry it out.

inline const QString kInsufficientFunds =
    QStringLiteral("The selected account does not have a sufficient funds from which to transfer the amount entered.");
inline const QString kSameAccount = QStringLiteral("Source and destination accounts cannot be the same account.");

// A list of the transfer window: column 0 the name and column 1 the balance of
// every account from row 1 on, so that line n is account row n + 1.
void fillTransferList(Listbox& list, const Listbox& accounts);

// What a list shows of its selected line: Val of the balance, as the line holds
// it (on a comma system only the part before the comma counts).
double listedBalance(const Listbox& list, int line);

// The amount typed, checked against the balances at selection: the message for
// an amount above the source's balance or for one account on both sides, or ""
// and then both lists show the balances after the transfer, counted from those
// at selection, so that key presses don't add up.
QString previewTransfer(Listbox& from, Listbox& to, double sourceAmount, double destAmount, double amount);

// The two forms the transfer fills in, as a user would the transaction dialog:
// a withdrawal from the source "Transfer to" the destination and a deposit into
// the destination "Transfer from" the source, the amount with two decimals, on
// the day given, no adjustment, invoice or memo, repeating never.
TransactionForm transferWithdrawal(const Listbox& accounts, const QString& source, const QString& destination,
                                   double amount, const QDate& date);
TransactionForm transferDeposit(const Listbox& accounts, const QString& source, const QString& destination,
                                double amount, const QDate& date);
