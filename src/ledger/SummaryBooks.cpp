#include "ledger/SummaryBooks.h"

#include "books/LedgerNames.h"
#include "books/TextFiles.h"
#include "engine/AccountMaintenance.h"
#include "engine/BalanceCalculation.h"
#include "engine/Repeats.h"
#include "engine/TransactionSearch.h"
#include "engine/Transfers.h"
#include "engine/RowLayouts.h"
#include "platform/BlockingServices.h"
#include "platform/Clock.h"
#include "platform/FileProblems.h"
#include "platform/Numbers.h"
#include "platform/TextHelpers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString kAccountData = u"AccountData"_s;
const QString kTransData = u"TransData"_s;

// A ledger as the user reads its name, without the two blanks.
QString shownName(const QString& ledger)
{
    return ledger.startsWith(kLedgerPrefix) ? ledger.mid(kLedgerPrefix.size()) : ledger;
}

QString keptNote(const FileProblem& problem)
{
    return problem.oldFileKept ? u" It stays as it was before this change."_s : QString();
}

} // namespace

SummaryBooks::SummaryBooks(const QString& programDataFolder, QObject* parent)
    : QObject(parent)
    , LedgerList(u"LedgerList"_s, 1)
    , accountsBox(u"accountsBox"_s, AccountCol::Count)
    , transBox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple)
    , deletingOn(listboxManager.deletingOn)
{
    listboxManager.ProgramDataFolder = programDataFolder;
    setUpLedgerList(LedgerList);
    setUpAccountsBox(accountsBox);
    setUpTransBox(transBox);
    LedgerList_Open();

    connect(&LedgerList, &Listbox::Change, this, &SummaryBooks::LedgerList_Change);
    connect(&LedgerList, &Listbox::CellGotFocus, this, &SummaryBooks::LedgerList_CellGotFocus);
    connect(&LedgerList, &Listbox::CellTextChange, this, &SummaryBooks::LedgerList_CellTextChange);
    connect(&LedgerList, &Listbox::CellLostFocus, this, &SummaryBooks::LedgerList_CellLostFocus);
    connect(&transBox, &Listbox::CellAction, this, &SummaryBooks::transBox_CellAction);
}

QString SummaryBooks::bookListPath() const
{
    if (listboxManager.ProgramDataFolder.isEmpty())
        return {};
    return QFileInfo(listboxManager.ProgramDataFolder).dir().filePath(u"BookList"_s);
}

void SummaryBooks::LedgerList_Open()
{
    const TextContent content = readTextFile(bookListPath());
    bookListUnread_ = !content.problem.isEmpty();
    if (bookListUnread_)
        tellFileProblem(u"Quillmark couldn't read the list of ledgers: %1."_s.arg(content.problem));
    if (content.text) {
        // A line that can't name files still lists: opening it says why.
        forEachLine(*content.text, [this](QStringView line) {
            if (line.isEmpty())
                return;
            LedgerList.AddRow(withLedgerPrefix(line.toString()));
            LedgerList.SetRowPicture(LedgerList.LastIndex(), RowPicture::Book_Icon32);
        });
    }
    LedgerList.SetColumnType(0, Listbox::TypeEditable);
}

