#include "ledger/SummaryBooks.h"

#include "engine/BalanceCalculation.h"
#include "engine/Repeats.h"
#include "engine/RowLayouts.h"
#include "platform/Clock.h"
#include "platform/FileProblems.h"
#include "platform/Numbers.h"

using namespace Qt::StringLiterals;

SummaryBooks::SummaryBooks(const QString& programDataFolder, QObject* parent)
    : QObject(parent)
    , LedgerList(u"LedgerList"_s, 1)
    , accountsBox(u"accountsBox"_s, AccountCol::Count)
    , transBox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple)
    , files(programDataFolder)
    , deletingOn(files.manager.deletingOn)
{
    setUpLedgerList(LedgerList);
    setUpAccountsBox(accountsBox);
    setUpTransBox(transBox);
    shelf.LedgerList_Open();

    connect(&LedgerList, &Listbox::Change, this, [this] { shelf.LedgerList_Change(); });
    connect(&LedgerList, &Listbox::CellGotFocus, this,
            [this](int row, int column) { shelf.LedgerList_CellGotFocus(row, column); });
    connect(&LedgerList, &Listbox::CellTextChange, this,
            [this](int row, int column) { shelf.LedgerList_CellTextChange(row, column); });
    connect(&LedgerList, &Listbox::CellLostFocus, this,
            [this](int row, int column) { shelf.LedgerList_CellLostFocus(row, column); });
    connect(&transBox, &Listbox::CellAction, this, &SummaryBooks::transBox_CellAction);
}

void SummaryBooks::calcAll()
{
    const FileProblemGathering oneMessage;
    if (!ledgerOpen())
        return;
    const BalanceTotals totals = calculateBalances(accountsBox, transBox, reconcileOn_);
    taxText = totals.tax.text();
    balText = totals.transactions.text();
    Q_EMIT totalsChanged();
    writeSeconds(transBox);
    storeBoth();
    padAmounts(accountsBox, transBox);
    if (separatorType == u"comma")
        showDecimalCommas(accountsBox, transBox);
}

void SummaryBooks::store(LedgerFiles::Table table)
{
    if (ledgerOpen())
        files.store(table == LedgerFiles::Table::Accounts ? accountsBox : transBox, theLedger, table);
}

void SummaryBooks::storeBoth()
{
    if (ledgerOpen())
        files.storeBoth(accountsBox, transBox, theLedger);
}

void SummaryBooks::showStoredAmountsWithCommas()
{
    // The balances shown are those stored until the next calculation, with the
    // system's decimal mark. The opening amounts keep the form they were stored in.
    if (separatorType != u"comma")
        return;
    for (int r = 0; r < accountsBox.ListCount(); ++r) {
        accountsBox.SetCell(r, AccountCol::Transactions, cmm(accountsBox.CellView(r, AccountCol::Transactions)));
        accountsBox.SetCell(r, AccountCol::Balance, cmm(accountsBox.CellView(r, AccountCol::Balance)));
    }
    for (int t = 0; t < transBox.ListCount(); ++t)
        transBox.SetCell(t, TransCol::Transaction, cmm(transBox.CellView(t, TransCol::Transaction)));
}

QString SummaryBooks::separatorProbe()
{
    return Format(1234.0, u"########0.00");
}

QString SummaryBooks::separatorTypeOf(QStringView probe)
{
    return probe.contains(u',') ? u"comma"_s : u"period"_s;
}

void SummaryBooks::doCheckboxes()
{
    for (int t = 0; t < transBox.ListCount(); ++t) {
        transBox.prefetchAhead(t);
        if (isWord(transBox.CellView(t, TransCol::Reconciled), u"true"))
            transBox.SetCellCheck(t, TransCol::Account, true);
    }
}

void SummaryBooks::CheckRepeats()
{
    postDueRepeats(transBox, Clock::now());
}

void SummaryBooks::transBox_CellAction(int row, int column)
{
    const FileProblemGathering oneMessage;
    transBox.SetCell(row, TransCol::Reconciled, transBox.CellCheck(row, column) ? u"true" : u"false");
    if (reconcileOn_)
        calcAll();
    store(LedgerFiles::Table::Transactions);
}

void SummaryBooks::reconcilecheckbox_Action(bool checked)
{
    reconcileOn_ = checked;
    if (!checked && accountsBox.ListCount() > 0)
        calcAll();
}
