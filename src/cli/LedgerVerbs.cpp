// The verbs on a ledger as a whole: list, recalc, balances, transactions, repeats.
#include "cli/Verbs.h"

#include "books/AppFolders.h"
#include "engine/RowLayouts.h"

int listLedgers(const Invocation& call)
{
    SummaryBooks books(AppFolders::existingBooks(call.dataFolder));
    for (int row = 0; row < books.LedgerList.ListCount(); ++row)
        call.out << books.LedgerList.CellView(row, 0) << '\n';
    return 0;
}

int recalcLedger(const Invocation&, SummaryBooks& books)
{
    books.calcAll(); // a fresh window's reconcile box is off: every transaction counts
    return 0;
}

int printBalances(const Invocation& call, SummaryBooks& books)
{
    if (call.isSet(QStringLiteral("reconciled"))) {
        books.reconcilecheckbox_Action(true);
        books.calcAll();
    }
    const Listbox& accounts = books.accountsBox;
    for (int row = 0; row < accounts.ListCount(); ++row) {
        call.out << accounts.CellView(row, AccountCol::Name) << '\t' << accounts.CellView(row, AccountCol::Type) << '\t'
                 << accounts.CellView(row, AccountCol::Balance) << '\n';
    }
    return 0;
}

int printTransactions(const Invocation& call, SummaryBooks& books)
{
    for (int row = 0; row < books.transBox.ListCount(); ++row)
        printTransaction(call, books.transBox, row);
    return 0;
}

void printTransaction(const Invocation& call, const Listbox& transactions, int row)
{
    call.out << row + 1;
    for (int column = TransCol::Account; column < TransCol::Count; ++column)
        call.out << '\t' << transactions.CellView(row, column);
    call.out << '\n';
}

int storeRepeats(const Invocation&, SummaryBooks& books)
{
    books.storeBoth(); // as the window stores its ledger on closing
    return 0;
}
