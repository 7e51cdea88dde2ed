#pragma once

#include "books/rowtable/Listbox.h"
#include "engine/TransactionEntry.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

class SummaryBooks;

// What the user does to the transactions of the open ledger: the transaction
// dialog's OK and GST button, the transfer window's OK, deleting, searching,
// giving a transaction another account, and appending imported rows. Each that
// changes a row ends in calcAll.
class TransactionOperations {
public:
    explicit TransactionOperations(SummaryBooks& books);

    // The transaction dialog's OK (editAddTransaction): the form goes into a new
    // row of transBox or, editing, into the selected one (or the row that the
    // selected line of an account's list links to); calcAll; the form's account is
    // selected; the account's list, if one asked for the dialog, shows the change
    // and transBox is stored again as shown; then the due repeats are posted.
    // Returns the row written, -1 for none.
    int editAddTransaction(const TransactionForm& form, bool editing, const AccountList* accountList = nullptr);
    // The GST button, after editAddTransaction: a GST row of its own beside the
    // transaction, also when one was edited; calcAll; the form's account is
    // selected; the account's list shows the row too. Returns the row.
    int doGST(const TransactionForm& form, const AccountList* accountList = nullptr);
    // The transfer window's OK (doTransferFromTo): a withdrawal from the source
    // and a deposit into the destination, each entered as the transaction
    // dialog's OK enters one, with its own calcAll and repeat pass. One account
    // on both sides is refused with its message, and nothing is entered.
    QString doTransferFromTo(const QString& source, const QString& destination, double amount, const QDate& date);

    // The delete button: after the user's confirmation, every selected row of
    // transBox goes; then calcAll. Without a selection it says
    // "No transaction selected.".
    void deleteSelectedTransactions();
    // The delete button of an account's transactions window, on its list: after
    // the user's confirmation, each selected line takes its transBox row with it
    // (the links of the lines after it fall by one); then calcAll, and both
    // tables are stored again as shown. Without a selected line it says
    // "No transaction selected.". True when lines were deleted.
    bool deleteAccountListLines(Listbox& list);
    // Selects exactly the rows of transBox that hold the text in any column
    // (see findRows); returns how many.
    int findTrans(QStringView text);

    // The context menu of transBox: one item "number-name" for every account but
    // the Base Account; choosing one gives the selected transaction that account.
    QStringList transBox_ContextualMenuItems() const;
    void transBox_ContextualMenuAction(const QString& itemText);

    // Rows made for transBox appended in their order, then calcAll. Returns how
    // many came in.
    int appendTransactions(Listbox::Rows rows);

private:
    SummaryBooks& books_;
};
