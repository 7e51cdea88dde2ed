#include "cli/CommandLine.h"

#include "books/AppFolders.h"
#include "books/LedgerNames.h"
#include "ledger/SummaryBooks.h"
#include "engine/RowLayouts.h"

#include <QCommandLineParser>
#include <QSignalBlocker>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

const QString kHelp = u"Usage: quillmark-cli [--data DIR] COMMAND\n"
                      "\n"
                      "Works on the ledgers of Quillmark without opening a window.\n"
                      "\n"
                      "Commands:\n"
                      "  list           Prints the name of every ledger in the ledger list, one a line.\n"
                      "  recalc NAME    Opens the ledger NAME as the main window does, recalculates every\n"
                      "                 account and the Base Account from the transactions (reconciled or\n"
                      "                 not), and stores both of its files. Nothing else is written.\n"
                      "  balances NAME  Prints each account of the ledger NAME, in table order: name, type\n"
                      "                 and balance as stored, tab-separated, one account a line.\n"
                      "\n"
                      "NAME is the ledger's name with or without its two leading blanks; case doesn't matter.\n"
                      "An unknown ledger is reported on stderr with exit status 1, and nothing is written.\n"
                      "\n"
                      "Options:\n"
                      "  --data DIR     Use DIR as the application data folder (the folder that holds\n"
                      "                 \"Quillmark\"), instead of the user's own.\n"
                      "  -h, --help     Shows this text.\n"_s;

int ledgerRow(const SummaryBooks& books, const QString& name)
{
    const QString wanted = withLedgerPrefix(name);
    for (int row = 0; row < books.LedgerList.ListCount(); ++row) {
        if (books.LedgerList.CellView(row, 0).compare(wanted, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

// Selects the ledger without the events a click would fire, and opens it.
void openLedger(SummaryBooks& books, int row)
{
    {
        const QSignalBlocker quiet(books.LedgerList);
        books.LedgerList.SetListIndex(row);
    }
    books.openABook(books.LedgerList.Text());
    books.theLedger = books.LedgerList.Text();
    books.showStoredAmountsWithCommas();
}

} // namespace

int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption dataOption(u"data"_s, u"application data folder"_s, u"DIR"_s);
    const QCommandLineOption helpOption(QStringList{u"h"_s, u"help"_s});
    parser.addOption(dataOption);
    parser.addOption(helpOption);
    if (!parser.parse(arguments)) {
        err << parser.errorText() << "\n\n" << kHelp;
        return 2;
    }
    if (parser.isSet(helpOption)) {
        out << kHelp;
        return 0;
    }
    const QStringList words = parser.positionalArguments();
    const QString command = words.value(0);
    const bool needsName = command == u"recalc" || command == u"balances";
    if (!(command == u"list" && words.size() == 1) && !(needsName && words.size() == 2)) {
        err << kHelp;
        return 2;
    }

    const QString dataFolder = parser.isSet(dataOption) ? parser.value(dataOption) : AppFolders::applicationData();
    SummaryBooks books(AppFolders::existingBooks(dataFolder));
    books.probeSeparator();

    if (command == u"list") {
        for (int row = 0; row < books.LedgerList.ListCount(); ++row)
            out << books.LedgerList.CellView(row, 0) << '\n';
        return 0;
    }

    const int row = ledgerRow(books, words[1]);
    if (row < 0) {
        err << "quillmark-cli: there is no ledger named \"" << words[1] << "\" in "
            << AppFolders::quillmark(dataFolder) << "/BookList\n";
        return 1;
    }
    openLedger(books, row);
    if (command == u"recalc") {
        books.calcAll(); // a fresh window's reconcile box is off: every transaction counts
        return 0;
    }
    for (int r = 0; r < books.accountsBox.ListCount(); ++r) {
        out << books.accountsBox.CellView(r, AccountCol::Name) << '\t'
            << books.accountsBox.CellView(r, AccountCol::Type) << '\t'
            << books.accountsBox.CellView(r, AccountCol::Balance) << '\n';
    }
    return 0;
}
