#include "cli/CommandLine.h"

#include "books/AppFolders.h"
#include "books/LedgerNames.h"
#include "engine/AccountMaintenance.h"
#include "engine/RowLayouts.h"
#include "ledger/SummaryBooks.h"
#include "platform/BlockingServices.h"

#include <QCommandLineParser>
#include <QSignalBlocker>
#include <QTextStream>

#include <algorithm>
#include <map>

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
                      "  new-ledger NAME [--opening AMOUNT] [--notes TEXT]\n"
                      "                 Adds the ledger NAME as the \"+\" button does, then gives it its Base\n"
                      "                 Account \"Balance\" as the account dialog's OK does, with AMOUNT in the\n"
                      "                 amount field and TEXT in the notes (else the dialog's hint).\n"
                      "  add-account NAME ACCOUNT [--revenue] [--opening AMOUNT] [--notes TEXT]\n"
                      "                 Adds the account ACCOUNT to the ledger NAME as the account dialog's\n"
                      "                 OK does: an expense account unless --revenue is given.\n"
                      "  edit-account NAME ACCOUNT [--rename NEWNAME] [--opening AMOUNT] [--notes TEXT]\n"
                      "                 Edits the account ACCOUNT as the account dialog does: its fields as\n"
                      "                 they stand, the options typed over them, then OK. A renamed account\n"
                      "                 takes its transactions with it; its type never changes.\n"
                      "  delete-account NAME ACCOUNT\n"
                      "                 Deletes the account ACCOUNT and all of its transactions, as the\n"
                      "                 toolbar's Delete does once the deletion is confirmed.\n"
                      "\n"
                      "NAME is the ledger's name with or without its two leading blanks; case doesn't matter,\n"
                      "nor for ACCOUNT. An unknown ledger or account, or an input the window would refuse, is\n"
                      "reported on stderr with exit status 1, and nothing is written. So is a file that can't\n"
                      "be read or saved, with the system's reason; a file that couldn't be saved stays as it\n"
                      "was. A wrong command or option gives this text on stderr with exit status 2.\n"
                      "\n"
                      "Options:\n"
                      "  --data DIR     Use DIR as the application data folder (the folder that holds\n"
                      "                 \"Quillmark\"), instead of the user's own.\n"
                      "  -h, --help     Shows this text.\n"_s;

enum class Option { Revenue, Opening, Notes, Rename };

struct Verb {
    QString name;
    int words; // after the verb
    QList<Option> options;
};

const QList<Verb>& verbs()
{
    static const QList<Verb> all{
        {u"list"_s, 0, {}},
        {u"recalc"_s, 1, {}},
        {u"balances"_s, 1, {}},
        {u"new-ledger"_s, 1, {Option::Opening, Option::Notes}},
        {u"add-account"_s, 2, {Option::Revenue, Option::Opening, Option::Notes}},
        {u"edit-account"_s, 2, {Option::Rename, Option::Opening, Option::Notes}},
        {u"delete-account"_s, 2, {}},
    };
    return all;
}

