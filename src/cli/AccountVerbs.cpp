// The verbs of the account dialog and the toolbar's Delete, and of a new ledger.
#include "cli/Verbs.h"

#include "books/AppFolders.h"
#include "engine/AccountMaintenance.h"
#include "engine/RowLayouts.h"

using namespace Qt::StringLiterals;

namespace {

QString typedOr(const Invocation& call, const QString& option, const QString& otherwise)
{
    return call.isSet(option) ? call.value(option) : otherwise;
}

int accountRow(const SummaryBooks& books, const QString& name)
{
    for (int row = 0; row < books.accountsBox.ListCount(); ++row) {
        if (books.accountsBox.CellView(row, AccountCol::Name).compare(name, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

} // namespace

int selectAccount(const Invocation& call, SummaryBooks& books)
{
    const int row = accountRow(books, call.words[2]);
    if (row < 0) {
        refused(call, u"there is no account named \"%1\" in the ledger \"%2\""_s.arg(call.words[2], books.theLedger));
        return -1;
    }
    books.accountsBox.SetListIndex(row);
    return row;
}

int newLedger(const Invocation& call)
{
    AccountFields base = baseAccountFields();
    base.opening = typedOr(call, u"opening"_s, base.opening);
    base.notes = typedOr(call, u"notes"_s, base.notes);
    // Checked first: a refused input leaves the data folder as it was.
    if (const QString problem = accountFieldsProblem(base); !problem.isEmpty())
        return refused(call, problem);
    // The first ledger of a new data folder needs the folders the program's start makes.
    const QString folder = AppFolders::makeFolders(call.dataFolder);
    if (folder.isEmpty())
        return refused(call, u"the folder %1 can't be made"_s.arg(AppFolders::books(call.dataFolder)));
    SummaryBooks books(folder);
    books.probeSeparator();
    if (!books.shelf.addLedger(call.words[1]))
        return 1; // its message is told with the others
    // A ledger whose files were left behind opens with accounts; one is
    // recalculated, the other gets its Base Account.
    const bool hasAccounts = books.accountsBox.ListCount() > 0;
    if (hasAccounts)
        books.calcAll();
    books.shelf.saveBooks();
    if (!hasAccounts)
        AccountOperations(books).saveAccount(base, true, -1, {});
    return 0;
}

int addAccountVerb(const Invocation& call, SummaryBooks& books)
{
    const AccountFields fields{call.words[2], call.isSet(u"revenue"_s) ? u"Revenue"_s : u"Expense"_s,
                               typedOr(call, u"opening"_s, {}), typedOr(call, u"notes"_s, {})};
    if (const QString problem = AccountOperations(books).saveAccount(fields, true, -1, {}); !problem.isEmpty())
        return refused(call, problem);
    return 0;
}

int editAccountVerb(const Invocation& call, SummaryBooks& books)
{
    const int row = selectAccount(call, books);
    if (row < 0)
        return 1;
    AccountFields fields = accountFieldsOf(books.accountsBox, row);
    const QString oldName = fields.name;
    fields.name = typedOr(call, u"rename"_s, fields.name);
    fields.opening = typedOr(call, u"opening"_s, fields.opening);
    fields.notes = typedOr(call, u"notes"_s, fields.notes);
    // Typing a name, even the same one, makes the dialog check it.
    const bool nameTyped = call.isSet(u"rename"_s);
    if (const QString problem = AccountOperations(books).saveAccount(fields, nameTyped, row, oldName); !problem.isEmpty())
        return refused(call, problem);
    return 0;
}

int deleteAccountVerb(const Invocation& call, SummaryBooks& books)
{
    if (selectAccount(call, books) < 0)
        return 1;
    // A refusal is a message, told with the others.
    AccountOperations(books).deleteSelectedAccount();
    return 0;
}
