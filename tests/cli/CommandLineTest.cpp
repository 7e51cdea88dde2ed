#include "cli/CommandLine.h"
#include "support/DataFolder.h"
#include "support/FailingSaves.h"
#include "support/PdfReading.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTextStream>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct CliRun {
    int status = -1;
    QString out;
    QString err;
};

// Runs quillmark-cli as its own process, with no display of any kind; with a
// shell line, inside that shell ("$0" is the program, "$@" the arguments).
CliRun runCli(const QStringList& arguments, const QString& language = u"C.UTF-8"_s, const QString& shell = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(name);
    environment.insert(u"LC_ALL"_s, language);
    environment.insert(u"LANG"_s, language);
    process.setProcessEnvironment(environment);
    if (shell.isEmpty())
        process.start(QStringLiteral(QUILLMARK_CLI_PATH), arguments);
    else
        process.start(u"bash"_s, QStringList{u"-c"_s, shell, QStringLiteral(QUILLMARK_CLI_PATH)} + arguments);
    EXPECT_TRUE(process.waitForFinished(30000));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

class CommandLineTest : public ::testing::Test {
protected:
    CommandLineTest()
    {
        home.makeFolders();
        writeBytes(home.quillmark() + u"/BookList"_s, "  Shop\n  Home Ledger\n");
        writeBytes(book(u"  ShopAccountData"_s), "@#@Balance@#@asset@#@100.00@#@@#@@#@@#@\n"
                                                  "@#@Sales@#@Revenue@#@5,5@#@@#@@#@@#@\n"
                                                  "@#@Rent@#@Expense@#@@#@@#@@#@@#@\n");
        writeBytes(book(u"  ShopTransData"_s), "@#@sales@#@2014-03-09@#@Sale@#@@#@12.5@#@@#@12.50@#@@#@@#@false@#@Never@#@\n"
                                                "@#@Rent@#@2014-03-10@#@March@#@@#@-40@#@@#@-40,00@#@@#@@#@true@#@Monthly@#@\n");
    }

    QString book(const QString& name) const { return home.books() + u'/' + name; }
    // The data folder, on a day before the monthly row falls due.
    QStringList data() const { return {u"--data"_s, home.path(), u"--today"_s, u"2014-03-31"_s}; }

    TempDataHome home;
};

} // namespace

TEST_F(CommandLineTest, ListsTheLedgers)
{
    const CliRun run = runCli(data() << u"list"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, u"  Shop\n  Home Ledger\n");
}

TEST_F(CommandLineTest, RecalcStoresWhatTheCalculationStores)
{
    CliRun run = runCli(data() << u"recalc"_s << u"shop"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    const QByteArray accounts = "@#@Balance@#@Base Account@#@100.00@#@-27.5@#@72.5@#@@#@\n"
                                "@#@Sales@#@Revenue@#@5,5@#@12.5@#@18@#@@#@\n"
                                "@#@Rent@#@Expense@#@@#@-40@#@-40@#@@#@\n";
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)), accounts);
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)),
              QByteArray("@#@sales@#@2014-03-09@#@Sale@#@@#@12.5@#@@#@12.50@#@3477168000@#@@#@false@#@Never@#@\n"
                         "@#@Rent@#@2014-03-10@#@March@#@@#@-40@#@@#@-40,00@#@3477254400@#@@#@true@#@Monthly@#@\n"));

    run = runCli(data() << u"recalc"_s << u"  Shop"_s);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)), accounts) << "a second run stores the same";

    run = runCli(data() << u"balances"_s << u"Shop"_s);
    EXPECT_EQ(run.out, u"Balance\tBase Account\t72.5\nSales\tRevenue\t18\nRent\tExpense\t-40\n");
}

TEST_F(CommandLineTest, OpensWithCommasOnACommaSystem)
{
    const CliRun run = runCli(data() << u"recalc"_s << u"Shop"_s, u"de_DE.UTF-8"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    // Opening on a comma system shows the stored totals with commas before the
    // calculation stores them: "12.50" is stored as "12,50".
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).contains("@#@12,50@#@3477168000@#@"));
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)).left(56), QByteArray("@#@Balance@#@Base Account@#@100.00@#@-27.5@#@72.5@#@@#@\n"));
}

TEST_F(CommandLineTest, AnUnknownLedgerWritesNothing)
{
    const QByteArray accounts = readBytes(book(u"  ShopAccountData"_s));
    for (const QString& command : {u"recalc"_s, u"balances"_s}) {
        const CliRun run = runCli(data() << command << u"Garden"_s);
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(run.err.contains(u"no ledger named \"Garden\""_s)) << run.err.toStdString();
        EXPECT_EQ(run.out, u"");
    }
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)), accounts);
    EXPECT_EQ(QDir(home.books()).entryList(QDir::Files).size(), 2);

    EXPECT_EQ(runCli({u"--help"_s}).status, 0);
    EXPECT_TRUE(runCli({u"--help"_s}).out.contains(u"balances NAME"_s));
    EXPECT_EQ(runCli(data() << u"frobnicate"_s).status, 2);
    EXPECT_EQ(runCli({u"--data"_s, home.path() + u"/nowhere"_s, u"list"_s}).out, u"");
}

