#pragma once

#include "books/rowtable/Listbox.h"
#include "ledger/LedgerFiles.h"
#include "ledger/LedgerShelf.h"

#include <QObject>
#include <QString>

// The open ledger: the main window's three tables, the figures calcAll keeps in
// them, and when they are stored. The operations that change them are built
// over it (AccountOperations, TransactionOperations), the choice of a ledger is
// its `shelf`, and its files are `files`; a command line runs all of them with
// no display.
class SummaryBooks : public QObject {
    Q_OBJECT

public:
    // programDataFolder is the folder "Books"; the ledger list lives in its parent.
    // An empty folder means none could be made: nothing is read or written.
    explicit SummaryBooks(const QString& programDataFolder, QObject* parent = nullptr);

    Listbox LedgerList;
    Listbox accountsBox;
    Listbox transBox;
    LedgerFiles files;
    LedgerShelf shelf{*this};

    QString theLedger;    // the open ledger; while its row is edited, the text typed
    QString oldLedger;    // the ledger before the rename or change under way
    bool delLedger = false;
    bool& deletingOn;     // set while a deletion runs: no table is saved
    QString separatorType = QStringLiteral("period"); // "comma" on a system with a decimal comma
    QString taxText = QStringLiteral("00.00");        // totals of the last calculation
    QString balText = QStringLiteral("00.00");

    bool ledgerOpen() const { return LedgerList.ListIndex() > -1; }

    // Recomputes every account of the open ledger and stores both tables: the one
    // moment an operation stores both (see docs/decisions.md, "When the tables
    // are stored"). The files get the plain sums; the padding and the decimal
    // comma that follow are for the screen.
    void calcAll();
    // Stores one table or both of the open ledger, if one is open, as they stand.
    void store(LedgerFiles::Table table);
    void storeBoth();

    // After a ledger was opened on a comma system: the stored Transactions and
    // Balance of the accounts and the transactions' totals show ",".
    void showStoredAmountsWithCommas();
    // Finds the decimal mark of the system once, as the window opens: 1234 as the
    // locale writes it, and the separator type that text shows.
    void probeSeparator() { separatorType = separatorTypeOf(separatorProbe()); }
    static QString separatorProbe();
    static QString separatorTypeOf(QStringView probe);
    // Sets the reconcile boxes of transBox from their stored column.
    void doCheckboxes();
    // Posts the repeating transactions that are due, by the clock; nothing is
    // stored or recalculated (see postDueRepeats).
    void CheckRepeats();

    // A reconcile box of transBox was toggled: its row keeps the new state in the
    // reconciled column, and the table is stored.
    void transBox_CellAction(int row, int column);
    // Whether only reconciled transactions count (the window's reconcile box).
    bool reconcileOn() const { return reconcileOn_; }
    void reconcilecheckbox_Action(bool checked);

Q_SIGNALS:
    void searchFieldCleared();
    // taxText and balText have new values.
    void totalsChanged();
    void importAvailable(bool available);

private:
    bool reconcileOn_ = false;
};