int ledgerRow(const SummaryBooks& books, const QString& name)
{
    const QString wanted = withLedgerPrefix(name);
    for (int row = 0; row < books.LedgerList.ListCount(); ++row) {
        if (books.LedgerList.CellView(row, 0).compare(wanted, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

int accountRow(const SummaryBooks& books, const QString& name)
{
    for (int row = 0; row < books.accountsBox.ListCount(); ++row) {
        if (books.accountsBox.CellView(row, AccountCol::Name).compare(name, Qt::CaseInsensitive) == 0)
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

// The messages an operation shows; the command itself is the user's answer
// "Delete" to a confirmation.
class CommandLineServices {
public:
    CommandLineServices()
    {
        BlockingServiceHooks hooks;
        hooks.msgBox = [this](const QString& message) { shown << message; };
        hooks.messageDialog = [](const MessageDialog&) { return MessageDialog::Button::Action; };
        previous = installBlockingServices(hooks);
    }
    ~CommandLineServices() { installBlockingServices(previous); }
    CommandLineServices(const CommandLineServices&) = delete;
    CommandLineServices& operator=(const CommandLineServices&) = delete;

    QStringList shown;

private:
    BlockingServiceHooks previous;
};

int refused(QTextStream& err, const QString& problem)
{
    err << "quillmark-cli: " << problem << '\n';
    return 1;
}

} // namespace

namespace {

int runVerb(const QStringList& arguments, QTextStream& out, QTextStream& err, const CommandLineServices& services)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption dataOption(u"data"_s, u"application data folder"_s, u"DIR"_s);
    const QCommandLineOption helpOption(QStringList{u"h"_s, u"help"_s});
    const std::map<Option, QCommandLineOption> fieldOptions{
        {Option::Revenue, QCommandLineOption(u"revenue"_s)},
        {Option::Opening, QCommandLineOption(u"opening"_s, u"opening amount"_s, u"AMOUNT"_s)},
        {Option::Notes, QCommandLineOption(u"notes"_s, u"notes"_s, u"TEXT"_s)},
        {Option::Rename, QCommandLineOption(u"rename"_s, u"new name"_s, u"NEWNAME"_s)},
    };
    parser.addOption(dataOption);
    parser.addOption(helpOption);
    for (const auto& [_, option] : fieldOptions)
        parser.addOption(option);
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
    const auto verb = std::find_if(verbs().begin(), verbs().end(), [&](const Verb& v) { return v.name == command; });
    bool usable = verb != verbs().end() && words.size() == 1 + verb->words;
    for (const auto& [name, option] : fieldOptions)
        usable = usable && (!parser.isSet(option) || verb->options.contains(name));
    if (!usable) {
        err << kHelp;
        return 2;
    }
    auto typed = [&](Option option, const QString& otherwise) {
        return parser.isSet(fieldOptions.at(option)) ? parser.value(fieldOptions.at(option)) : otherwise;
    };

    const QString dataFolder = parser.isSet(dataOption) ? parser.value(dataOption) : AppFolders::applicationData();
    const bool adding = command == u"new-ledger";
    AccountFields base = baseAccountFields();
    base.opening = typed(Option::Opening, base.opening);
    base.notes = typed(Option::Notes, base.notes);
    // Checked first: a refused input leaves the data folder as it was.
    if (const QString problem = accountFieldsProblem(base); adding && !problem.isEmpty())
        return refused(err, problem);
    // The first ledger of a new data folder needs the folders the program's start makes.
    const QString booksFolder = adding ? AppFolders::makeFolders(dataFolder) : AppFolders::existingBooks(dataFolder);
    if (adding && booksFolder.isEmpty())
        return refused(err, u"the folder %1 can't be made"_s.arg(AppFolders::books(dataFolder)));
    SummaryBooks books(booksFolder);
    books.probeSeparator();

    if (command == u"list") {
        for (int row = 0; row < books.LedgerList.ListCount(); ++row)
            out << books.LedgerList.CellView(row, 0) << '\n';
        return 0;
    }

    if (adding) {
        if (!books.addLedger(words[1]))
            return 1; // its message is told with the others
        // A ledger whose files were left behind opens with accounts; one is
        // recalculated, the other gets its Base Account.
        const bool hasAccounts = books.accountsBox.ListCount() > 0;
        if (hasAccounts)
            books.calcAll();
        books.saveBooks();
        if (!hasAccounts)
            books.saveAccount(base, true, -1, {});
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
    if (command == u"balances") {
        for (int r = 0; r < books.accountsBox.ListCount(); ++r) {
            out << books.accountsBox.CellView(r, AccountCol::Name) << '\t'
                << books.accountsBox.CellView(r, AccountCol::Type) << '\t'
                << books.accountsBox.CellView(r, AccountCol::Balance) << '\n';
        }
        return 0;
    }

    if (command == u"add-account") {
        const AccountFields fields{words[2], parser.isSet(fieldOptions.at(Option::Revenue)) ? u"Revenue"_s : u"Expense"_s,
                                   typed(Option::Opening, {}), typed(Option::Notes, {})};
        if (const QString problem = books.saveAccount(fields, true, -1, {}); !problem.isEmpty())
            return refused(err, problem);
        return 0;
    }

    const int account = accountRow(books, words[2]);
    if (account < 0)
        return refused(err, u"there is no account named \"%1\" in the ledger \"%2\""_s.arg(words[2], books.theLedger));
    books.accountsBox.SetListIndex(account);
    if (command == u"edit-account") {
        AccountFields fields = accountFieldsOf(books.accountsBox, account);
        const QString oldName = fields.name;
        fields.name = typed(Option::Rename, fields.name);
        fields.opening = typed(Option::Opening, fields.opening);
        fields.notes = typed(Option::Notes, fields.notes);
        // Typing a name, even the same one, makes the dialog check it.
        const bool nameTyped = parser.isSet(fieldOptions.at(Option::Rename));
        if (const QString problem = books.saveAccount(fields, nameTyped, account, oldName); !problem.isEmpty())
            return refused(err, problem);
        return 0;
    }
    // delete-account: a refusal is a message
    books.deleteSelectedAccount();
    return services.shown.isEmpty() ? 0 : 1;
}

} // namespace

int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const CommandLineServices services;
    int status = runVerb(arguments, out, err, services);
    // What the windows would show (a refusal, a file that couldn't be read or
    // saved) goes to stderr, and the command has failed.
    for (const QString& message : services.shown)
        err << "quillmark-cli: " << QString(message).replace(u"\n\n"_s, u"\nquillmark-cli: "_s) << '\n';
    if (status == 0 && !services.shown.isEmpty())
        status = 1;
    return status;
}