TEST_F(CommandLineTest, AccountVerbsDoWhatTheAccountDialogDoes)
{
    // A new ledger in a data folder that has none yet gets its Base Account.
    TempDataHome fresh;
    CliRun run = runCli(QStringList{u"--data"_s, fresh.path()} << u"new-ledger"_s << u"Garden"_s << u"--notes"_s
                                                               << u"@#@"_s);
    EXPECT_EQ(run.status, 1);
    EXPECT_FALSE(QDir(fresh.quillmark()).exists()) << "a refused input makes no folder either";
    run = runCli(QStringList{u"--data"_s, fresh.path()} << u"new-ledger"_s << u"Garden"_s << u"--opening"_s << u"250"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(readBytes(fresh.quillmark() + u"/BookList"_s), QByteArray("  Garden\n"));
    EXPECT_EQ(readBytes(fresh.books() + u"/  GardenAccountData"_s),
              QByteArray("999@#@Balance@#@@#@250@#@0@#@250@#@Enter your total available cash amount in the 'Amount' "
                         "field. (eg. bank balance, balance forward, annual operating budget, etc.) Enter '0' if an "
                         "initial balance is not needed. @#@\n"));

    run = runCli(data() << u"add-account"_s << u"Shop"_s << u"Tips"_s << u"--revenue"_s << u"--notes"_s << u"jar"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(book(u"  ShopAccountData"_s)).endsWith("999@#@Tips@#@Revenue@#@0.00@#@0@#@0@#@jar@#@\n"));

    // A rename takes the transactions along in any letter case; the type stays.
    run = runCli(data() << u"edit-account"_s << u"shop"_s << u"SALES"_s << u"--rename"_s << u"Takings"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(book(u"  ShopAccountData"_s)).contains("\n@#@Takings@#@Revenue@#@5,5@#@12.5@#@18@#@@#@\n"));
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).startsWith("@#@Takings@#@2014-03-09@#@Sale@#@"));

    run = runCli(data() << u"delete-account"_s << u"Shop"_s << u"rent"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(runCli(data() << u"balances"_s << u"Shop"_s).out,
              u"Balance\tBase Account\t112.5\nTakings\tRevenue\t18\nTips\tRevenue\t0\n");
    EXPECT_FALSE(readBytes(book(u"  ShopTransData"_s)).contains("Rent"));
}

TEST_F(CommandLineTest, RefusedAccountInputsWriteNothing)
{
    auto files = [this] {
        QMap<QString, QByteArray> all{{u"BookList"_s, readBytes(home.quillmark() + u"/BookList"_s)}};
        for (const QString& name : QDir(home.books()).entryList(QDir::Files))
            all.insert(name, readBytes(book(name)));
        return all;
    };
    const QMap<QString, QByteArray> before = files();
    const QList<std::pair<QStringList, QString>> refusals{
        {{u"add-account"_s, u"Shop"_s, u"rENT"_s}, u"That account name is already in use."_s},
        {{u"add-account"_s, u"Shop"_s, u"Tips@#@Jar"_s}, u"An account can't hold the text \"@#@\""_s},
        {{u"edit-account"_s, u"Shop"_s, u"Rent"_s, u"--rename"_s, u"rent"_s}, u"already in use"_s},
        {{u"edit-account"_s, u"Shop"_s, u"Rent"_s, u"--notes"_s, u"two\nlines"_s}, u"or a line break"_s},
        {{u"edit-account"_s, u"Shop"_s, u"Fuel"_s}, u"there is no account named \"Fuel\""_s},
        {{u"delete-account"_s, u"Shop"_s, u"balance"_s}, u"The Base Account cannot be deleted."_s},
        {{u"delete-account"_s, u"Garden"_s, u"Rent"_s}, u"there is no ledger named \"Garden\""_s},
        {{u"new-ledger"_s, u"shop"_s}, u"That ledger name is already in use."_s},
        {{u"new-ledger"_s, u"Garden"_s, u"--notes"_s, u"a@#@b"_s}, u"An account can't hold"_s},
    };
    for (const auto& [arguments, message] : refusals) {
        const CliRun run = runCli(data() << arguments);
        EXPECT_EQ(run.status, 1) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(run.err.startsWith(u"quillmark-cli: "_s) && run.err.contains(message))
            << arguments.join(u' ').toStdString() << ": " << run.err.toStdString();
        EXPECT_EQ(run.out, u"");
    }
    for (const QStringList& arguments : {QStringList{u"add-account"_s, u"Shop"_s, u"X"_s, u"--rename"_s, u"Y"_s},
                                         QStringList{u"delete-account"_s, u"Shop"_s, u"Rent"_s, u"--revenue"_s},
                                         QStringList{u"edit-account"_s, u"Shop"_s},
                                         QStringList{u"new-ledger"_s, u"Garden"_s, u"--revenue"_s}})
        EXPECT_EQ(runCli(data() << arguments).status, 2) << arguments.join(u' ').toStdString();
    EXPECT_EQ(files(), before);
}

