#pragma once

#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "engine/AccountMaintenance.h"
#include "engine/TransactionEntry.h"
#include "exchange/TransactionImport.h"

#include <QObject>
#include <QString>
#include <QStringList>

// The working data of the main window and the operations on it, without any
// widget: the ledger list, the accounts and transactions of the open ledger, the
// files they live in, and the balance calculation that keeps the figures and the
// files in step. The main window shows these tables; a command line can run the
// same operations with no display.
class SummaryBooks : public QObject {
    Q_OBJECT

public:
    // programDataFolder is the folder "Books"; the ledger list lives in its parent.
    // An empty folder means none could be made: nothing is read or written.
    explicit SummaryBooks(const QString& programDataFolder, QObject* parent = nullptr);

    Listbox LedgerList;
    Listbox accountsBox;
    Listbox transBox;
    ListboxManager listboxManager;

    QString theLedger;    // the open ledger; while its row is edited, the text typed
    QString oldLedger;    // the ledger before the rename or change under way
    bool delLedger = false;
    bool& deletingOn;     // set while a deletion runs: no table is saved
    QString separatorType = QStringLiteral("period"); // "comma" on a system with a decimal comma
    QString taxText = QStringLiteral("00.00");        // totals of the last calculation
    QString balText = QStringLiteral("00.00");

    // --- ledger list ---
    void LedgerList_Open();
    void LedgerList_Change();
    void LedgerList_CellGotFocus(int row, int column);
    void LedgerList_CellTextChange(int row, int column);
    void LedgerList_CellLostFocus(int row, int column);

    // After a ledger was opened on a comma system: the stored Transactions and
    // Balance of the accounts and the transactions' totals show ",".
    void showStoredAmountsWithCommas();
    // Loads the selected ledger's two files into accountsBox and transBox.
    void openABook(const QString& name);
    // Writes the ledger list to "BookList"; false when it couldn't.
    bool saveBooks();
    // Whatever fails in the operations below is told to the user, one message
    // an operation, naming the ledger and the system's reason; a file that
    // couldn't be saved stays as it was.
    // Deletes the files of a ledger.
    void removeFiles(const QString& name);

    // A new ledger from the name typed (without the two blanks): added to the
    // list, selected and opened. A name that can't be used is refused with a
    // message and false, and nothing changes.
    bool addLedger(const QString& typedName);
    // Deletes the selected ledger with its files after the user's confirmation.
    void deleteLedger();

    // --- accounts and transactions ---
    // The account dialog's OK: adds an account (editedRow -1) or writes the fields
    // into the row being edited and renames that account's transactions from
    // oldName, stores the accounts and recalculates. With checkUnique set, a name
    // that any account already has, the edited one included, is refused. Returns
    // the message for a refusal, and then nothing has changed; "" when done.
    QString saveAccount(const AccountFields& fields, bool checkUnique, int editedRow, const QString& oldName);
    // A reconcile box of transBox was toggled: its row keeps the new state in the
    // reconciled column, and the table is stored.
    void transBox_CellAction(int row, int column);
    // An account row was dragged to newPosition. Row 0 belongs to the Base
    // Account, so a drop there is refused with a beep (true); any other is kept
    // and stored.
    bool accountsBox_DragReorderRows(int newPosition, int parentRow);
    // The toolbar's Delete: the selected account and all its transactions, after
    // the user's confirmation. The Base Account can't be deleted.
    void deleteSelectedAccount();
    // The transaction dialog's OK (editAddTransaction): the form goes into a new
    // row of transBox or, editing, into the selected one (or the row that the
    // selected line of an account's list links to); calcAll recalculates and
    // stores both tables; the form's account is selected; the account's list, if
    // one asked for the dialog, shows the change and transBox is stored again;
    // then the due repeats are posted. Returns the row written, -1 for none.
    int editAddTransaction(const TransactionForm& form, bool editing, const AccountList* accountList = nullptr);
    // The GST button, after editAddTransaction: a GST row of its own beside the
    // transaction, also when one was edited; calcAll; the form's account is
    // selected; the account's list shows the row too. Returns the row.
    int doGST(const TransactionForm& form, const AccountList* accountList = nullptr);
    // Stores transBox, if a ledger is open: a transaction opened for editing.
    void storeTransactions();
    // The delete button: after the user's confirmation, every selected row of
    // transBox goes, from the last upward; both tables are stored and calcAll
    // runs. Without a selection it says "No transaction selected.".
    void deleteSelectedTransactions();
    // The delete button of an account's transactions window, on its list: after
    // the user's confirmation, each selected line from the last up takes its
    // transBox row with it (the links of the lines after it fall by one); then
    // calcAll, and both tables are stored. Without a selected line it says
    // "No transaction selected.". True when lines were deleted.
    bool deleteAccountListLines(Listbox& list);
    // Selects exactly the rows of transBox that hold the text in any column
    // (see findRows); returns how many.
    int findTrans(QStringView text);
    // The transfer window's OK (doTransferFromTo): a withdrawal from the source
    // and a deposit into the destination, each entered as the transaction
    // dialog's OK enters one, with its own calcAll and repeat pass. One account
    // on both sides is refused with its message, and nothing is entered.
    QString doTransferFromTo(const QString& source, const QString& destination, double amount, const QDate& date);
    // The context menu of transBox: one item "number-name" for every account but
    // the Base Account; choosing one gives the selected transaction that account.
    QStringList transBox_ContextualMenuItems() const;
    void transBox_ContextualMenuAction(const QString& itemText);
    // The import's rows appended to transBox in their order (without the
    // duplicates, when they are to be skipped): account, date, description and
    // amount; then calcAll, which stores both tables. Returns how many came in.
    int importTransactions(const std::vector<ImportedRow>& rows, bool skipDuplicates);
    // Stores both tables of the open ledger, if one is open: the window closes.
    void saveOpenLedger();

    // --- figures ---
    // Finds the decimal mark of the system once, as the window opens: 1234 as the
    // locale writes it, and the separator type that text shows.
    void probeSeparator() { separatorType = separatorTypeOf(separatorProbe()); }
    static QString separatorProbe();
    static QString separatorTypeOf(QStringView probe);
    // Recomputes every account of the open ledger and stores both tables.
    void calcAll();
    // Sets the reconcile boxes of transBox from their stored column.
    void doCheckboxes();
    // Posts the repeating transactions that are due, by the clock; nothing is
    // stored or recalculated (see postDueRepeats).
    void CheckRepeats();
    // Whether only reconciled transactions count (the window's reconcile box).
    bool reconcileOn() const { return reconcileOn_; }
    void reconcilecheckbox_Action(bool checked);

    QString accountsFileName() const { return theLedger + QStringLiteral("AccountData"); }
    QString transFileName() const { return theLedger + QStringLiteral("TransData"); }
    QString bookListPath() const;

Q_SIGNALS:
    void searchFieldCleared();
    // taxText and balText have new values.
    void totalsChanged();
    void importAvailable(bool available);

private:
    // Store and load one table of a ledger ("AccountData", "TransData"); what
    // fails is told to the user, naming the ledger.
    bool saveTable(const Listbox& table, const QString& ledger, const QString& kind);
    void loadTable(Listbox& table, const QString& ledger, const QString& kind);

    bool reconcileOn_ = false;
    // Files that were there but couldn't be read: "BookList" at start, the
    // open ledger's "AccountData" or "TransData" when it opened. None of them is
    // written over until it is read again.
    bool bookListUnread_ = false;
    QStringList unreadFiles_;
};
