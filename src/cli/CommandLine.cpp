#include "cli/CommandLine.h"

#include "books/AppFolders.h"
#include "books/LedgerNames.h"
#include "cli/Verbs.h"
#include "platform/BlockingServices.h"
#include "platform/Clock.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString kHelp = u"Usage: quillmark-cli [--data DIR] [--today YYYY-MM-DD] COMMAND\n"
                      "\n"
                      "Works on the ledgers of Quillmark without opening a window, through the same\n"
                      "calls as the windows. Every command but list and new-ledger opens its ledger as\n"
                      "a click on it does, which posts the repeating transactions that are due.\n"
                      "\n"
                      "Commands:\n"
                      "  list           Prints the name of every ledger in the ledger list, one a line.\n"
                      "  recalc NAME    Recalculates every account and the Base Account from the\n"
                      "                 transactions (reconciled or not) and stores both files.\n"
                      "  balances NAME  Prints each account, in table order: name, type and balance as\n"
                      "                 stored, tab-separated, one account a line. Writes nothing.\n"
                      "  transactions NAME\n"
                      "                 Prints each transaction: its number ROW, counted from 1, then its\n"
                      "                 eleven cells after the first, tab-separated. Writes nothing.\n"
                      "  repeats NAME   Stores both files as they are once opened, as closing the window\n"
                      "                 does, without recalculating.\n"
                      "  add NAME OPTIONS [--gst]\n"
                      "                 The transaction dialog on a new transaction, then OK (or, with\n"
                      "                 --gst, the GST button).\n"
                      "  edit NAME ROW [OPTIONS]\n"
                      "                 The dialog opened on transaction ROW, the options typed over it,\n"
                      "                 then OK.\n"
                      "  gst NAME ROW [OPTIONS]\n"
                      "                 The same, then the GST button (give --adjust: editing leaves the\n"
                      "                 adjustment empty).\n"
                      "  find NAME TEXT Selects the transactions that hold TEXT in any cell, hidden ones\n"
                      "                 included, ignoring case; prints them as transactions does. Writes\n"
                      "                 nothing.\n"
                      "  delete NAME ROW...\n"
                      "                 Selects those transactions and deletes them as the delete button\n"
                      "                 does once the deletion is confirmed.\n"
                      "  reconcile NAME ROW... [--off]\n"
                      "                 A click on each row's reconcile box, so that it is checked (cleared\n"
                      "                 with --off); only the transactions are stored.\n"
                      "  balances NAME --reconciled\n"
                      "                 Turns reconcile mode on and recalculates, storing the figures of\n"
                      "                 the reconciled transactions only, then prints them.\n"
                      "  transfer NAME --from A --to B --amount X [--date YYYY-MM-DD]\n"
                      "                 The transfer window's OK: X from account A to account B. Neither\n"
                      "                 may be the Base Account or both the same account; X must be above 0.\n"
                      "  chart NAME --kind bar|pie --out FILE.png [--size WxH]\n"
                      "                 Draws the chart window's chart as a PNG picture of the canvas, 553 by\n"
                      "                 432 pixels unless --size says otherwise (1 to 10000 each way): bar,\n"
                      "                 the accounts' transaction totals; pie, their opening amounts. For the\n"
                      "                 pie it prints each legend line: the account's row, its colour as\n"
                      "                 #RRGGBB and its name, tab-separated; or the window's notice when no\n"
                      "                 account has an opening amount. Writes nothing else.\n"
                      "  report NAME [--month M | --year Y | --show-year] [--pdf FILE]\n"
                      "                 The ledger report window as it opens on every month, or on month M\n"
                      "                 of every year (1 to 12; 0 is all), or with Y typed in its year field\n"
                      "                 and \"Show Year\" pressed, or \"Show Year\" pressed on the present\n"
                      "                 year. Prints each row of the report, its eight cells (the last the\n"
                      "                 hidden type word of an account's foot) tab-separated, or the line\n"
                      "                 \"No transactions found\". With --pdf it presses the print button\n"
                      "                 instead: the report, fitted to an A4 page, goes to the PDF FILE.\n"
                      "                 Writes nothing in the data folder.\n"
                      "  account NAME ACCOUNT [--from DAY] [--to DAY]\n"
                      "                 The transactions window of the account ACCOUNT (not the Base\n"
                      "                 Account): each line of its list, columns 0 to 9 tab-separated (8 is\n"
                      "                 the transaction's row in transBox, counted from 0), then \"Balance:\",\n"
                      "                 a tab and the balance label. With --from or --to (any date form the\n"
                      "                 program reads; the other stays today) the range is applied: the\n"
                      "                 lines strictly after the first day and before the second stay, and\n"
                      "                 the label shows their total. Writes nothing.\n"
                      "  print NAME --what accounts|transactions|both --pdf FILE\n"
                      "                 The Print/Save item of that name, printed on the default page (A4)\n"
                      "                 into the PDF FILE under the main window's title \"Quillmark\".\n"
                      "                 Writes nothing in the data folder.\n"
                      "  export NAME FILE\n"
                      "                 Writes every transaction to the CSV file FILE, as File > Export does:\n"
                      "                 the file gets \".csv\" after its name unless it ends so already.\n"
                      "  import NAME FILE --map MAP [--delimiter C|tab] [--skip N] [--skip-end M]\n"
                      "         [--duplicates keep|skip]\n"
                      "                 Appends the records of the delimited text FILE as transactions, all\n"
                      "                 or none, then recalculates and stores the ledger. MAP gives the\n"
                      "                 file's columns, counted from 1, comma-separated: account=N or\n"
                      "                 account=NAME (one account for every row), type=N (never read),\n"
                      "                 date=N, amount=N or debit=N,credit=N, description=N,\n"
                      "                 dates=ymd|dmy|mdy (ymd), decimal=auto|period|comma (auto); a key\n"
                      "                 left out is no column. The delimiter is \",\" unless given; the first\n"
                      "                 N records (1) and the last M (0) are skipped. A record that can't\n"
                      "                 be read refuses the whole import with \"line N: why\". Records the\n"
                      "                 ledger holds already (account, description, day and amount) refuse\n"
                      "                 it too, unless --duplicates says to keep or to skip them.\n"
                      "  new-ledger NAME [--opening AMOUNT] [--notes TEXT]\n"
                      "                 Adds the ledger NAME as the \"+\" button does, then gives it its Base\n"
                      "                 Account \"Balance\" as the account dialog's OK does, with AMOUNT in the\n"
                      "                 amount field and TEXT in the notes (else the dialog's hint).\n"
                      "  add-account NAME ACCOUNT [--revenue] [--opening AMOUNT] [--notes TEXT]\n"
                      "                 Adds the account ACCOUNT as the account dialog's OK does: an\n"
                      "                 expense account unless --revenue is given.\n"
                      "  edit-account NAME ACCOUNT [--rename NEWNAME] [--opening AMOUNT] [--notes TEXT]\n"
                      "                 Edits the account ACCOUNT as the account dialog does: its fields as\n"
                      "                 they stand, the options typed over them, then OK. A renamed account\n"
                      "                 takes its transactions with it; its type never changes.\n"
                      "  delete-account NAME ACCOUNT\n"
                      "                 Deletes the account ACCOUNT and all of its transactions, as the\n"
                      "                 toolbar's Delete does once the deletion is confirmed.\n"
                      "\n"
                      "OPTIONS of the transaction dialog, applied in this order whatever order they are\n"
                      "given in:\n"
                      "  --account A    the account of the menu named A (its type sets Deposit/Withdrawal)\n"
                      "  --amount X     --deposit or --withdrawal (a click on it)     --adjust Y\n"
                      "  --description T     --invoice I     --memo M\n"
                      "  --repeat never|monthly|annually     --date YYYY-MM-DD (else the day of --today)\n"
                      "\n"
                      "NAME is the ledger's name with or without its two leading blanks, ACCOUNT an account's;\n"
                      "case doesn't matter. ROW counts the transactions from 1, as transactions prints them;\n"
                      "one ROW out of range refuses the whole list. An unknown ledger, account or ROW, an input\n"
                      "the window would refuse (OK or the GST button not to be pressed, a transfer's Base\n"
                      "Account, same account or amount not above 0), or a file that can't be read or saved is\n"
                      "reported on stderr with exit status 1; a refused input writes nothing, and a file that\n"
                      "couldn't be saved stays as it was. A wrong command or option gives this text on stderr\n"
                      "with exit status 2.\n"
                      "\n"
                      "Options:\n"
                      "  --data DIR     Use DIR as the application data folder (the folder that holds\n"
                      "                 \"Quillmark\"), instead of the user's own.\n"
                      "  --today DAY    Take DAY, at noon, as the present: for the repeats and the date a\n"
                      "                 new transaction starts on.\n"
                      "  -h, --help     Shows this text.\n"_s;