TEST_F(CommandLineTest, AFileThatCantBeSavedIsPrintedWithExitOneAndStaysAsItWas)
{
    const QByteArray accounts = readBytes(book(u"  ShopAccountData"_s));
    const QByteArray transactions = readBytes(book(u"  ShopTransData"_s));
    // Every step of a save is tested failing for every kind of file with the
    // books; here, that the command line says so and fails.
    QString out;
    QString err;
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    int status = 0;
    {
        const FailingSaves failing(FailingSaves::Step::Rename);
        status = runCommandLine(QStringList{u"quillmark-cli"_s} << data() << u"recalc"_s << u"Shop"_s, outStream,
                                errStream);
    }
    errStream.flush();
    EXPECT_EQ(status, 1);
    EXPECT_EQ(err, u"quillmark-cli: Quillmark couldn't save the ledger \"Shop\": Invalid cross-device link. It stays as "
                   "it was before this change.\n");
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)), accounts);
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)), transactions);

    // The system itself refusing: a limit on the size of the files a process
    // writes, below the size of the transactions (no root needed for that).
    QByteArray many;
    for (int row = 0; row < 100; ++row)
        many += "@#@Sales@#@2014-03-09@#@Sale@#@@#@12.5@#@@#@12.50@#@@#@@#@false@#@Never@#@\n";
    writeBytes(book(u"  ShopTransData"_s), many);
    const CliRun run = runCli(data() << u"recalc"_s << u"Shop"_s, u"C.UTF-8"_s,
                              u"trap '' XFSZ; ulimit -f 2; exec \"$0\" \"$@\""_s);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, u"quillmark-cli: Quillmark couldn't save the ledger \"Shop\": File too large. It stays as it was "
                       "before this change.\n");
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)), many);
    EXPECT_EQ(QDir(home.books()).entryList(QDir::Files).size(), 2) << "nothing left beside the files";
}

TEST_F(CommandLineTest, TransactionVerbsDoWhatTheDialogDoes)
{
    const QByteArray accounts = readBytes(book(u"  ShopAccountData"_s));
    const QByteArray transactions = readBytes(book(u"  ShopTransData"_s));
    CliRun run = runCli(data() << u"transactions"_s << u"shop"_s);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, u"1\tsales\t2014-03-09\tSale\t\t12.5\t\t12.50\t\t\tfalse\tNever\n"
                       "2\tRent\t2014-03-10\tMarch\t\t-40\t\t-40,00\t\t\ttrue\tMonthly\n");
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)), transactions) << "printing writes nothing";
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)), accounts);

    // The options go in in the dialog's order, whatever order they come in.
    run = runCli(data() << u"add"_s << u"Shop"_s << u"--description"_s << u"Lease"_s << u"--repeat"_s << u"ANNUALLY"_s
                        << u"--amount"_s << u"100"_s << u"--account"_s << u"rent"_s << u"--adjust"_s << u"5"_s
                        << u"--date"_s << u"2014-03-20"_s << u"--invoice"_s << u"I9"_s << u"--memo"_s << u"M"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s))
                    .endsWith("\n@#@Rent@#@2014-03-20@#@Lease@#@I9@#@-100@#@5@#@-105.00@#@3478118400@#@M@#@@#@Annually@#@\n"));

    // Editing row 1 of the revenue account: Deposit by its type, the amount typed over.
    run = runCli(data() << u"edit"_s << u"Shop"_s << u"1"_s << u"--amount"_s << u"20"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).startsWith("@#@Sales@#@2014-03-09@#@Sale@#@@#@20@#@@#@20.00@#@"));

    // The GST button on row 2: the stored comma total becomes the amount.
    run = runCli(data() << u"gst"_s << u"Shop"_s << u"2"_s << u"--adjust"_s << u"3"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    run = runCli(data() << u"transactions"_s << u"Shop"_s);
    const QStringList lines = run.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[1].startsWith(u"2\tRent\t2014-03-10\tMarch\t\t-40.00\t3\t-43.00\t"));
    EXPECT_TRUE(lines[3].startsWith(u"4\tGST\t2014-03-10\tMarch\t\t\t\t\t3477254400\t")) << "no amounts";

    // Any text is stored as typed and counts by what Val reads of it; no other
    // row changes but for its seconds, which every calculation writes.
    auto rowsWithoutSeconds = [this] {
        QStringList rows = runCli(data() << u"transactions"_s << u"Shop"_s).out.split(u'\n', Qt::SkipEmptyParts);
        for (QString& row : rows) {
            QStringList cells = row.split(u'\t');
            cells.removeAt(8);
            row = cells.join(u'\t');
        }
        return rows;
    };
    const QStringList rowsBefore = rowsWithoutSeconds();
    run = runCli(data() << u"add"_s << u"Shop"_s << u"--account"_s << u"Rent"_s << u"--amount"_s << u"x1,5"_s
                        << u"--adjust"_s << u"\u00e9@"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(rowsWithoutSeconds(), rowsBefore + QStringList{u"%1\tRent\t2014-03-31\t\t\t-x1.5\t\u00e9@\t-0.00\t\t\tNever"_s.arg(
                                                 rowsBefore.size() + 1)});

    // The GST button needs no account.
    run = runCli(data() << u"add"_s << u"Shop"_s << u"--amount"_s << u"9"_s << u"--adjust"_s << u"1"_s << u"--gst"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).contains("\n@#@Select account@#@2014-03-31@#@@#@@#@-9@#@1@#@-10.00@#@"));
}

