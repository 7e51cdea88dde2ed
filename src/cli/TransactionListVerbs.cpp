// The verbs on the transaction list of the main window: find, delete, reconcile.
#include "cli/Verbs.h"

#include "engine/RowLayouts.h"

#include <vector>

namespace {

// The rows named after the ledger's name, or nothing (refusal printed) when
// one of them is outside the table: then none is touched.
std::optional<std::vector<int>> namedRows(const Invocation& call, const SummaryBooks& books)
{
    std::vector<int> rows;
    for (qsizetype word = 2; word < call.words.size(); ++word) {
        const int row = transactionRow(call, books, call.words[word]);
        if (row < 0)
            return std::nullopt;
        rows.push_back(row);
    }
    return rows;
}

} // namespace

bool rowsUsable(const QCommandLineParser&, const QStringList& words)
{
    for (qsizetype word = 2; word < words.size(); ++word) {
        bool number = false;
        words[word].toInt(&number);
        if (!number)
            return false;
    }
    return true;
}

int findVerb(const Invocation& call, SummaryBooks& books)
{
    TransactionOperations(books).findTrans(call.words[2]);
    const Listbox& transactions = books.transBox;
    for (int row = 0; row < transactions.ListCount(); ++row)
        if (transactions.Selected(row))
            printTransaction(call, transactions, row);
    return 0;
}

int deleteTransactionsVerb(const Invocation& call, SummaryBooks& books)
{
    const auto rows = namedRows(call, books);
    if (!rows)
        return 1;
    books.transBox.setSelectedRows(*rows);
    TransactionOperations(books).deleteSelectedTransactions(); // confirmed by the command itself
    return 0;
}

int reconcileVerb(const Invocation& call, SummaryBooks& books)
{
    const auto rows = namedRows(call, books);
    if (!rows)
        return 1;
    const bool checked = !call.isSet(QStringLiteral("off"));
    Listbox& transactions = books.transBox;
    for (int row : *rows) {
        // A click toggles the box: only a box in the other state gets one.
        if (transactions.CellCheck(row, TransCol::Account) != checked)
            transactions.userToggledCheck(row, TransCol::Account);
    }
    return 0;
}