const QStringList kTransactionOptions{u"account"_s, u"amount"_s, u"deposit"_s, u"withdrawal"_s, u"adjust"_s,
                                      u"description"_s, u"invoice"_s, u"memo"_s, u"repeat"_s, u"date"_s};

struct Verb {
    QString name;
    int words; // after the verb; -n: n or more
    QStringList options;
    int (*run)(const Invocation&);
};

const QList<Verb>& verbs()
{
    static const QList<Verb> all{
        {u"list"_s, 0, {}, &listLedgers},
        {u"recalc"_s, 1, {}, &recalcLedger},
        {u"balances"_s, 1, {u"reconciled"_s}, &printBalances},
        {u"transactions"_s, 1, {}, &printTransactions},
        {u"repeats"_s, 1, {}, &storeRepeats},
        {u"add"_s, 1, kTransactionOptions + QStringList{u"gst"_s}, &addTransactionVerb},
        {u"edit"_s, 2, kTransactionOptions, &editTransactionVerb},
        {u"gst"_s, 2, kTransactionOptions, &gstVerb},
        {u"new-ledger"_s, 1, {u"opening"_s, u"notes"_s}, &newLedger},
        {u"add-account"_s, 2, {u"revenue"_s, u"opening"_s, u"notes"_s}, &addAccountVerb},
        {u"edit-account"_s, 2, {u"rename"_s, u"opening"_s, u"notes"_s}, &editAccountVerb},
        {u"delete-account"_s, 2, {}, &deleteAccountVerb},
        {u"find"_s, 2, {}, &findVerb},
        {u"delete"_s, -2, {}, &deleteTransactionsVerb},
        {u"reconcile"_s, -2, {u"off"_s}, &reconcileVerb},
        {u"transfer"_s, 1, {u"from"_s, u"to"_s, u"amount"_s, u"date"_s}, &transferVerb},
        {u"chart"_s, 1, {u"kind"_s, u"out"_s, u"size"_s}, &chartVerb},
        {u"report"_s, 1, {u"month"_s, u"year"_s, u"show-year"_s, u"pdf"_s}, &reportVerb},
        {u"account"_s, 2, {u"from"_s, u"to"_s}, &accountListVerb},
        {u"print"_s, 1, {u"what"_s, u"pdf"_s}, &printVerb},
        {u"export"_s, 2, {}, &exportVerb},
        {u"import"_s, 2, {u"map"_s, u"delimiter"_s, u"skip"_s, u"skip-end"_s, u"duplicates"_s}, &importVerb},
    };
    return all;
}