TEST_F(CommandLineTest, RepeatsStoresThePassOfTheOpeningOnly)
{
    const QByteArray accounts = readBytes(book(u"  ShopAccountData"_s));
    const CliRun run = runCli({u"--data"_s, home.path(), u"--today"_s, u"2014-06-01"_s, u"repeats"_s, u"Shop"_s});
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)),
              QByteArray("@#@sales@#@2014-03-09@#@Sale@#@@#@12.5@#@@#@12.50@#@@#@@#@false@#@Never@#@\n"
                         "@#@Rent@#@2014-03-10@#@March@#@@#@-40@#@@#@-40,00@#@@#@@#@true@#@never@#@\n"
                         "@#@Rent@#@2014-04-10@#@March@#@@#@-40@#@@#@-40,00@#@@#@@#@true@#@Monthly@#@\n"))
        << "one step, and no calculation";
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)), accounts);
}

TEST_F(CommandLineTest, RefusedTransactionInputsWriteNothing)
{
    auto files = [this] {
        return std::pair{readBytes(book(u"  ShopAccountData"_s)), readBytes(book(u"  ShopTransData"_s))};
    };
    const auto before = files();
    const QList<QStringList> refusals{
        {u"add"_s, u"Garden"_s, u"--account"_s, u"Rent"_s, u"--amount"_s, u"1"_s},
        {u"add"_s, u"Shop"_s, u"--account"_s, u"Balance"_s, u"--amount"_s, u"1"_s}, // not in the menu
        {u"add"_s, u"Shop"_s, u"--account"_s, u"Rent"_s},                           // no amount: no OK
        {u"add"_s, u"Shop"_s, u"--amount"_s, u"1"_s},                                 // no account: no OK
        {u"add"_s, u"Shop"_s, u"--account"_s, u"Rent"_s, u"--amount"_s, u"1"_s, u"--gst"_s}, // no adjustment
        {u"add"_s, u"Shop"_s, u"--amount"_s, u"1"_s, u"--adjust"_s, u"1"_s, u"--deposit"_s, u"--gst"_s},
        {u"edit"_s, u"Shop"_s, u"0"_s},
        {u"edit"_s, u"Shop"_s, u"3"_s},
        {u"gst"_s, u"Shop"_s, u"2"_s}, // editing leaves the adjustment empty
    };
    for (const QStringList& arguments : refusals) {
        const CliRun run = runCli(data() << arguments);
        EXPECT_EQ(run.status, 1) << arguments.join(u' ').toStdString();
        EXPECT_EQ(run.err.count(u'\n'), 1) << arguments.join(u' ').toStdString() << ": " << run.err.toStdString();
    }
    const QList<QStringList> misuses{
        {u"post"_s, u"Shop"_s},
        {u"add"_s, u"Shop"_s, u"--colour"_s, u"red"_s},
        {u"add"_s, u"Shop"_s, u"--deposit"_s, u"--withdrawal"_s},
        {u"add"_s, u"Shop"_s, u"--repeat"_s, u"weekly"_s},
        {u"add"_s, u"Shop"_s, u"--date"_s, u"2014-02-30"_s},
        {u"add"_s, u"Shop"_s, u"--date"_s, u"30.3.2014"_s},
        {u"edit"_s, u"Shop"_s, u"first"_s},
        {u"transactions"_s, u"Shop"_s, u"--amount"_s, u"5"_s},
        {u"--today"_s, u"2014-13-01"_s, u"list"_s},
    };
    for (const QStringList& arguments : misuses) {
        const CliRun run = runCli(data() << arguments);
        EXPECT_EQ(run.status, 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(run.err.contains(u"Usage: quillmark-cli"_s));
    }
    EXPECT_EQ(files(), before);

    const QString help = runCli({u"--help"_s}).out;
    for (const QString& verb : {u"transactions NAME"_s, u"repeats NAME"_s, u"add NAME OPTIONS"_s, u"edit NAME ROW"_s,
                                u"gst NAME ROW"_s, u"--today"_s})
        EXPECT_TRUE(help.contains(verb)) << verb.toStdString();
}

TEST_F(CommandLineTest, FindDeleteAndReconcileDoWhatTheListDoes)
{
    const QByteArray transactions = readBytes(book(u"  ShopTransData"_s));
    CliRun run = runCli(data() << u"find"_s << u"Shop"_s << u"MONTHLY"_s);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, u"2\tRent\t2014-03-10\tMarch\t\t-40\t\t-40,00\t\t\ttrue\tMonthly\n") << "the repeat word is searched";
    for (const QString& nothing : {u""_s, u"@#@"_s, u"no such text"_s}) {
        run = runCli(data() << u"find"_s << u"Shop"_s << nothing);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, u"");
    }
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)), transactions) << "finding writes nothing";

    // A click on row 1's box checks it; on row 2's, checked already, none; only transBox is stored.
    const QByteArray accounts = readBytes(book(u"  ShopAccountData"_s));
    run = runCli(data() << u"reconcile"_s << u"Shop"_s << u"1"_s << u"2"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).startsWith("@#@sales@#@2014-03-09@#@Sale@#@@#@12.5@#@@#@12.50@#@@#@@#@true@#@"));
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)), accounts);
    run = runCli(data() << u"reconcile"_s << u"Shop"_s << u"2"_s << u"--off"_s);
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).contains("@#@-40,00@#@@#@@#@false@#@Monthly@#@"));

    // Reconcile mode counts row 1 alone.
    run = runCli(data() << u"balances"_s << u"Shop"_s << u"--reconciled"_s);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, u"Balance\tBase Account\t112.50\nSales\tRevenue\t18.00\nRent\tExpense\t0.00\n");
    EXPECT_TRUE(readBytes(book(u"  ShopAccountData"_s)).contains("@#@Rent@#@Expense@#@@#@0@#@0@#@"));

    run = runCli(data() << u"delete"_s << u"Shop"_s << u"2"_s << u"1"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)), QByteArray());
    EXPECT_TRUE(readBytes(book(u"  ShopAccountData"_s)).contains("@#@Sales@#@Revenue@#@5,5@#@0@#@5.5@#@"));
}

