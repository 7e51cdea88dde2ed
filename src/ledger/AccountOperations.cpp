#include "ledger/AccountOperations.h"

#include "ledger/SummaryBooks.h"
#include "platform/BlockingServices.h"

using namespace Qt::StringLiterals;

AccountOperations::AccountOperations(SummaryBooks& books)
    : books_(books)
{
}

QString AccountOperations::saveAccount(const AccountFields& fields, bool checkUnique, int editedRow,
                                       const QString& oldName)
{
    if (checkUnique && checkName(books_.accountsBox, fields.name))
        return u"That account name is already in use. Please enter a different name."_s;
    if (const QString problem = accountFieldsProblem(fields); !problem.isEmpty())
        return problem;
    if (editedRow < 0) {
        addAccount(books_.accountsBox, fields);
    } else {
        editAccountRow(books_.accountsBox, editedRow, fields);
        updateAccountIDName(books_.transBox, oldName, fields.name);
    }
    books_.calcAll();
    return {};
}

bool AccountOperations::accountsBox_DragReorderRows(int newPosition, int /*parentRow*/)
{
    if (newPosition == 0) {
        Beep();
        return true;
    }
    books_.store(LedgerFiles::Table::Accounts);
    return false;
}

void AccountOperations::deleteSelectedAccount()
{
    const int row = books_.accountsBox.ListIndex();
    if (row < 0) {
        MsgBox(u"No account selected."_s);
        return;
    }
    books_.deletingOn = true;
    if (row == 0) {
        MsgBox(u"The Base Account cannot be deleted."_s);
        books_.deletingOn = false;
        return;
    }
    const bool confirmed =
        confirmDeletion(u"Are you sure you want to delete the account and all of its transactions?"_s);
    books_.deletingOn = false;
    if (!confirmed)
        return;
    deleteAccountWithTransactions(books_.accountsBox, books_.transBox, row);
    books_.calcAll();
}