QList<QCommandLineOption> allOptions()
{
    QList<QCommandLineOption> options{
        QCommandLineOption(u"data"_s, u"application data folder"_s, u"DIR"_s),
        QCommandLineOption(u"today"_s, u"the present day"_s, u"YYYY-MM-DD"_s),
        QCommandLineOption(QStringList{u"h"_s, u"help"_s}),
    };
    for (const QString& flag : {u"revenue"_s, u"deposit"_s, u"withdrawal"_s, u"gst"_s, u"off"_s, u"reconciled"_s, u"show-year"_s})
        options << QCommandLineOption(flag);
    for (const QString& valued : {u"opening"_s, u"notes"_s, u"rename"_s, u"account"_s, u"amount"_s, u"adjust"_s,
                                  u"description"_s, u"invoice"_s, u"memo"_s, u"repeat"_s, u"date"_s, u"from"_s,
                                  u"to"_s, u"kind"_s, u"out"_s, u"size"_s, u"month"_s, u"year"_s, u"pdf"_s, u"what"_s, u"map"_s, u"delimiter"_s, u"skip"_s,
                                  u"skip-end"_s, u"duplicates"_s})
        options << QCommandLineOption(valued, valued, u"TEXT"_s);
    return options;
}

// A day written YYYY-MM-DD that is a real one.
bool isDay(const QString& text)
{
    static const QRegularExpression form(u"^\\d{4}-\\d{2}-\\d{2}$"_s);
    return form.match(text).hasMatch() && QDate::fromString(text, u"yyyy-MM-dd"_s).isValid();
}

