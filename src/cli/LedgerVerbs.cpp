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

int recalcLedger(const Invocation& call)
{
    OpenLedger ledger(call);
    if (!ledger.open)
        return 1;
    ledger.books.calcAll(); // a fresh window's reconcile box is off: every transaction counts
    return 0;
}

int printBalances(const Invocation& call)
{
    OpenLedger ledger(call);
    if (!ledger.open)
        return 1;
    if (call.isSet(QStringLiteral("reconciled"))) {
        ledger.books.reconcilecheckbox_Action(true);
        ledger.books.calcAll();
    }
    const Listbox& accounts = ledger.books.accountsBox;
    for (int row = 0; row < accounts.ListCount(); ++row) {
        call.out << accounts.CellView(row, AccountCol::Name) << '\t' << accounts.CellView(row, AccountCol::Type) << '\t'
                 << accounts.CellView(row, AccountCol::Balance) << '\n';
    }
    return 0;
}

int printTransactions(const Invocation& call)
{
    OpenLedger ledger(call);
    if (!ledger.open)
        return 1;
    for (int row = 0; row < ledger.books.transBox.ListCount(); ++row)
        printTransaction(call, ledger.books.transBox, row);
    return 0;
}

void printTransaction(const Invocation& call, const Listbox& transactions, int row)
{
    call.out << row + 1;
    for (int column = TransCol::Account; column < TransCol::Count; ++column)
        call.out << '\t' << transactions.CellView(row, column);
    call.out << '\n';
}

int storeRepeats(const Invocation& call)
{
    OpenLedger ledger(call);
    if (!ledger.open)
        return 1;
    ledger.books.storeBoth(); // as the window stores its ledger on closing
    return 0;
}
