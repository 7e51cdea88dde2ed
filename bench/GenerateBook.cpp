// Writes one made-up book in two forms, for timing Quillmark beside ledger-cli:
//     GenerateBook DATA_FOLDER TRANSACTIONS JOURNAL
// puts the ledger "  Bench" (200 accounts) into DATA_FOLDER/Quillmark, as the
// program saves it, and the same accounts and transactions into JOURNAL as a
// ledger-cli journal: each transaction moves its amount between its account and
// the Base Account, and each account opens with its opening balance. As in
// most books, one transaction in ten has a memo.
#include "books/AppFolders.h"
#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "engine/RowLayouts.h"
#include "reference/GeneratedLedger.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// ledger-cli reads a run of two blanks as the end of an account name.
QString journalAccount(QStringView name)
{
    return name.toString().simplified();
}

bool writeJournal(const QString& path, const Listbox& accounts, const Listbox& transactions)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QString base = journalAccount(accounts.CellView(0, AccountCol::Name));
    QByteArray text;
    for (int r = 1; r < accounts.ListCount(); ++r) {
        text += u"2009/12/31 Opening\n    %1  %2\n    %3\n\n"_s
                    .arg(journalAccount(accounts.CellView(r, AccountCol::Name)),
                         accounts.CellView(r, AccountCol::Opening), base)
                    .toUtf8();
    }
    for (int t = 0; t < transactions.ListCount(); ++t) {
        QString date = transactions.Cell(t, TransCol::Date);
        date.replace(u'-', u'/');
        text += u"%1 %2\n    %3  %4\n    %5\n\n"_s
                    .arg(date, transactions.CellView(t, TransCol::Description).trimmed(),
                         journalAccount(transactions.CellView(t, TransCol::Account)),
                         transactions.CellView(t, TransCol::Transaction), base)
                    .toUtf8();
        if (text.size() > (1 << 20)) {
            if (file.write(text) != text.size())
                return false;
            text.clear();
        }
    }
    return file.write(text) == text.size() && file.flush();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    bool ok = false;
    const int count = arguments.size() == 4 ? arguments[2].toInt(&ok) : 0;
    if (!ok || count < 0) {
        std::fputs("usage: GenerateBook DATA_FOLDER TRANSACTIONS JOURNAL\n", stderr);
        return 2;
    }
    const QString books = AppFolders::makeFolders(arguments[1]);
    if (books.isEmpty()) {
        std::fputs("the data folder can't be made\n", stderr);
        return 1;
    }
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    Listbox transactions(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
    generateLedger(accounts, transactions, LedgerShape{200, count, 11, false});
    for (int t = 0; t < count; ++t) {
        if (t % 10 != 0)
            transactions.SetCell(t, TransCol::Memo, u"");
    }
    ListboxManager manager;
    manager.ProgramDataFolder = books;
    QFile list(AppFolders::quillmark(arguments[1]) + u"/BookList"_s);
    if (manager.saveListBox(accounts, u"  BenchAccountData"_s).failed() ||
        manager.saveListBox(transactions, u"  BenchTransData"_s).failed() || !list.open(QIODevice::WriteOnly) ||
        list.write(QByteArray("  Bench\n")) != 8 || !list.flush()) {
        std::fputs("the book can't be written\n", stderr);
        return 1;
    }
    if (!writeJournal(arguments[3], accounts, transactions)) {
        std::fputs("the journal can't be written\n", stderr);
        return 1;
    }
    return 0;
}