TEST_F(CommandLineTest, TransferEntersBothRowsAndRefusesWhatItCant)
{
    const auto files = [this] {
        return std::pair{readBytes(book(u"  ShopAccountData"_s)), readBytes(book(u"  ShopTransData"_s))};
    };
    const auto before = files();
    const QList<std::pair<QStringList, QString>> refusals{
        {{u"--from"_s, u"balance"_s, u"--to"_s, u"Rent"_s, u"--amount"_s, u"5"_s}, u"Base Account"_s},
        {{u"--from"_s, u"Sales"_s, u"--to"_s, u"Travel"_s, u"--amount"_s, u"5"_s}, u"no account named \"Travel\""_s},
        {{u"--from"_s, u"Sales"_s, u"--to"_s, u"SALES"_s, u"--amount"_s, u"5"_s}, u"cannot be the same account"_s},
        {{u"--from"_s, u"Sales"_s, u"--to"_s, u"Rent"_s, u"--amount"_s, u"0"_s}, u"above 0"_s},
        {{u"--from"_s, u"Sales"_s, u"--to"_s, u"Rent"_s, u"--amount"_s, u"-5"_s}, u"above 0"_s},
        {{u"--from"_s, u"Sales"_s, u"--to"_s, u"Rent"_s, u"--amount"_s, u"five"_s}, u"above 0"_s},
    };
    for (const auto& [options, message] : refusals) {
        const CliRun run = runCli(data() << u"transfer"_s << u"Shop"_s << options);
        EXPECT_EQ(run.status, 1) << options.join(u' ').toStdString();
        EXPECT_TRUE(run.err.contains(message)) << run.err.toStdString();
    }
    EXPECT_EQ(runCli(data() << u"transfer"_s << u"Shop"_s << u"--from"_s << u"Sales"_s << u"--to"_s << u"Rent"_s).status, 2);
    EXPECT_EQ(runCli(data() << u"delete"_s << u"Shop"_s << u"1"_s << u"3"_s).status, 1) << "one bad row refuses all";
    EXPECT_EQ(runCli(data() << u"reconcile"_s << u"Shop"_s << u"0"_s).status, 1);
    EXPECT_EQ(runCli(data() << u"delete"_s << u"Shop"_s).status, 2);
    EXPECT_EQ(files(), before);

    const CliRun run = runCli(data() << u"transfer"_s << u"Shop"_s << u"--from"_s << u"sales"_s << u"--to"_s << u"rent"_s
                                     << u"--amount"_s << u"7,5"_s << u"--date"_s << u"2014-03-15"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s))
                    .endsWith("\n@#@Sales@#@2014-03-15@#@Transfer to Rent@#@@#@-7.00@#@@#@-7.00@#@3477686400@#@@#@@#@Never@#@\n"
                              "@#@Rent@#@2014-03-15@#@Transfer from Sales@#@@#@7.00@#@@#@7.00@#@3477686400@#@@#@@#@Never@#@\n"))
        << "the names as the ledger holds them; the amount read by Val";
}

