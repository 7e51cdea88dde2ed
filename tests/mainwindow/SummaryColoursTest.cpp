#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "mainwindow/SummaryColours.h"
#include "support/Cells.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SummaryColours, AccountTextShowsTheBaseAccountAndNegativeBalancesOfNonRevenue)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    setUpAccountsBox(accounts);
    // Types and balances.
    addRows(accounts, {u"||Base Account|||   -50.00"_s, u"||Expense|||   -12.50"_s, u"||REVENUE|||   -99.00"_s,
                       u"||Expense|||    12.50"_s, u"||asset|||-1,5"_s});
    const QColor red(255, 0, 0), green(0, 128, 64), white(255, 255, 255), blue(217, 233, 255);
    const QList<QColor> text{green, red, QColor(), QColor(), red}; // revenue in any case is never red
    for (int row = 0; row < accounts.ListCount(); ++row) {
        SCOPED_TRACE(row);
        EXPECT_EQ(SummaryColours::accountsCell(accounts, row, false).text, text[row]);
        EXPECT_EQ(SummaryColours::accountsCell(accounts, row, true).text, white) << "selection wins";
        EXPECT_EQ(SummaryColours::accountsCell(accounts, row, false).background, row % 2 ? white : blue);
        EXPECT_EQ(SummaryColours::transCell(row).background, row % 2 ? white : blue);
    }
    EXPECT_FALSE(SummaryColours::transCell(3).selectionGradient) << "transactions keep the grid's highlight";
    EXPECT_TRUE(SummaryColours::accountsCell(accounts, 1, true).selectionGradient);
    EXPECT_EQ(SummaryColours::ledgerCell(false).background, QColor(219, 223, 232));
    EXPECT_TRUE(SummaryColours::ledgerCell(true).selectionGradient);
    EXPECT_EQ(SummaryColours::ledgerCell(true).text, white);
}