void SummaryBooks::LedgerList_Change()
{
    const FileProblemGathering oneMessage;
    Q_EMIT searchFieldCleared();

    // Put the transactions of the ledger left back as its file has them, and store them.
    if (!delLedger && !deletingOn) {
        loadTable(transBox, theLedger, kTransData);
        if (transBox.ListCount() > 0)
            saveTable(transBox, theLedger, kTransData);
    }
    if (!theLedger.isEmpty()) {
        oldLedger = theLedger;
        if (!deletingOn && accountsBox.ListCount() > 0)
            saveTable(accountsBox, theLedger, kAccountData);
    }

    if (LedgerList.ListIndex() > -1) {
        Q_EMIT importAvailable(true);
        openABook(LedgerList.Text());
        theLedger = LedgerList.Text();
        doCheckboxes();
    } else {
        Q_EMIT importAvailable(false);
        accountsBox.DeleteAllRows();
        transBox.DeleteAllRows();
        unreadFiles_.clear();
        theLedger.clear();
    }

    for (Listbox* table : {&transBox, &accountsBox}) {
        if (table->ListCount() > 0) {
            table->SetListIndex(0);
            table->SetListIndex(-1);
        }
    }
    CheckRepeats();
    showStoredAmountsWithCommas();
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

void SummaryBooks::LedgerList_CellGotFocus(int, int)
{
    oldLedger = theLedger;
}

void SummaryBooks::LedgerList_CellTextChange(int, int)
{
    theLedger = LedgerList.Text();
}

void SummaryBooks::LedgerList_CellLostFocus(int row, int column)
{
    const FileProblemGathering oneMessage;
    theLedger = withLedgerPrefix(theLedger);
    QString problem = ledgerNameProblem(theLedger, LedgerList, row);
    // Saving under a name whose files exist would overwrite another ledger's books.
    const bool renamed = theLedger.compare(oldLedger, Qt::CaseInsensitive) != 0;
    if (problem.isEmpty() && renamed && !listboxManager.ProgramDataFolder.isEmpty()) {
        const QDir folder(listboxManager.ProgramDataFolder);
        if (folder.exists(accountsFileName()) || folder.exists(transFileName()))
            problem = ledgerNameInUseMessage();
    }
    // The files of the old name go once the new ones are written; a file that
    // couldn't be read would go without its content having been written anew.
    if (problem.isEmpty() && renamed && !unreadFiles_.isEmpty())
        problem = u"The ledger can't be renamed: its files couldn't be read when it was opened."_s;
    if (!problem.isEmpty()) {
        MsgBox(problem);
        theLedger = oldLedger;
        LedgerList.SetCell(row, column, oldLedger);
        return;
    }

    LedgerList.SetCell(row, column, theLedger);
    bool saved = true;
    if (transBox.ListCount() > 0)
        saved = saveTable(transBox, theLedger, kTransData) && saved;
    if (accountsBox.ListCount() > 0)
        saved = saveTable(accountsBox, theLedger, kAccountData) && saved;
    const bool listSaved = saveBooks();
    // A change of case only names the same files on a system that ignores case:
    // removing "the old ones" there would remove the ledger itself.
    if (!renamed)
        return;
    if (saved && listSaved) {
        removeFiles(oldLedger);
        return;
    }
    // Not all of it reached the disk under the new name: the ledger keeps its
    // old name and files, and what was written under the new one goes.
    removeFiles(theLedger);
    theLedger = oldLedger;
    LedgerList.SetCell(row, column, oldLedger);
    if (listSaved)
        saveBooks();
}

void SummaryBooks::openABook(const QString&)
{
    const FileProblemGathering oneMessage;
    // The selected row names the files; the caller's name is always its text.
    if (LedgerList.ListIndex() == -1)
        return;
    accountsBox.DeleteAllRows();
    transBox.DeleteAllRows();
    unreadFiles_.clear();
    const QString name = LedgerList.Text();
    loadTable(accountsBox, name, kAccountData);
    loadTable(transBox, name, kTransData);
}

bool SummaryBooks::saveBooks()
{
    const QString path = bookListPath();
    QString content;
    for (int row = 0; row < LedgerList.ListCount(); ++row) {
        content += LedgerList.CellView(row, 0);
        content += u'\n';
    }
    FileProblem problem;
    if (path.isEmpty())
        problem = {u"there is no folder to keep it in"_s};
    else if (bookListUnread_)
        problem = {u"the file couldn't be read when Quillmark started, so it isn't written over"_s};
    else
        problem = writeTextFile(path, content);
    if (problem.failed())
        tellFileProblem(u"Quillmark couldn't save the list of ledgers: %1.%2"_s.arg(problem.reason, keptNote(problem)));
    return !problem.failed();
}

bool SummaryBooks::saveTable(const Listbox& table, const QString& ledger, const QString& kind)
{
    // The table of a file that couldn't be read holds nothing of it: saving it
    // would put an empty table in place of the user's books.
    const FileProblem problem = unreadFiles_.contains(kind)
        ? FileProblem{u"its file couldn't be read when the ledger was opened, so it isn't written over"_s}
        : listboxManager.saveListBox(table, ledger + kind);
    if (problem.failed())
        tellFileProblem(u"Quillmark couldn't save the ledger \"%1\": %2.%3"_s.arg(shownName(ledger), problem.reason,
                                                                                 keptNote(problem)));
    return !problem.failed();
}

void SummaryBooks::loadTable(Listbox& table, const QString& ledger, const QString& kind)
{
    const FileProblem problem = listboxManager.loadListBox(table, ledger + kind);
    if (problem.failed() && !unreadFiles_.contains(kind))
        unreadFiles_ << kind;
    if (problem.failed())
        tellFileProblem(u"Quillmark couldn't open the ledger \"%1\": %2."_s.arg(shownName(ledger), problem.reason));
}

void SummaryBooks::removeFiles(const QString& name)
{
    for (const QString& fileName : {name + kAccountData, name + kTransData}) {
        const QString path = bookFilePath(listboxManager.ProgramDataFolder, fileName).path;
        if (!path.isEmpty())
            QFile::remove(path); // a link goes itself, not what it points to
    }
}

bool SummaryBooks::addLedger(const QString& typedName)
{
    const FileProblemGathering oneMessage;
    const QString name = kLedgerPrefix + typedName;
    if (const QString problem = ledgerNameProblem(name, LedgerList, -1); !problem.isEmpty()) {
        MsgBox(problem);
        return false;
    }
    accountsBox.DeleteAllRows();
    transBox.DeleteAllRows();
    LedgerList.AddRow(name);
    LedgerList.SetRowPicture(LedgerList.LastIndex(), RowPicture::Book_Icon32);
    LedgerList.SetListIndex(LedgerList.LastIndex());
    return true;
}

void SummaryBooks::deleteLedger()
{
    const FileProblemGathering oneMessage;
    if (LedgerList.ListIndex() == -1)
        return;
    if (!confirmDeletion(u"Are you sure you want to delete the Ledger and all of it's accounts and transactions?"_s))
        return;

    deletingOn = true;
    delLedger = true;
    accountsBox.DeleteAllRows();
    transBox.DeleteAllRows();
    removeFiles(theLedger);
    LedgerList.RemoveRow(LedgerList.ListIndex());
    saveBooks();
    delLedger = false;
    deletingOn = false;
}

QString SummaryBooks::saveAccount(const AccountFields& fields, bool checkUnique, int editedRow, const QString& oldName)
{
    const FileProblemGathering oneMessage;
    if (checkUnique && checkName(accountsBox, fields.name))
        return u"That account name is already in use. Please enter a different name."_s;
    if (const QString problem = accountFieldsProblem(fields); !problem.isEmpty())
        return problem;
    if (editedRow < 0) {
        addAccount(accountsBox, fields);
    } else {
        editAccountRow(accountsBox, editedRow, fields);
        updateAccountIDName(transBox, oldName, fields.name);
    }
    saveTable(accountsBox, theLedger, kAccountData);
    calcAll();
    return {};
}

void SummaryBooks::transBox_CellAction(int row, int column)
{
    const FileProblemGathering oneMessage;
    transBox.SetCell(row, TransCol::Reconciled, transBox.CellCheck(row, column) ? u"true" : u"false");
    if (reconcileOn_)
        calcAll();
    saveTable(transBox, theLedger, kTransData);
}

bool SummaryBooks::accountsBox_DragReorderRows(int newPosition, int /*parentRow*/)
{
    const FileProblemGathering oneMessage;
    if (newPosition == 0) {
        Beep();
        return true;
    }
    saveTable(accountsBox, theLedger, kAccountData);
    return false;
}

void SummaryBooks::deleteSelectedAccount()
{
    const FileProblemGathering oneMessage;
    const int row = accountsBox.ListIndex();
    if (row < 0) {
        MsgBox(u"No account selected."_s);
        return;
    }
    deletingOn = true;
    if (row == 0) {
        MsgBox(u"The Base Account cannot be deleted."_s);
        deletingOn = false;
        return;
    }
    const bool confirmed =
        confirmDeletion(u"Are you sure you want to delete the account and all of its transactions?"_s);
    deletingOn = false;
    if (!confirmed)
        return;
    deleteAccountWithTransactions(accountsBox, transBox, row);
    if (LedgerList.ListIndex() > -1)
        saveTable(accountsBox, theLedger, kAccountData);
    calcAll();
}

QStringList SummaryBooks::transBox_ContextualMenuItems() const
{
    QStringList items;
    for (int row = 1; row < accountsBox.ListCount(); ++row)
        items << accountsBox.Cell(row, AccountCol::Number) + u'-' + accountsBox.Cell(row, AccountCol::Name);
    return items;
}

void SummaryBooks::transBox_ContextualMenuAction(const QString& itemText)
{
    const FileProblemGathering oneMessage;
    const int row = transBox.ListIndex();
    transBox.SetCell(row, TransCol::Number, NthField(itemText, u"-", 1));
    transBox.SetCell(row, TransCol::Account, NthField(itemText, u"-", 2));
    calcAll();
}

void SummaryBooks::saveOpenLedger()
{
    const FileProblemGathering oneMessage;
    if (LedgerList.ListIndex() > -1) {
        saveTable(transBox, theLedger, kTransData);
        saveTable(accountsBox, theLedger, kAccountData);
    }
}

QString SummaryBooks::separatorProbe()
{
    return Format(1234.0, u"########0.00");
}

QString SummaryBooks::separatorTypeOf(QStringView probe)
{
    return probe.contains(u',') ? u"comma"_s : u"period"_s;
}

void SummaryBooks::calcAll()
{
    const FileProblemGathering oneMessage;
    if (LedgerList.ListIndex() == -1)
        return;
    const BalanceTotals totals = calculateBalances(accountsBox, transBox, reconcileOn_);
    taxText = Str(totals.tax);
    balText = Str(totals.transactions);
    Q_EMIT totalsChanged();
    writeSeconds(transBox);

    // The files get the plain sums; the padding and the comma are for the screen.
    if (LedgerList.ListIndex() != -1) {
        saveTable(accountsBox, theLedger, kAccountData);
        saveTable(transBox, theLedger, kTransData);
    }
    padAmounts(accountsBox, transBox);
    if (separatorType == u"comma")
        showDecimalCommas(accountsBox, transBox);
}

void SummaryBooks::doCheckboxes()
{
    for (int t = 0; t < transBox.ListCount(); ++t) {
        if (isWord(transBox.CellView(t, TransCol::Reconciled), u"true"))
            transBox.SetCellCheck(t, TransCol::Account, true);
    }
}

void SummaryBooks::CheckRepeats()
{
    postDueRepeats(transBox, Clock::now());
}

int SummaryBooks::editAddTransaction(const TransactionForm& form, bool editing, const AccountList* accountList)
{
    const FileProblemGathering oneMessage;
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
    calcAll();
    accountsBox.SetListIndex(form.accountRow);

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
        storeTransactions();
    }
    CheckRepeats();
    return row;
}