TEST_F(CommandLineTest, ChartWritesTheCanvasAsPngAndPrintsThePiesLegend)
{
    const auto files = [this] {
        return std::pair{QDir(home.books()).entryList(QDir::Files), readBytes(book(u"  ShopAccountData"_s))};
    };
    const auto before = files();
    const QString bar = home.path() + u"/bar.png"_s;
    CliRun run = runCli(data() << u"chart"_s << u"shop"_s << u"--kind"_s << u"bar"_s << u"--out"_s << bar);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, u"") << "no legend, no notice";
    EXPECT_EQ(QImage(bar).size(), QSize(553, 432));

    // Sales' opening "5,5" reads 5 and is the first, black slice; Rent has none.
    const QString pie = home.path() + u"/pie.png"_s;
    run = runCli(data() << u"chart"_s << u"Shop"_s << u"--kind"_s << u"pie"_s << u"--out"_s << pie << u"--size"_s
                        << u"300x200"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, u"1\t#000000\tSales\n");
    EXPECT_EQ(QImage(pie).size(), QSize(300, 200));
    EXPECT_EQ(QImage(pie).pixelColor(150, 120), QColor(Qt::black)) << "the whole disc";

    run = runCli(data() << u"chart"_s << u"home ledger"_s << u"--kind"_s << u"pie"_s << u"--out"_s << pie);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, u"None of the accounts have been alloted opening amounts.\n");

    // Refusals write no picture.
    const QString none = home.path() + u"/none.png"_s;
    const QList<std::pair<QStringList, int>> refusals{
        {{u"chart"_s, u"Garage"_s, u"--kind"_s, u"bar"_s, u"--out"_s, none}, 1},
        {{u"chart"_s, u"Shop"_s, u"--kind"_s, u"bar"_s, u"--out"_s, home.path() + u"/no/such/folder.png"_s}, 1},
        {{u"chart"_s, u"Shop"_s, u"--kind"_s, u"line"_s, u"--out"_s, none}, 2},
        {{u"chart"_s, u"Shop"_s, u"--out"_s, none}, 2},
        {{u"chart"_s, u"Shop"_s, u"--kind"_s, u"pie"_s}, 2},
        {{u"chart"_s, u"Shop"_s, u"--kind"_s, u"pie"_s, u"--out"_s, none, u"--size"_s, u"0x100"_s}, 2},
        {{u"chart"_s, u"Shop"_s, u"--kind"_s, u"pie"_s, u"--out"_s, none, u"--size"_s, u"553"_s}, 2},
        {{u"chart"_s, u"Shop"_s, u"--kind"_s, u"pie"_s, u"--out"_s, none, u"--size"_s, u"20000x100"_s}, 2},
    };
    for (const auto& [arguments, status] : refusals) {
        run = runCli(data() << arguments);
        EXPECT_EQ(run.status, status) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(run.err.isEmpty());
    }
    EXPECT_FALSE(fileExists(none));
    EXPECT_EQ(files(), before) << "the ledgers as they were";
}

