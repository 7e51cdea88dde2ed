#include "ledger/TransactionOperations.h"

#include "engine/RowLayouts.h"
#include "engine/TransactionSearch.h"
#include "engine/Transfers.h"
#include "ledger/SummaryBooks.h"
#include "platform/BlockingServices.h"
#include "platform/FileProblems.h"
#include "platform/Numbers.h"
#include "platform/TextHelpers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

TransactionOperations::TransactionOperations(SummaryBooks& books)
    : books_(books)
{
}

int TransactionOperations::editAddTransaction(const TransactionForm& form, bool editing,
                                              const AccountList* accountList)
{
    const FileProblemGathering oneMessage;
    Listbox& transBox = books_.transBox;
    int row = -1;
    if (!editing) {
        transBox.AddRow(u"");
        row = transBox.LastIndex();
    } else if (accountList) {
        const Listbox& list = accountList->list;
        if (list.ListIndex() >= 0)
            row = int(Val(list.CellView(list.ListIndex(), TransCol::Seconds)));
    } else {
        row = transBox.ListIndex();
    }
    if (row < 0 || row >= transBox.ListCount())
        return -1;
    writeTransaction(transBox, row, form);
    books_.calcAll();
    books_.accountsBox.SetListIndex(form.accountRow);

    if (accountList) {
        Listbox& list = accountList->list;
        int line = list.ListIndex();
        if (!editing) {
            list.AddRow(u"999");
            line = list.LastIndex();
        }
        writeAccountListLine(list, line, form, !editing, row);
        if (accountList->updateBalance)
            accountList->updateBalance();
        books_.store(LedgerFiles::Table::Transactions);
    }
    books_.CheckRepeats();
    return row;
}

int TransactionOperations::doGST(const TransactionForm& form, const AccountList* accountList)
{
    Listbox& transBox = books_.transBox;
    transBox.AddRow(u"1000");
    const int row = transBox.LastIndex();
    writeGstRow(transBox, row, form);
    books_.calcAll();
    books_.accountsBox.SetListIndex(form.accountRow);
    if (accountList) {
        Listbox& list = accountList->list;
        list.AddRow(u"1000");
        writeAccountListGstLine(list, list.LastIndex(), form, row);
        if (accountList->updateBalance)
            accountList->updateBalance();
    }
    return row;
}

QString TransactionOperations::doTransferFromTo(const QString& source, const QString& destination, double amount,
                                                const QDate& date)
{
    // Two rows in one account that cancel each other would be all it did.
    if (source.compare(destination, Qt::CaseInsensitive) == 0)
        return kSameAccount;
    const FileProblemGathering oneMessage;
    editAddTransaction(transferWithdrawal(books_.accountsBox, source, destination, amount, date), false);
    editAddTransaction(transferDeposit(books_.accountsBox, source, destination, amount, date), false);
    return {};
}

void TransactionOperations::deleteSelectedTransactions()
{
    Listbox& transBox = books_.transBox;
    if (transBox.ListIndex() == -1) {
        MsgBox(u"No transaction selected."_s);
        return;
    }
    if (!confirmDeletion(u"Are you sure you want to delete the selected transaction(s)?"_s))
        return;
    transBox.removeRowsWhere([&transBox](int row) { return transBox.Selected(row); });
    books_.calcAll();
}

bool TransactionOperations::deleteAccountListLines(Listbox& list)
{
    const FileProblemGathering oneMessage;
    if (list.ListIndex() == -1) {
        MsgBox(u"No transaction selected."_s);
        return false;
    }
    if (!confirmDeletion(u"Are you sure you want to delete the selected transaction(s)?"_s))
        return false;
    // Removing the selected lines' rows one by one from the last line up, each
    // link above a removed row falling by one, comes to this, in one pass of
    // each table: a link ends lower by the removed rows below it.
    std::vector<int> removed;
    for (int line = 0; line < list.ListCount(); ++line)
        if (list.Selected(line))
            removed.push_back(truncated(Val(list.CellView(line, TransCol::Seconds))));
    std::sort(removed.begin(), removed.end());
    books_.transBox.removeRowsWhere(
        [&removed](int row) { return std::binary_search(removed.begin(), removed.end(), row); });
    list.removeRowsWhere([&list](int line) { return list.Selected(line); });
    for (int line = 0; line < list.ListCount(); ++line) {
        const int link = truncated(Val(list.CellView(line, TransCol::Seconds)));
        const auto below = std::lower_bound(removed.begin(), removed.end(), link) - removed.begin();
        if (below > 0)
            list.SetCell(line, TransCol::Seconds, Str(link - int(below)));
    }
    books_.calcAll();
    books_.storeBoth();
    return true;
}

int TransactionOperations::findTrans(QStringView text)
{
    const std::vector<int> hits = findRows(books_.transBox, text);
    books_.transBox.setSelectedRows(hits);
    return int(hits.size());
}

QStringList TransactionOperations::transBox_ContextualMenuItems() const
{
    const Listbox& accounts = books_.accountsBox;
    QStringList items;
    for (int row = 1; row < accounts.ListCount(); ++row)
        items << accounts.Cell(row, AccountCol::Number) + u'-' + accounts.Cell(row, AccountCol::Name);
    return items;
}

void TransactionOperations::transBox_ContextualMenuAction(const QString& itemText)
{
    const int row = books_.transBox.ListIndex();
    books_.transBox.SetCell(row, TransCol::Number, NthField(itemText, u"-", 1));
    books_.transBox.SetCell(row, TransCol::Account, NthField(itemText, u"-", 2));
    books_.calcAll();
}

int TransactionOperations::appendTransactions(Listbox::Rows rows)
{
    const int count = rows.count();
    books_.transBox.appendRows(std::move(rows));
    books_.calcAll();
    return count;
}