int SummaryBooks::doGST(const TransactionForm& form, const AccountList* accountList)
{
    const FileProblemGathering oneMessage;
    transBox.AddRow(u"1000");
    const int row = transBox.LastIndex();
    writeGstRow(transBox, row, form);
    calcAll();
    accountsBox.SetListIndex(form.accountRow);
    if (accountList) {
        Listbox& list = accountList->list;
        list.AddRow(u"1000");
        writeAccountListGstLine(list, list.LastIndex(), form, row);
        if (accountList->updateBalance)
            accountList->updateBalance();
    }
    return row;
}

bool SummaryBooks::deleteAccountListLines(Listbox& list)
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
    transBox.removeRowsWhere([&removed](int row) { return std::binary_search(removed.begin(), removed.end(), row); });
    list.removeRowsWhere([&list](int line) { return list.Selected(line); });
    for (int line = 0; line < list.ListCount(); ++line) {
        const int link = truncated(Val(list.CellView(line, TransCol::Seconds)));
        const auto below = std::lower_bound(removed.begin(), removed.end(), link) - removed.begin();
        if (below > 0)
            list.SetCell(line, TransCol::Seconds, Str(link - int(below)));
    }
    calcAll();
    if (LedgerList.ListIndex() > -1) {
        saveTable(transBox, theLedger, kTransData);
        saveTable(accountsBox, theLedger, kAccountData);
    }
    return true;
}