TEST_F(CommandLineTest, ReportPrintsTheRowsOfTheLedgerReportOrItsPdf)
{
    const auto files = [this] {
        return std::pair{QDir(home.quillmark()).entryList(QDir::Files), readBytes(book(u"  ShopTransData"_s))};
    };
    const auto before = files();
    // Amounts as stored; "-40,00" is a withdrawal of 40 by Val.
    const QString whole = u"\tBalance\t\t100.00\t-40.00\t12.50\t\t\n"
                          " \t\t\t\t\t\t\t\n"
                          "   \tSales\t\t5,5\t\t\t\t\n"
                          "2014-03-09\t\tSale\t\t\t12.50\t\t\n"
                          " \t\t\t\t\t\t\tRevenue\n"
                          "   \tRent\t\t\t\t\t\t\n"
                          "2014-03-10\t\tMarch\t\t-40,00\t\t\t\n"
                          " \t\t\t\t\t\t\tExpense\n"_s;
    CliRun run = runCli(data() << u"report"_s << u"shop"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, whole);
    EXPECT_EQ(runCli(data() << u"report"_s << u"Shop"_s << u"--month"_s << u"3"_s).out, whole);
    EXPECT_EQ(runCli(data() << u"report"_s << u"Shop"_s << u"--year"_s << u"2014"_s).out, whole);
    EXPECT_EQ(runCli(data() << u"report"_s << u"Shop"_s << u"--show-year"_s).out, whole) << "2014 by --today";
    for (const QStringList& nothing : {QStringList{u"--month"_s, u"2"_s}, QStringList{u"--year"_s, u" 2014"_s}}) {
        run = runCli(data() << u"report"_s << u"Shop"_s << nothing);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, u"No transactions found\n");
    }
    // A year later the monthly rent has posted its rows, none of them in 2015.
    run = runCli({u"--data"_s, home.path(), u"--today"_s, u"2015-01-01"_s, u"report"_s, u"Shop"_s, u"--show-year"_s});
    EXPECT_EQ(run.out, u"No transactions found\n");

    const QString pdf = home.path() + u"/report.pdf"_s;
    run = runCli(data() << u"report"_s << u"Shop"_s << u"--month"_s << u"3"_s << u"--pdf"_s << pdf);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, u"");
    QProcess text;
    text.start(u"pdftotext"_s, {pdf, u"-"_s});
    ASSERT_TRUE(text.waitForFinished(30000));
    const QString printed = QString::fromUtf8(text.readAllStandardOutput());
    for (const QString& shown : {u"Withdrawal"_s, u"March"_s, u"-40,00"_s, u"Revenue"_s})
        EXPECT_EQ(printed.contains(shown), shown != u"Revenue") << shown.toStdString() << " (the hidden cell isn't printed)";

    const QList<std::pair<QStringList, int>> refusals{
        {{u"report"_s, u"Garage"_s}, 1},
        {{u"report"_s, u"Shop"_s, u"--pdf"_s, home.path() + u"/no/such/folder.pdf"_s}, 1},
        {{u"report"_s, u"Shop"_s, u"--month"_s, u"13"_s}, 2},
        {{u"report"_s, u"Shop"_s, u"--month"_s, u"March"_s}, 2},
        {{u"report"_s, u"Shop"_s, u"--month"_s, u"3"_s, u"--year"_s, u"2014"_s}, 2},
        {{u"report"_s, u"Shop"_s, u"--month"_s, u"3"_s, u"--show-year"_s}, 2},
        {{u"report"_s, u"Shop"_s, u"--year"_s, u"2014"_s, u"--show-year"_s}, 2},
    };
    for (const auto& [arguments, status] : refusals) {
        run = runCli(data() << arguments);
        EXPECT_EQ(run.status, status) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(run.err.isEmpty());
    }
    EXPECT_EQ(files(), before) << "nothing written in the data folder";
}

TEST_F(CommandLineTest, AccountListsTheTransactionsWindowAndPrintPrintsTheSummary)
{
    const auto files = [this] {
        return std::pair{QDir(home.quillmark()).entryList(QDir::Files), readBytes(book(u"  ShopTransData"_s))};
    };
    const auto before = files();
    CliRun run = runCli(data() << u"account"_s << u"Shop"_s << u"RENT"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, u"\tRent\t2014-03-10\tMarch\t\t-40.00\t0.00\t-40.00 \t1\t\nBalance:\t\n")
        << "the balance as stored: this ledger was never recalculated";

    // The range on both sides of 2014-03-10, at noon of --today: the day after the
    // From day stays; so does the To day.
    run = runCli(data() << u"account"_s << u"Shop"_s << u"sales"_s << u"--from"_s << u"2014-03-08"_s << u"--to"_s
                        << u"20140309"_s);
    EXPECT_EQ(run.out, u"\tsales\t2014-03-09\tSale\t\t12.50\t0.00\t12.50 \t0\t\nBalance:\t12.5\n");
    run = runCli(data() << u"account"_s << u"Shop"_s << u"sales"_s << u"--from"_s << u"2014-03-09"_s);
    EXPECT_EQ(run.out, u"Balance:\t0\n") << "the From day goes; To is today";

    const QString pdf = home.path() + u"/both.pdf"_s;
    run = runCli(data() << u"print"_s << u"shop"_s << u"--what"_s << u"both"_s << u"--pdf"_s << pdf);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    const QList<Word> words = wordsOf(pdf);
    EXPECT_EQ(named(words, u"Quillmark:"_s).size(), 2);
    EXPECT_EQ(named(words, u"March"_s).size(), 1);
    run = runCli(data() << u"print"_s << u"shop"_s << u"--what"_s << u"accounts"_s << u"--pdf"_s << pdf);
    EXPECT_TRUE(named(wordsOf(pdf), u"March"_s).isEmpty());

    const QList<std::pair<QStringList, int>> refusals{
        {{u"account"_s, u"Shop"_s, u"balance"_s}, 1},
        {{u"account"_s, u"Shop"_s, u"Travel"_s}, 1},
        {{u"account"_s, u"Garage"_s, u"Rent"_s}, 1},
        {{u"account"_s, u"Shop"_s, u"Rent"_s, u"--from"_s, u"someday"_s}, 2},
        {{u"print"_s, u"Shop"_s, u"--what"_s, u"all"_s, u"--pdf"_s, pdf}, 2},
        {{u"print"_s, u"Shop"_s, u"--what"_s, u"both"_s}, 2},
        {{u"print"_s, u"Shop"_s, u"--what"_s, u"both"_s, u"--pdf"_s, home.path() + u"/no/such.pdf"_s}, 1},
    };
    for (const auto& [arguments, status] : refusals) {
        run = runCli(data() << arguments);
        EXPECT_EQ(run.status, status) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(run.err.isEmpty());
    }
    EXPECT_EQ(files(), before) << "nothing written in the data folder";
}