// What makes the words and options of a verb unusable, or "" when they are fine.
bool usable(const QCommandLineParser& parser, const Verb& verb, const QStringList& words)
{
    if (verb.words >= 0 ? words.size() != 1 + verb.words : words.size() < 1 - verb.words)
        return false;
    for (const QCommandLineOption& option : allOptions()) {
        const QString name = option.names().constLast();
        const bool everywhere = name == u"data" || name == u"today" || name == u"help";
        if (parser.isSet(name) && !everywhere && !verb.options.contains(name))
            return false;
    }
    if (parser.isSet(u"deposit"_s) && parser.isSet(u"withdrawal"_s))
        return false;
    if (parser.isSet(u"repeat"_s)) {
        const QString word = parser.value(u"repeat"_s);
        if (!std::any_of(kRepeatWords.begin(), kRepeatWords.end(),
                         [&](const QString& w) { return w.compare(word, Qt::CaseInsensitive) == 0; }))
            return false;
    }
    for (const QString& day : {u"date"_s, u"today"_s})
        if (parser.isSet(day) && !isDay(parser.value(day)))
            return false;
    // ROW, after the ledger's name of edit, gst, delete and reconcile, is a whole number.
    const bool rows = verb.name == u"edit" || verb.name == u"gst" || verb.name == u"delete" || verb.name == u"reconcile";
    for (qsizetype word = 2; rows && word < words.size(); ++word) {
        bool number = false;
        words[word].toInt(&number);
        if (!number)
            return false;
    }
    // A transfer names both its accounts and its amount.
    if (verb.name == u"transfer" && !(parser.isSet(u"from"_s) && parser.isSet(u"to"_s) && parser.isSet(u"amount"_s)))
        return false;
    if (verb.name == u"chart" && !chartOptionsUsable(parser))
        return false;
    if (verb.name == u"report" && !reportOptionsUsable(parser))
        return false;
    if (verb.name == u"account" && !accountOptionsUsable(parser))
        return false;
    if (verb.name == u"print" && !printOptionsUsable(parser))
        return false;
    if (verb.name == u"import" && !importOptionsUsable(parser))
        return false;
    return true;
}

// What the windows would show goes to the command's caller; the command itself
// is the user's "Delete" to a confirmation.
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

// The present the command takes: the system's, or noon of the day given.
class CommandLineClock {
public:
    explicit CommandLineClock(const QCommandLineParser& parser)
    {
        if (!parser.isSet(u"today"_s))
            return;
        const QDateTime noon(QDate::fromString(parser.value(u"today"_s), u"yyyy-MM-dd"_s), QTime(12, 0));
        previous = Clock::install([noon] { return noon; });
        installed = true;
    }
    ~CommandLineClock()
    {
        if (installed)
            Clock::install(previous);
    }
    CommandLineClock(const CommandLineClock&) = delete;
    CommandLineClock& operator=(const CommandLineClock&) = delete;

private:
    std::function<QDateTime()> previous;
    bool installed = false;
};

int runVerb(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions(allOptions());
    if (!parser.parse(arguments)) {
        err << parser.errorText() << "\n\n" << kHelp;
        return 2;
    }
    if (parser.isSet(u"help"_s)) {
        out << kHelp;
        return 0;
    }
    const QStringList words = parser.positionalArguments();
    const auto verb = std::find_if(verbs().begin(), verbs().end(),
                                   [&](const Verb& v) { return v.name == words.value(0); });
    if (verb == verbs().end() || !usable(parser, *verb, words)) {
        err << kHelp;
        return 2;
    }
    const CommandLineClock clock(parser);
    const QString dataFolder = parser.isSet(u"data"_s) ? parser.value(u"data"_s) : AppFolders::applicationData();
    return verb->run(Invocation{parser, words, dataFolder, out, err});
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

} // namespace

int refused(const Invocation& call, const QString& problem)
{
    call.err << "quillmark-cli: " << problem << '\n';
    return 1;
}

OpenLedger::OpenLedger(const Invocation& call)
    : books(AppFolders::existingBooks(call.dataFolder))
{
    books.probeSeparator();
    const int row = ledgerRow(books, call.words[1]);
    if (row < 0) {
        refused(call, u"there is no ledger named \"%1\" in %2/BookList"_s.arg(call.words[1],
                                                                                 AppFolders::quillmark(call.dataFolder)));
        return;
    }
    books.LedgerList.SetListIndex(row);
    open = true;
}

int transactionRow(const Invocation& call, const SummaryBooks& books, const QString& row)
{
    const int index = row.toInt() - 1;
    if (index < 0 || index >= books.transBox.ListCount()) {
        refused(call, u"there is no transaction %1 in the ledger \"%2\""_s.arg(row, books.theLedger));
        return -1;
    }
    return index;
}

int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const CommandLineServices services;
    int status = runVerb(arguments, out, err);
    // What the windows would show (a refusal, a file that couldn't be read or
    // saved) goes to stderr, and the command has failed.
    for (const QString& message : services.shown)
        err << "quillmark-cli: " << QString(message).replace(u"\n\n"_s, u"\nquillmark-cli: "_s) << '\n';
    if (status == 0 && !services.shown.isEmpty())
        status = 1;
    return status;
}