int SummaryBooks::importTransactions(const std::vector<ImportedRow>& rows, bool skipDuplicates)
{
    const FileProblemGathering oneMessage;
    std::vector<Listbox::Row> added;
    added.reserve(rows.size());
    for (const ImportedRow& row : rows) {
        if (skipDuplicates && row.duplicate)
            continue;
        QStringView cells[TransCol::Count];
        cells[TransCol::Account] = row.account;
        cells[TransCol::Date] = row.date;
        cells[TransCol::Description] = row.description;
        cells[TransCol::Transaction] = row.amount;
        added.emplace_back(cells, TransCol::Count, TransCol::Count);
    }
    const int count = int(added.size());
    transBox.appendRows(std::move(added));
    calcAll();
    return count;
}

void SummaryBooks::deleteSelectedTransactions()
{
    const FileProblemGathering oneMessage;
    if (transBox.ListIndex() == -1) {
        MsgBox(u"No transaction selected."_s);
        return;
    }
    if (!confirmDeletion(u"Are you sure you want to delete the selected transaction(s)?"_s))
        return;
    transBox.removeRowsWhere([this](int row) { return transBox.Selected(row); });
    if (LedgerList.ListIndex() > -1) {
        saveTable(transBox, theLedger, kTransData);
        saveTable(accountsBox, theLedger, kAccountData);
    }
    calcAll();
}

int SummaryBooks::findTrans(QStringView text)
{
    const std::vector<int> hits = findRows(transBox, text);
    transBox.setSelectedRows(hits);
    return int(hits.size());
}

QString SummaryBooks::doTransferFromTo(const QString& source, const QString& destination, double amount,
                                       const QDate& date)
{
    // Two rows in one account that cancel each other would be all it did.
    if (source.compare(destination, Qt::CaseInsensitive) == 0)
        return kSameAccount;
    const FileProblemGathering oneMessage;
    editAddTransaction(transferWithdrawal(accountsBox, source, destination, amount, date), false);
    editAddTransaction(transferDeposit(accountsBox, source, destination, amount, date), false);
    return {};
}

void SummaryBooks::storeTransactions()
{
    const FileProblemGathering oneMessage;
    if (LedgerList.ListIndex() > -1)
        saveTable(transBox, theLedger, kTransData);
}

void SummaryBooks::reconcilecheckbox_Action(bool checked)
{
    const FileProblemGathering oneMessage;
    reconcileOn_ = checked;
    if (!checked && accountsBox.ListCount() > 0)
        calcAll();
}
