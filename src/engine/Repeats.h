#pragma once

#include <QDateTime>

class Listbox;

// Repeating transactions. A row's repeat mark (column Repeat) is handed on
// along a chain: a due row gets one copy dated a month ("Monthly") or a year
// (any other word but "Never") after its own date, and gives its mark up.
//
// One pass looks at the rows there were when it began, once each: a row falls
// due when `now` is later than its next date (so from the first second of that
// day), and posts one step, even when several are behind; the copy, due at once
// then, waits for the next pass. The copy takes every cell of the row as text
// (not the reconcile box), the next date, and the mark; the row gets "never".
// A row whose date can't be read stays out and keeps its mark. Nothing is
// stored or recalculated here. Returns the number of rows posted.
int postDueRepeats(Listbox& transactions, const QDateTime& now);
