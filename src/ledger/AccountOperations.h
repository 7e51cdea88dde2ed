#pragma once

#include "engine/AccountMaintenance.h"

#include <QString>

class SummaryBooks;

// What the user does to the accounts of the open ledger: the account dialog's
// OK, dragging an account row, and deleting an account with its transactions.
// Each ends in calcAll or stores the accounts.
class AccountOperations {
public:
    explicit AccountOperations(SummaryBooks& books);

    // The account dialog's OK: adds an account (editedRow -1) or writes the fields
    // into the row being edited and renames that account's transactions from
    // oldName, then recalculates. With checkUnique set, a name that any account
    // already has, the edited one included, is refused. Returns the message for a
    // refusal, and then nothing has changed; "" when done.
    QString saveAccount(const AccountFields& fields, bool checkUnique, int editedRow, const QString& oldName);
    // An account row was dragged to newPosition. Row 0 belongs to the Base
    // Account, so a drop there is refused with a beep (true); any other is kept
    // and stored.
    bool accountsBox_DragReorderRows(int newPosition, int parentRow);
    // The toolbar's Delete: the selected account and all its transactions, after
    // the user's confirmation. The Base Account can't be deleted.
    void deleteSelectedAccount();

private:
    SummaryBooks& books_;
};
