#include "ledger/LedgerFiles.h"

#include "books/LedgerNames.h"
#include "platform/FileProblems.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString kindName(LedgerFiles::Table kind)
{
    return kind == LedgerFiles::Table::Accounts ? u"AccountData"_s : u"TransData"_s;
}

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

LedgerFiles::LedgerFiles(const QString& programDataFolder)
{
    manager.ProgramDataFolder = programDataFolder;
}

QString LedgerFiles::fileName(const QString& ledger, Table kind)
{
    return ledger + kindName(kind);
}

void LedgerFiles::load(Listbox& table, const QString& ledger, Table kind)
{
    const FileProblem problem = manager.loadListBox(table, fileName(ledger, kind));
    if (!problem.failed())
        return;
    if (!unread_.contains(kindName(kind)))
        unread_ << kindName(kind);
    tellFileProblem(u"Quillmark couldn't open the ledger \"%1\": %2."_s.arg(shownName(ledger), problem.reason));
}

bool LedgerFiles::store(const Listbox& table, const QString& ledger, Table kind)
{
    const FileProblem problem = unread_.contains(kindName(kind))
        ? FileProblem{u"its file couldn't be read when the ledger was opened, so it isn't written over"_s}
        : manager.saveListBox(table, fileName(ledger, kind));
    if (problem.failed())
        tellFileProblem(u"Quillmark couldn't save the ledger \"%1\": %2.%3"_s.arg(shownName(ledger), problem.reason,
                                                                                 keptNote(problem)));
    return !problem.failed();
}

bool LedgerFiles::storeBoth(const Listbox& accounts, const Listbox& transactions, const QString& ledger)
{
    const FileProblemGathering oneMessage;
    const bool accountsStored = store(accounts, ledger, Table::Accounts);
    return store(transactions, ledger, Table::Transactions) && accountsStored;
}

bool LedgerFiles::exist(const QString& ledger) const
{
    if (manager.ProgramDataFolder.isEmpty())
        return false;
    const QDir folder(manager.ProgramDataFolder);
    return folder.exists(fileName(ledger, Table::Accounts)) || folder.exists(fileName(ledger, Table::Transactions));
}

void LedgerFiles::remove(const QString& ledger)
{
    for (const Table kind : {Table::Accounts, Table::Transactions}) {
        const QString path = bookFilePath(manager.ProgramDataFolder, fileName(ledger, kind)).path;
        if (!path.isEmpty())
            QFile::remove(path);
    }
}

bool LedgerFiles::rename(const Listbox& accounts, const Listbox& transactions, const QString& from,
                         const QString& to, const std::function<bool()>& saveList)
{
    bool saved = true;
    if (transactions.ListCount() > 0)
        saved = store(transactions, to, Table::Transactions) && saved;
    if (accounts.ListCount() > 0)
        saved = store(accounts, to, Table::Accounts) && saved;
    const bool listSaved = saveList();
    if (to.compare(from, Qt::CaseInsensitive) == 0)
        return true;
    if (saved && listSaved) {
        remove(from);
        return true;
    }
    remove(to);
    return false;
}
