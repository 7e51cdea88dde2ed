#include "ledger/LedgerShelf.h"

#include "books/LedgerNames.h"
#include "books/TextFiles.h"
#include "ledger/SummaryBooks.h"
#include "platform/BlockingServices.h"
#include "platform/FileProblems.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

using Table = LedgerFiles::Table;

LedgerShelf::LedgerShelf(SummaryBooks& books)
    : books_(books)
{
}

QString LedgerShelf::bookListPath() const
{
    const QString& folder = books_.files.manager.ProgramDataFolder;
    if (folder.isEmpty())
        return {};
    return QFileInfo(folder).dir().filePath(u"BookList"_s);
}

void LedgerShelf::LedgerList_Open()
{
    const TextContent content = readTextFile(bookListPath());
    bookListUnread_ = !content.problem.isEmpty();
    if (bookListUnread_)
        tellFileProblem(u"Quillmark couldn't read the list of ledgers: %1."_s.arg(content.problem));
    Listbox& list = books_.LedgerList;
    if (content.text) {
        // A line that can't name files still lists: opening it says why.
        forEachLine(*content.text, [&list](QStringView line) {
            if (line.isEmpty())
                return;
            list.AddRow(withLedgerPrefix(line.toString()));
            list.SetRowPicture(list.LastIndex(), RowPicture::Book_Icon32);
        });
    }
    list.SetColumnType(0, Listbox::TypeEditable);
}

void LedgerShelf::LedgerList_Change()
{
    const FileProblemGathering oneMessage;
    SummaryBooks& b = books_;
    Q_EMIT b.searchFieldCleared();

    // Put the transactions of the ledger left back as its file has them, and store them.
    if (!b.delLedger && !b.deletingOn) {
        b.files.load(b.transBox, b.theLedger, Table::Transactions);
        if (b.transBox.ListCount() > 0)
            b.files.store(b.transBox, b.theLedger, Table::Transactions);
    }
    if (!b.theLedger.isEmpty()) {
        b.oldLedger = b.theLedger;
        if (!b.deletingOn && b.accountsBox.ListCount() > 0)
            b.files.store(b.accountsBox, b.theLedger, Table::Accounts);
    }

    if (b.LedgerList.ListIndex() > -1) {
        Q_EMIT b.importAvailable(true);
        openABook(b.LedgerList.Text());
        b.theLedger = b.LedgerList.Text();
        b.doCheckboxes();
    } else {
        Q_EMIT b.importAvailable(false);
        b.accountsBox.DeleteAllRows();
        b.transBox.DeleteAllRows();
        b.files.forgetUnreadFiles();
        b.theLedger.clear();
    }

    for (Listbox* table : {&b.transBox, &b.accountsBox}) {
        if (table->ListCount() > 0) {
            table->SetListIndex(0);
            table->SetListIndex(-1);
        }
    }
    b.CheckRepeats();
    b.showStoredAmountsWithCommas();
}

void LedgerShelf::LedgerList_CellGotFocus(int, int)
{
    books_.oldLedger = books_.theLedger;
}

void LedgerShelf::LedgerList_CellTextChange(int, int)
{
    books_.theLedger = books_.LedgerList.Text();
}

void LedgerShelf::LedgerList_CellLostFocus(int row, int column)
{
    const FileProblemGathering oneMessage;
    SummaryBooks& b = books_;
    b.theLedger = withLedgerPrefix(b.theLedger);
    QString problem = ledgerNameProblem(b.theLedger, b.LedgerList, row);
    // Saving under a name whose files exist would overwrite another ledger's books.
    const bool renamed = b.theLedger.compare(b.oldLedger, Qt::CaseInsensitive) != 0;
    if (problem.isEmpty() && renamed && b.files.exist(b.theLedger))
        problem = ledgerNameInUseMessage();
    // The files of the old name go once the new ones are written; a file that
    // couldn't be read would go without its content having been written anew.
    if (problem.isEmpty() && renamed && b.files.anyUnread())
        problem = u"The ledger can't be renamed: its files couldn't be read when it was opened."_s;
    if (!problem.isEmpty()) {
        MsgBox(problem);
        b.theLedger = b.oldLedger;
        b.LedgerList.SetCell(row, column, b.oldLedger);
        return;
    }

    b.LedgerList.SetCell(row, column, b.theLedger);
    bool listSaved = false;
    const bool moved = b.files.rename(b.accountsBox, b.transBox, b.oldLedger, b.theLedger, [this, &listSaved] {
        listSaved = saveBooks();
        return listSaved;
    });
    if (moved)
        return;
    b.theLedger = b.oldLedger;
    b.LedgerList.SetCell(row, column, b.oldLedger);
    if (listSaved)
        saveBooks();
}

void LedgerShelf::openABook(const QString&)
{
    const FileProblemGathering oneMessage;
    SummaryBooks& b = books_;
    // The selected row names the files; the caller's name is always its text.
    if (b.LedgerList.ListIndex() == -1)
        return;
    b.accountsBox.DeleteAllRows();
    b.transBox.DeleteAllRows();
    b.files.forgetUnreadFiles();
    const QString name = b.LedgerList.Text();
    b.files.load(b.accountsBox, name, Table::Accounts);
    b.files.load(b.transBox, name, Table::Transactions);
}

bool LedgerShelf::saveBooks()
{
    const QString path = bookListPath();
    QString content;
    for (int row = 0; row < books_.LedgerList.ListCount(); ++row) {
        content += books_.LedgerList.CellView(row, 0);
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
        tellFileProblem(u"Quillmark couldn't save the list of ledgers: %1.%2"_s.arg(
            problem.reason, problem.oldFileKept ? u" It stays as it was before this change."_s : QString()));
    return !problem.failed();
}

bool LedgerShelf::addLedger(const QString& typedName)
{
    const FileProblemGathering oneMessage;
    SummaryBooks& b = books_;
    const QString name = kLedgerPrefix + typedName;
    if (const QString problem = ledgerNameProblem(name, b.LedgerList, -1); !problem.isEmpty()) {
        MsgBox(problem);
        return false;
    }
    b.accountsBox.DeleteAllRows();
    b.transBox.DeleteAllRows();
    b.LedgerList.AddRow(name);
    b.LedgerList.SetRowPicture(b.LedgerList.LastIndex(), RowPicture::Book_Icon32);
    b.LedgerList.SetListIndex(b.LedgerList.LastIndex());
    return true;
}

void LedgerShelf::deleteLedger()
{
    const FileProblemGathering oneMessage;
    SummaryBooks& b = books_;
    if (b.LedgerList.ListIndex() == -1)
        return;
    if (!confirmDeletion(u"Are you sure you want to delete the Ledger and all of it's accounts and transactions?"_s))
        return;

    b.deletingOn = true;
    b.delLedger = true;
    b.accountsBox.DeleteAllRows();
    b.transBox.DeleteAllRows();
    b.files.remove(b.theLedger);
    b.LedgerList.RemoveRow(b.LedgerList.ListIndex());
    saveBooks();
    b.delLedger = false;
    b.deletingOn = false;
}
