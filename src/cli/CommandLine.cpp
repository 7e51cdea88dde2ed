#include "cli/CommandLine.h"

#include "books/AppFolders.h"
#include "books/LedgerNames.h"
#include "cli/VerbTable.h"
#include "platform/BlockingServices.h"
#include "platform/Clock.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// The help: this head, each verb's usage and summary from the table, this foot.
const QString kHelpHead = u"Usage: quillmark-cli [--data DIR] [--today YYYY-MM-DD] COMMAND\n"
                          "\n"
                          "Works on the ledgers of Quillmark without opening a window, through the same\n"
                          "calls as the windows. Every command but list and new-ledger opens its ledger as\n"
                          "a click on it does, which posts the repeating transactions that are due.\n"
                          "\n"
                      "Commands:\n"_s;

// What holds for every verb, and the options of the transaction dialog.
const QString kHelpFoot = u"\n"
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


// Where the summaries of the verbs start, in the help.
constexpr qsizetype kSummaryColumn = 17;

// The head, each entry's usage and summary in the table's order, the foot. The
// summary starts on the usage's line when there is room for it, else below.
QString helpText()
{
    const QString indent(kSummaryColumn, u' ');
    QString text = kHelpHead;
    for (const Verb& verb : verbs()) {
        text += u"  "_s + QString(verb.usage).replace(u"\n"_s, u"\n  "_s);
        if (!verb.usage.contains(u'\n') && 2 + verb.usage.size() < kSummaryColumn)
            text += QString(kSummaryColumn - 2 - verb.usage.size(), u' ');
        else
            text += u'\n' + indent;
        text += QString(verb.summary).replace(u"\n"_s, u'\n' + indent) + u'\n';
    }
    return text + kHelpFoot;
}

// The options of any command, then those of every verb.
QList<QCommandLineOption> allOptions()
{
    QList<QCommandLineOption> options{
        QCommandLineOption(u"data"_s, u"application data folder"_s, u"DIR"_s),
        QCommandLineOption(u"today"_s, u"the present day"_s, u"YYYY-MM-DD"_s),
        QCommandLineOption(QStringList{u"h"_s, u"help"_s}),
    };
    // Verbs share options (--amount, --date ...): each is added once, and a
    // name is a flag for every verb or takes a value for every verb.
    QStringList flags;
    QStringList values;
    for (const Verb& verb : verbs()) {
        for (const QString& flag : verb.flags) {
            Q_ASSERT(!values.contains(flag));
            if (!flags.contains(flag))
                options << QCommandLineOption(flag);
            flags << flag;
        }
        for (const QString& valued : verb.values) {
            Q_ASSERT(!flags.contains(valued));
            if (!values.contains(valued))
                options << QCommandLineOption(valued, valued, u"TEXT"_s);
            values << valued;
        }
    }
    return options;
}

// A day written YYYY-MM-DD that is a real one.
bool isDay(const QString& text)
{
    static const QRegularExpression form(u"^\\d{4}-\\d{2}-\\d{2}$"_s);
    return form.match(text).hasMatch() && QDate::fromString(text, u"yyyy-MM-dd"_s).isValid();
}

// Whether the words and options of a command fit an entry: as many words as
// it takes, only its options (and those of any command), a real day for any
// --date or --today, and its own checks.
bool fits(const QCommandLineParser& parser, const Verb& verb, const QStringList& words)
{
    if (verb.words >= 0 ? words.size() != 1 + verb.words : words.size() < 1 - verb.words)
        return false;
    for (const QCommandLineOption& option : allOptions()) {
        const QString name = option.names().constLast();
        const bool everywhere = name == u"data" || name == u"today" || name == u"help";
        if (parser.isSet(name) && !everywhere && !verb.flags.contains(name) && !verb.values.contains(name))
            return false;
    }
    for (const QString& day : {u"date"_s, u"today"_s})
        if (parser.isSet(day) && !isDay(parser.value(day)))
            return false;
    return !verb.checks || verb.checks(parser, words);
}

