#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "mainwindow/SummaryColours.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SummaryColours, AccountTextShowsTheBaseAccountAndNegativeBalancesOfNonRevenue)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    setUpAccountsBox(accounts);
    const auto addAccount = [&](const QString& type, const QString& balance) {
        accounts.AddRow();
        accounts.SetCell(accounts.LastIndex(), AccountCol::Type, type);
        accounts.SetCell(accounts.LastIndex(), AccountCol::Balance, balance);
    };
    addAccount(u"Base Account"_s, u"   -50.00"_s);
    addAccount(u"Expense"_s, u"   -12.50"_s);
    addAccount(u"REVENUE"_s, u"   -99.00"_s);
    addAccount(u"Expense"_s, u"    12.50"_s);
    addAccount(u"asset"_s, u"-1,5"_s);

    const QColor red(255, 0, 0), green(0, 128, 64), white(255, 255, 255);
    EXPECT_EQ(SummaryColours::accountsCell(accounts, 0, false).text, green) << "whatever its balance";
    EXPECT_EQ(SummaryColours::accountsCell(accounts, 1, false).text, red);
    EXPECT_FALSE(SummaryColours::accountsCell(accounts, 2, false).text.isValid()) << "revenue in any case";
    EXPECT_FALSE(SummaryColours::accountsCell(accounts, 3, false).text.isValid());
    EXPECT_EQ(SummaryColours::accountsCell(accounts, 4, false).text, red);
    EXPECT_EQ(SummaryColours::accountsCell(accounts, 0, true).text, white) << "selection wins";
    EXPECT_EQ(SummaryColours::accountsCell(accounts, 1, true).text, white);

    EXPECT_EQ(SummaryColours::accountsCell(accounts, 0, false).background, QColor(217, 233, 255));
    EXPECT_EQ(SummaryColours::accountsCell(accounts, 1, false).background, white);
    EXPECT_EQ(SummaryColours::transCell(2).background, QColor(217, 233, 255));
    EXPECT_EQ(SummaryColours::transCell(3).background, white);
    EXPECT_FALSE(SummaryColours::transCell(3).selectionGradient) << "transactions keep the grid's highlight";
    EXPECT_EQ(SummaryColours::ledgerCell(false).background, QColor(219, 223, 232));
    const CellLook selectedLedger = SummaryColours::ledgerCell(true);
    EXPECT_TRUE(selectedLedger.selectionGradient);
    EXPECT_EQ(selectedLedger.gradientTop, QColor(170, 180, 194));
    EXPECT_EQ(selectedLedger.gradientBottom, QColor(130, 143, 160));
    EXPECT_EQ(selectedLedger.gradientLine, QColor(153, 163, 176));
    EXPECT_EQ(selectedLedger.text, white);
}