TEST_F(CommandLineTest, ExportAndImportKeepTheLedgerWholeOnEveryRefusal)
{
    const auto files = [this] {
        return std::pair{readBytes(book(u"  ShopAccountData"_s)), readBytes(book(u"  ShopTransData"_s))};
    };
    const QString csv = home.path() + u"/out"_s;
    CliRun run = runCli(data() << u"export"_s << u"shop"_s << csv);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(readBytes(csv + u".csv"_s), "Account,Transaction Type,Date Posted,Transaction Amount,Description\r\n"
                                          "sales,CREDIT,20140309,12.50,Sale\n"
                                          "Rent,DEBIT,20140310,-40,00,March\n");
    const auto before = files();

    // A semicolon file in Windows-1252, a line above the header and a total below.
    const QString bank = home.path() + u"/bank.csv"_s;
    writeBytes(bank, "Statement\nDate;Text;Amount\n11.03.2014;Caf\xE9;-1.234,56\n\n12.03.2014;\"Two\nlines\";(5,00)\n"
                     "Total;;-1.239,56\n");
    const QStringList import{u"import"_s, u"Shop"_s, bank, u"--map"_s,
                             u"date=1,description=2,amount=3,account=rent,dates=dmy"_s, u"--delimiter"_s, u";"_s,
                             u"--skip"_s, u"2"_s};
    const QList<std::pair<QStringList, int>> refusals{
        {import, 1}, // the total is no date
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"date=1,amount=3"_s, u"--skip"_s, u"-1"_s}, 2},
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"date=1,description=2,amount=3,account=Travel,dates=dmy"_s,
          u"--delimiter"_s, u";"_s, u"--skip"_s, u"2"_s, u"--skip-end"_s, u"1"_s},
         1},
        {{u"import"_s, u"Shop"_s, home.path() + u"/missing.csv"_s, u"--map"_s, u"date=1,amount=2"_s}, 1},
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"description=2,amount=3"_s}, 2},
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"date=1"_s}, 2},
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"date=1,amount=3,colour=2"_s}, 2},
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"date=1,amount=3,debit=4,credit=5"_s}, 2},
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"date=1,amount=3"_s, u"--delimiter"_s, u";;"_s}, 2},
        {{u"import"_s, u"Shop"_s, bank, u"--map"_s, u"date=1,amount=3"_s, u"--duplicates"_s, u"maybe"_s}, 2},
    };
    for (const auto& [arguments, status] : refusals) {
        run = runCli(data() << arguments);
        EXPECT_EQ(run.status, status) << arguments.join(u' ').toStdString() << "\n" << run.err.toStdString();
        EXPECT_FALSE(run.err.isEmpty());
    }
    EXPECT_TRUE(runCli(data() << import).err.contains(u"line 7: \"Total\" is not a date in the order day-month-year"));
    EXPECT_EQ(files(), before) << "nothing appended, nothing written";

    run = runCli(data() << import << u"--skip-end"_s << u"1"_s);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, u"2 transactions imported\n");
    const QByteArray transactions = readBytes(book(u"  ShopTransData"_s));
    EXPECT_TRUE(transactions.contains("@#@Rent@#@2014-03-11@#@Caf\xC3\xA9@#@@#@@#@@#@-1234.56@#@"));
    EXPECT_TRUE(transactions.contains("@#@Rent@#@2014-03-12@#@Two lines@#@@#@@#@@#@-5.00@#@"));
    EXPECT_NE(readBytes(book(u"  ShopAccountData"_s)), before.first) << "recalculated and stored";

    // Again: both are in the ledger now.
    const auto imported = files();
    run = runCli(data() << import << u"--skip-end"_s << u"1"_s);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.err.contains(u"2 of the transactions are in the ledger already")) << run.err.toStdString();
    EXPECT_EQ(files(), imported);
    run = runCli(data() << import << u"--skip-end"_s << u"1"_s << u"--duplicates"_s << u"skip"_s);
    EXPECT_EQ(run.out, u"0 transactions imported, 2 already in the ledger skipped\n");
    run = runCli(data() << import << u"--skip-end"_s << u"1"_s << u"--duplicates"_s << u"keep"_s);
    EXPECT_EQ(run.out, u"2 transactions imported\n");
}