// The first entry of the command's verb that its words and options fit;
// nullptr for an unknown verb or a usage error.
const Verb* entryFor(const QCommandLineParser& parser, const QStringList& words)
{
    for (const Verb& verb : verbs())
        if (verb.name == words.value(0) && fits(parser, verb, words))
            return &verb;
    return nullptr;
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

int ledgerRow(const SummaryBooks& books, const QString& name)
{
    const QString wanted = withLedgerPrefix(name);
    for (int row = 0; row < books.LedgerList.ListCount(); ++row) {
        if (books.LedgerList.CellView(row, 0).compare(wanted, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

// Opens the ledger named by the verb's first word, as a click on its row opens
// it (its repeat pass included); false, the refusal printed, when there is none.
bool openLedger(const Invocation& call, SummaryBooks& books)
{
    books.probeSeparator();
    const int row = ledgerRow(books, call.words[1]);
    if (row < 0) {
        refused(call, u"there is no ledger named \"%1\" in %2/BookList"_s.arg(call.words[1],
                                                                                 AppFolders::quillmark(call.dataFolder)));
        return false;
    }
    books.LedgerList.SetListIndex(row);
    return true;
}

// quillmark-draw: beside this program in the build, in its own folder of
// programs for programs once installed.
QString drawingProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString& path : {folder + u"/quillmark-draw"_s, folder + u"/" QUILLMARK_DRAW_FROM_BIN "/quillmark-draw"_s})
        if (QFileInfo(path).isExecutable())
            return path;
    return {};
}

// Runs the command, as it was given, in quillmark-draw; returns only when that can't be done.
int handOverToDrawing(const QStringList& arguments, QTextStream& err)
{
    const QString program = drawingProgram();
    if (program.isEmpty()) {
        err << "quillmark-cli: quillmark-draw, which draws, isn't where it was installed\n";
        return 1;
    }
    std::vector<QByteArray> bytes;
    for (const QString& argument : arguments)
        bytes.push_back(QFile::encodeName(argument));
    std::vector<char*> argv;
    for (QByteArray& argument : bytes)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    ::execv(QFile::encodeName(program).constData(), argv.data());
    err << "quillmark-cli: couldn't run " << program << ": " << QString::fromLocal8Bit(std::strerror(errno)) << '\n';
    return 1;
}

int runVerb(const QStringList& arguments, QTextStream& out, QTextStream& err, const DrawingVerbs& drawing)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions(allOptions());
    if (!parser.parse(arguments)) {
        err << parser.errorText() << "\n\n" << helpText();
        return 2;
    }
    if (parser.isSet(u"help"_s)) {
        out << helpText();
        return 0;
    }
    const QStringList words = parser.positionalArguments();
    const Verb* verb = entryFor(parser, words);
    if (verb == nullptr) {
        err << helpText();
        return 2;
    }
    const CommandLineClock clock(parser);
    if (verb->draws && !drawing.contains(verb->name))
        return handOverToDrawing(arguments, err);
    const QString dataFolder = parser.isSet(u"data"_s) ? parser.value(u"data"_s) : AppFolders::applicationData();
    const Invocation call{parser, words, dataFolder, out, err};
    if (!verb->opensLedger())
        return verb->withoutLedger(call);
    SummaryBooks books(AppFolders::existingBooks(dataFolder));
    if (!openLedger(call, books))
        return 1;
    return verb->draws ? drawing.value(verb->name)(call, books) : verb->onLedger(call, books);
}

} // namespace

int refused(const Invocation& call, const QString& problem)
{
    call.err << "quillmark-cli: " << problem << '\n';
    return 1;
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

int runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err, const DrawingVerbs& drawing)
{
    const CommandLineServices services;
    int status = runVerb(arguments, out, err, drawing);
    // What the windows would show (a refusal, a file that couldn't be read or
    // saved) goes to stderr, and the command has failed.
    for (const QString& message : services.shown)
        err << "quillmark-cli: " << QString(message).replace(u"\n\n"_s, u"\nquillmark-cli: "_s) << '\n';
    if (status == 0 && !services.shown.isEmpty())
        status = 1;
    return status;
}
