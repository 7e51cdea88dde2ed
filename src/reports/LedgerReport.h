#pragma once

#include <QColor>
#include <QString>

class Listbox;

// The ledger report: every account with its opening amount, under it its
// transactions split into withdrawals and deposits, and its balance; the grand
// totals on the first line. Built from the open ledger's accounts and
// transactions, cut down to a month of every year or to one year.

namespace ReportCol {
enum : int {
    Date = 0,        // the first line: accountsBox(0, 0); the spacer and the feet " "; heads three blanks
    Name = 1,        // an account's name; on a transaction row its invoice
    Description = 2,
    Opening = 3,
    Withdrawal = 4,  // a negative amount, as stored; on the first line the total
    Deposit = 5,     // any other amount; on the first line the total
    Balance = 6,     // on an account's foot
    Type = 7,        // the hidden cell of a foot: the account's type word
    Count = 7
};
}

// The report's grid is this wide in the window as it opens; a report printed
// without the window has its columns laid out so.
constexpr int kLedgerboxWidth = 684;

// Headings, widths and alignments of the report's grid.
void setUpLedgerReport(Listbox& report);

// The report of the transactions of one month in every year (1 to 12), or of
// all of them (0). Returns whether any transaction was found; when none was,
// the report is left empty.
bool loadLedger(Listbox& report, const Listbox& accounts, const Listbox& transactions, int month);
// The report of the transactions of the year typed: a date belongs when its
// year, written as a number, is that text ("2014", not " 2014"). A date cell
// that isn't a real day written YYYY-MM-DD belongs to no year.
bool loadLedgerYear(Listbox& report, const Listbox& accounts, const Listbox& transactions, const QString& yearText);

// The colours of the report on screen: a light blue band on even rows, white on
// odd ones; the first line in green, an account's foot in red when its balance
// is negative unless it is a revenue account; an invalid colour elsewhere.
QColor ledgerBackground(int row);
QColor ledgerTextColour(const Listbox& report, int row);
