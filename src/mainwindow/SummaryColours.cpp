#include "mainwindow/SummaryColours.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"

namespace SummaryColours {

namespace {

const QColor kWhite(255, 255, 255);
const QColor kEvenRow(217, 233, 255);
const QColor kLedgerRow(219, 223, 232);
const QColor kBaseAccountText(0, 128, 64);
const QColor kNegativeText(255, 0, 0);

QColor alternating(int row)
{
    return row % 2 == 1 ? kWhite : kEvenRow;
}

void addSelectionGradient(CellLook& look)
{
    look.selectionGradient = true;
    look.gradientTop = QColor(170, 180, 194);
    look.gradientBottom = QColor(130, 143, 160);
    look.gradientLine = QColor(153, 163, 176);
}

} // namespace

CellLook accountsCell(const Listbox& accounts, int row, bool selected)
{
    CellLook look;
    look.background = alternating(row);
    addSelectionGradient(look);
    if (selected)
        look.text = kWhite;
    else if (row == 0)
        look.text = kBaseAccountText;
    else if (accounts.CellView(row, AccountCol::Balance).contains(u'-')
             && !isWord(accounts.CellView(row, AccountCol::Type), AccountType::Revenue))
        look.text = kNegativeText;
    return look;
}

CellLook transCell(int row)
{
    CellLook look;
    look.background = alternating(row);
    look.verticalGridLine = true;
    return look;
}

CellLook ledgerCell(bool selected)
{
    CellLook look;
    look.background = kLedgerRow;
    addSelectionGradient(look);
    if (selected)
        look.text = kWhite;
    return look;
}

} // namespace SummaryColours
