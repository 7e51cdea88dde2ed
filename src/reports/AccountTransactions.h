#pragma once

#include <QDateTime>
#include <QString>

class Listbox;

// The list of one account's transactions, as its window shows it: copies of
// the transBox rows of the account, in their order, each with a link to the
// row it copies, narrowed to a range of days on request.

namespace AccountListCol {
enum : int {
    Link = 8,  // the transBox row this line copies, as text
    Memo = 9,  // the hidden cell past the last column
    Count = 9
};
}

// Headings, widths and alignments of the list: "Date", "Description", "Inv #"
// and "Transaction " show.
void setUpAccountList(Listbox& list);
// Appends a line for every transaction of the account named accNum (ignoring
// case), its amounts with two decimals and the total followed by a blank.
void loadAccount(Listbox& list, const Listbox& transactions, const QString& accNum);
// The balance of the account selected in the accounts table, as it stands.
QString selectedAccountBalance(const Listbox& accounts);

// The moment a line's date stands for: the start of its day, when the cell is a
// real day written YYYY-MM-DD; otherwise none (an invalid moment).
QDateTime lineMoment(QStringView dateCell);

struct DateRangeResult {
    bool applied = false;     // false when the two limits are the same moment
    bool removedAny = false;  // add, edit and delete go off
    QString total;            // Str of the sum of the totals left
};
// "Apply": keeps the lines whose day lies strictly after from and strictly
// before to, both taken with their time of day; removes the others (a line
// whose date can't be read among them).
DateRangeResult applyDateRange(Listbox& list, const QDateTime& from, const QDateTime& to);
