#include "ledger/SummaryBooks.h"

#include "books/LedgerNames.h"
#include "books/TextFiles.h"
#include "engine/AccountMaintenance.h"
#include "engine/BalanceCalculation.h"
#include "engine/RowLayouts.h"
#include "platform/BlockingServices.h"
#include "platform/Numbers.h"
#include "platform/TextHelpers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

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
    if (const std::optional<QString> content = readTextFile(bookListPath())) {
        forEachLine(*content, [this](QStringView line) {
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
    Q_EMIT searchFieldCleared();

    // Put the transactions of the ledger left back as its file has them, and store them.
    if (!delLedger && !deletingOn) {
        listboxManager.loadListBox(transBox, transFileName());
        if (transBox.ListCount() > 0)
            listboxManager.saveListBox(transBox, transFileName());
    }
    if (!theLedger.isEmpty()) {
        oldLedger = theLedger;
        if (!deletingOn && accountsBox.ListCount() > 0)
            listboxManager.saveListBox(accountsBox, accountsFileName());
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
    theLedger = withLedgerPrefix(theLedger);
    QString problem = ledgerNameProblem(theLedger, LedgerList, row);
    // Saving under a name whose files exist would overwrite another ledger's books.
    const bool renamed = theLedger.compare(oldLedger, Qt::CaseInsensitive) != 0;
    if (problem.isEmpty() && renamed && !listboxManager.ProgramDataFolder.isEmpty()) {
        const QDir folder(listboxManager.ProgramDataFolder);
        if (folder.exists(accountsFileName()) || folder.exists(transFileName()))
            problem = ledgerNameInUseMessage();
    }
    if (!problem.isEmpty()) {
        MsgBox(problem);
        theLedger = oldLedger;
        LedgerList.SetCell(row, column, oldLedger);
        return;
    }

    LedgerList.SetCell(row, column, theLedger);
    if (transBox.ListCount() > 0)
        listboxManager.saveListBox(transBox, transFileName());
    if (accountsBox.ListCount() > 0)
        listboxManager.saveListBox(accountsBox, accountsFileName());
    saveBooks();
    // A change of case only names the same files on a system that ignores case:
    // removing "the old ones" there would remove the ledger itself.
    if (renamed)
        removeFiles(oldLedger);
}

void SummaryBooks::openABook(const QString&)
{
    // The selected row names the files; the caller's name is always its text.
    if (LedgerList.ListIndex() == -1)
        return;
    accountsBox.DeleteAllRows();
    transBox.DeleteAllRows();
    const QString name = LedgerList.Text();
    listboxManager.loadListBox(accountsBox, name + u"AccountData"_s);
    listboxManager.loadListBox(transBox, name + u"TransData"_s);
}

void SummaryBooks::saveBooks()
{
    const QString path = bookListPath();
    if (path.isEmpty())
        return;
    QString content;
    for (int row = 0; row < LedgerList.ListCount(); ++row) {
        content += LedgerList.CellView(row, 0);
        content += u'\n';
    }
    writeTextFile(path, content);
}

void SummaryBooks::removeFiles(const QString& name)
{
    if (listboxManager.ProgramDataFolder.isEmpty())
        return;
    QDir folder(listboxManager.ProgramDataFolder);
    for (const QString& fileName : {name + u"AccountData"_s, name + u"TransData"_s}) {
        if (folder.exists(fileName))
            folder.remove(fileName);
    }
}

bool SummaryBooks::addLedger(const QString& typedName)
{
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
    listboxManager.saveListBox(accountsBox, accountsFileName());
    calcAll();
    return {};
}

void SummaryBooks::transBox_CellAction(int row, int column)
{
    transBox.SetCell(row, TransCol::Reconciled, transBox.CellCheck(row, column) ? u"true" : u"false");
    if (reconcileOn_)
        calcAll();
    listboxManager.saveListBox(transBox, transFileName());
}

bool SummaryBooks::accountsBox_DragReorderRows(int newPosition, int /*parentRow*/)
{
    if (newPosition == 0) {
        Beep();
        return true;
    }
    listboxManager.saveListBox(accountsBox, accountsFileName());
    return false;
}

void SummaryBooks::deleteSelectedAccount()
{
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
        listboxManager.saveListBox(accountsBox, accountsFileName());
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
    const int row = transBox.ListIndex();
    transBox.SetCell(row, TransCol::Number, NthField(itemText, u"-", 1));
    transBox.SetCell(row, TransCol::Account, NthField(itemText, u"-", 2));
    calcAll();
}

void SummaryBooks::saveOpenLedger()
{
    if (LedgerList.ListIndex() > -1) {
        listboxManager.saveListBox(transBox, transFileName());
        listboxManager.saveListBox(accountsBox, accountsFileName());
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
    if (LedgerList.ListIndex() == -1)
        return;
    const BalanceTotals totals = calculateBalances(accountsBox, transBox, reconcileOn_);
    taxText = Str(totals.tax);
    balText = Str(totals.transactions);
    Q_EMIT totalsChanged();
    writeSeconds(transBox);

    // The files get the plain sums; the padding and the comma are for the screen.
    if (LedgerList.ListIndex() != -1) {
        listboxManager.saveListBox(accountsBox, accountsFileName());
        listboxManager.saveListBox(transBox, transFileName());
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
    // Repeating transactions are posted here once they can be entered.
}

void SummaryBooks::reconcilecheckbox_Action(bool checked)
{
    reconcileOn_ = checked;
    if (!checked && accountsBox.ListCount() > 0)
        calcAll();
}
