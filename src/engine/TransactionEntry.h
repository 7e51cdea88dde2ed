#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>

class Listbox;

// The transaction dialog without its widgets: its fields as the user leaves
// them, the rules that tie them together, and what OK and the GST button write
// into the rows of transBox and of an account's transaction list.

inline const QString kSelectAccount = QStringLiteral("Select account");
// The items of the repeat menu, in their order.
inline const QStringList kRepeatWords{QStringLiteral("Never"), QStringLiteral("Monthly"), QStringLiteral("Annually")};

struct TransactionForm {
    int account = 0;                   // chosen item of the account menu; item n is account row n
    QString accountText = kSelectAccount; // that item's text, which the row gets
    int accountRow = 0;                // the last account chosen, selected after OK
    QString amount;                    // as typed
    bool deposit = false;              // Deposit on; otherwise Withdrawal, on at first
    QString adjustment;                // as typed; the row's Tax cell
    QDate date;                        // the calendar's day
    QString description;
    QString invoice;
    QString memo;
    QString repeat = kRepeatWords[0];
};

// The account menu: "Select account", then every account from row 1 on, so that
// item n is account row n and the Base Account isn't offered.
QStringList accountMenu(const Listbox& accounts);
// The item of the account menu equal to a name, ignoring case; 0 when none is.
int accountMenuItem(const Listbox& accounts, QStringView name);
// Choosing an item of the account menu: with an account, the buttons follow its
// type (Deposit for a revenue account, Withdrawal for any other), and it is the
// account row to select after OK.
void chooseAccount(TransactionForm& form, const Listbox& accounts, int item);
// A click on Deposit takes a leading "-" off the amount; Withdrawal changes nothing.
void chooseDeposit(TransactionForm& form);

// OK can be pressed with an account chosen and an amount typed; nothing else
// is checked.
bool okEnabled(const TransactionForm& form);
// The GST button acts on an amount and an adjustment of a withdrawal; it needs
// no account.
bool gstEnabled(const TransactionForm& form);
// Why OK or the GST button can't be pressed on the form, as a command without
// the dialog tells it; "" when it can.
QString okRefusal(const TransactionForm& form);
QString gstRefusal(const TransactionForm& form);

// The dialog opened on a row to edit it: the account named in the row (the
// buttons by its type, not by the row's sign), its total without a sign as the
// amount (so an adjustment folds into it and the adjustment field stays as it
// was), the texts, the date of the row's year-month-day when that is a real day
// (otherwise the calendar's stays), and a repeat word "Monthly" or "Annually".
void fillFromTransaction(TransactionForm& form, const Listbox& transactions, int row, const Listbox& accounts);

// The amount cell OK writes: "-" before the typed amount for a withdrawal
// (unless it has one), every "," as "."; and the signed total, the adjustment
// adding to the amount's size: 100 and 5 give 105 and -100 and 5 give -105.
QString amountCell(const TransactionForm& form);
double transactionTotal(const TransactionForm& form);

// OK's cells of a transBox row: account, date, description, invoice, amount,
// adjustment, memo, repeat, and the total with two decimals, "-" in front for
// a withdrawal: only the buttons decide its sign.
void writeTransaction(Listbox& transactions, int row, const TransactionForm& form);
// The GST button's row of transBox: "1000", "GST", date, description and
// invoice; its amounts stay empty, as the withdrawal beside it holds the tax.
void writeGstRow(Listbox& transactions, int row, const TransactionForm& form);

// The list of an account's transactions window that opened the dialog: it
// shows what OK writes, and its column 8 holds the transBox row of each line.
struct AccountList {
    Listbox& list;
    std::function<void()> updateBalance;
};
// OK's line in that list (a new one linked to transBox row `transRow`, or the
// selected one): the same texts as the row, the amount as typed, and the total
// signed by its own value.
void writeAccountListLine(Listbox& list, int line, const TransactionForm& form, bool adding, int transRow);
// The GST button's line in that list, linked to its transBox row: "1000",
// "GST", date, description, invoice, and the adjustment's figure.
void writeAccountListGstLine(Listbox& list, int line, const TransactionForm& form, int transRow);
