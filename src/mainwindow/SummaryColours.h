#pragma once

#include "books/rowtable/ui/CellLook.h"

class Listbox;

// The colours of the main window's grids.
namespace SummaryColours {

// Accounts: rows in two alternating colours; row 0, the Base Account, in green;
// a negative balance of any account but a revenue one in red; a selected row as
// a grey-blue gradient with white text.
CellLook accountsCell(const Listbox& accounts, int row, bool selected);
// Transactions: rows in the same two alternating colours with lines between
// the columns, the grid's own highlight for the selected ones.
CellLook transCell(int row);
// Ledgers: every row in one grey, the selected one as the gradient.
CellLook ledgerCell(bool selected);

} // namespace SummaryColours
