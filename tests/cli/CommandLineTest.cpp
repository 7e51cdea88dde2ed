// The wiring of quillmark-cli, run as a process with no display: each verb's
// call, exit status and stderr. The rules behind the calls are tested in the core.
#include "cli/VerbTable.h"
#include "support/DataFolder.h"
#include "support/PdfReading.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

namespace {

struct CliRun {
    int status = -1;
    QString out;
    QString err;
};

// With a shell line, the program runs inside that shell ("$0" is the program, "$@" the arguments).
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
        home.writeShop("  Shop\n  Home Ledger\n",
                       "@#@Balance@#@asset@#@100.00@#@@#@@#@@#@\n"
                       "@#@Sales@#@Revenue@#@5,5@#@@#@@#@@#@\n"
                       "@#@Rent@#@Expense@#@@#@@#@@#@@#@\n",
                       "@#@sales@#@2014-03-09@#@Sale@#@@#@12.5@#@@#@12.50@#@@#@@#@false@#@Never@#@\n"
                       "@#@Rent@#@2014-03-10@#@March@#@@#@-40@#@@#@-40,00@#@@#@@#@true@#@Monthly@#@\n");
    }

    QByteArray stored(const char* kind) const { return readBytes(home.shop(kind)); }
    // The data folder, on a day before the monthly row falls due.
    QStringList data() const { return {u"--data"_s, home.path(), u"--today"_s, u"2014-03-31"_s}; }

    QMap<QString, QByteArray> files() const { return entriesUnder(home.path()); }

    // A command (its words split at blanks) that succeeds; gives what it printed.
    QString done(const QString& command) const
    {
        const CliRun run = runCli(data() << command.split(u' '));
        EXPECT_EQ(run.status, 0) << command.toStdString() << ": " << run.err.toStdString();
        EXPECT_EQ(run.err, u"") << command.toStdString();
        return run.out;
    }

    // A refusal: status 1, one line on stderr, nothing printed, nothing written.
    void expectRefused(const QString& command, const QString& line) const
    {
        const QMap<QString, QByteArray> before = files();
        const CliRun run = runCli(data() << command.split(u' '));
        EXPECT_EQ(run.status, 1) << command.toStdString();
        EXPECT_EQ(run.err, u"quillmark-cli: "_s + line + u'\n') << command.toStdString();
        EXPECT_EQ(run.out, u"") << command.toStdString();
        EXPECT_EQ(files(), before) << command.toStdString();
    }

    TempDataHome home;
};

} // namespace

TEST_F(CommandLineTest, TheHelpShowsEveryEntryOfTheTableInItsOrder)
{
    const CliRun help = runCli({u"--help"_s});
    EXPECT_EQ(help.status, 0);
    qsizetype from = 0;
    for (const Verb& verb : verbs()) {
        const qsizetype usage = help.out.indexOf(u"\n  "_s + verb.usage.section(u'\n', 0, 0), from);
        EXPECT_GE(usage, from) << verb.usage.toStdString();
        EXPECT_GT(help.out.indexOf(verb.summary.section(u'\n', -1), usage), usage) << verb.usage.toStdString();
        from = usage + 1;
    }
}

TEST_F(CommandLineTest, UsageErrorsPrintTheHelpWithStatusTwoAndWriteNothing)
{
    const QString help = runCli({u"--help"_s}).out;
    const QMap<QString, QByteArray> before = files();
    // One of each check: the words, the options of any verb, then each verb's own.
    const QStringList misuses{
        u"post Shop"_s, u"edit-account Shop"_s, u"delete Shop"_s, u"transactions Shop --amount 5"_s,
        u"add Shop --date 2014-02-30"_s, u"--today 2014-13-01 list"_s, u"add Shop --deposit --withdrawal"_s,
        u"add Shop --repeat weekly"_s, u"gst Shop first"_s, u"reconcile Shop 1 x"_s,
        u"transfer Shop --from Sales --to Rent"_s, u"chart Shop --kind line --out x.png"_s, u"chart Shop --kind pie"_s,
        u"chart Shop --kind pie --out x.png --size 0x100"_s, u"chart Shop --kind pie --out x.png --size 553"_s,
        u"chart Shop --kind pie --out x.png --size 20000x100"_s, u"report Shop --month 13"_s,
        u"report Shop --month March"_s, u"report Shop --month 3 --year 2014"_s, u"report Shop --month 3 --show-year"_s,
        u"report Shop --year 2014 --show-year"_s, u"account Shop Rent --from someday"_s,
        u"print Shop --what all --pdf x.pdf"_s, u"print Shop --what both"_s,
        u"import Shop x.csv --map date=1,amount=3,colour=2"_s, u"import Shop x.csv --map date=1,amount=3 --skip -1"_s,
        u"import Shop x.csv --map date=1"_s, u"import Shop x.csv --map date=1,amount=3 --delimiter ;;"_s,
        u"import Shop x.csv --map date=1,amount=3 --duplicates maybe"_s};
    for (const QString& misuse : misuses) {
        const CliRun run = runCli(data() << misuse.split(u' '));
        EXPECT_EQ(run.status, 2) << misuse.toStdString();
        EXPECT_EQ(run.err, help) << misuse.toStdString();
        EXPECT_EQ(run.out, u"");
    }
    const CliRun unknown = runCli(data() << u"add"_s << u"Shop"_s << u"--colour"_s << u"red"_s);
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, u"Unknown option 'colour'.\n\n"_s + help);
    EXPECT_EQ(files(), before);
}

TEST_F(CommandLineTest, RefusalsPrintOneLineWithStatusOneAndWriteNothing)
{
    const QString inShop = u" in the ledger \"  Shop\""_s;
    const QString gst = u"the GST button needs an amount, an adjustment and a withdrawal"_s;
    const QString above = u"the amount to transfer must be above 0"_s;
    const QString nowhere = home.path() + u"/no/such"_s;
    const QList<std::pair<QString, QString>> refusals{
        {u"recalc Garden"_s, u"there is no ledger named \"Garden\" in %1/BookList"_s.arg(home.quillmark())},
        {u"add-account Shop rENT"_s, u"That account name is already in use. Please enter a different name."_s},
        {u"edit-account Shop Rent --rename rent"_s, u"That account name is already in use. Please enter a different name."_s},
        {u"edit-account Shop Fuel"_s, u"there is no account named \"Fuel\""_s + inShop},
        {u"add Shop --account Balance --amount 1"_s, u"the account menu has no account \"Balance\""_s},
        {u"add Shop --amount 1"_s, u"OK can't be pressed: it needs an account and an amount"_s},
        {u"add Shop --account Rent --amount 1 --gst"_s, gst},
        {u"gst Shop 2"_s, gst}, // checked before the row opened for editing is stored
        {u"delete Shop 1 3"_s, u"there is no transaction 3"_s + inShop},
        {u"reconcile Shop 0"_s, u"there is no transaction 0"_s + inShop},
        {u"transfer Shop --from balance --to Rent --amount 5"_s, u"the Base Account can't take part in a transfer"_s},
        {u"transfer Shop --from Sales --to Travel --amount 5"_s, u"there is no account named \"Travel\""_s + inShop},
        {u"transfer Shop --from Sales --to SALES --amount 5"_s, u"Source and destination accounts cannot be the same account."_s},
        {u"transfer Shop --from Sales --to Rent --amount 0"_s, above},
        {u"transfer Shop --from Sales --to Rent --amount -5"_s, above},
        {u"account Shop balance"_s, u"the Base Account has no transactions window"_s},
        {u"chart Shop --kind bar --out "_s + nowhere, u"couldn't write \"%1\": No such file or directory"_s.arg(nowhere)},
        {u"report Shop --pdf "_s + nowhere, u"couldn't write \"%1\": No such file or directory"_s.arg(nowhere)},
        {u"import Shop %1 --map date=1,amount=2"_s.arg(nowhere), u"there is no file \"%1\""_s.arg(nowhere)},
    };
    for (const auto& [command, line] : refusals)
        expectRefused(command, line);

    // A refused new ledger makes no folder in a data folder that has none.
    TempDataHome fresh;
    EXPECT_EQ(runCli({u"--data"_s, fresh.path(), u"new-ledger"_s, u"Garden"_s, u"--notes"_s, u"a@#@b"_s}).status, 1);
    EXPECT_FALSE(QDir(fresh.quillmark()).exists());
}

TEST_F(CommandLineTest, LedgerVerbsListPrintStoreAndRecalculate)
{
    EXPECT_EQ(done(u"list"_s), u"  Shop\n  Home Ledger\n");

    const QMap<QString, QByteArray> before = files();
    EXPECT_EQ(done(u"transactions shop"_s), u"1\tsales\t2014-03-09\tSale\t\t12.5\t\t12.50\t\t\tfalse\tNever\n"
                                            "2\tRent\t2014-03-10\tMarch\t\t-40\t\t-40,00\t\t\ttrue\tMonthly\n");
    EXPECT_EQ(files(), before) << "printing writes nothing";

    // --today is the present of the repeats; repeats stores without recalculating.
    const CliRun run = runCli({u"--data"_s, home.path(), u"--today"_s, u"2014-06-01"_s, u"repeats"_s, u"Shop"_s});
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(stored("Trans").endsWith("\n@#@Rent@#@2014-04-10@#@March@#@@#@-40@#@@#@-40,00@#@@#@@#@true@#@Monthly@#@\n"));
    EXPECT_EQ(stored("Account"), before[home.shop("Account")]);

    done(u"recalc SHOP"_s);
    EXPECT_EQ(done(u"balances Shop"_s), u"Balance\tBase Account\t32.5\nSales\tRevenue\t18\nRent\tExpense\t-80\n");

    // The decimal mark is the system's: the stored "12.50" is stored as "12,50" on a comma system.
    EXPECT_EQ(runCli(data() << u"recalc"_s << u"Shop"_s, u"de_DE.UTF-8"_s).status, 0);
    EXPECT_TRUE(stored("Trans").contains("@#@12,50@#@3477168000@#@"));
}

TEST_F(CommandLineTest, AccountVerbsMakeTheAccountDialogsCalls)
{
    TempDataHome fresh;
    const CliRun run = runCli({u"--data"_s, fresh.path(), u"new-ledger"_s, u"Garden"_s, u"--opening"_s, u"250"_s});
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_TRUE(readBytes(fresh.books() + u"/  GardenAccountData"_s).startsWith("999@#@Balance@#@@#@250@#@"));

    done(u"add-account Shop Tips --revenue --notes jar"_s);
    EXPECT_TRUE(stored("Account").endsWith("999@#@Tips@#@Revenue@#@0.00@#@0@#@0@#@jar@#@\n"));
    done(u"edit-account shop SALES --rename Takings --opening 7"_s);
    EXPECT_TRUE(stored("Account").contains("\n@#@Takings@#@Revenue@#@7@#@"));
    done(u"delete-account Shop rent"_s);
    EXPECT_FALSE(stored("Account").contains("Rent"));
}

TEST_F(CommandLineTest, FileProblemsAreToldOnStderrALineEachWithStatusOne)
{
    // The system itself refusing: a limit on the size of the files a process
    // writes, below the size of the transactions (no root needed for that).
    writeBytes(home.shop("Trans"), stored("Trans").repeated(50));
    CliRun run = runCli(data() << u"recalc"_s << u"Shop"_s, u"C.UTF-8"_s, u"trap '' XFSZ; ulimit -f 2; exec \"$0\" \"$@\""_s);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, u"quillmark-cli: Quillmark couldn't save the ledger \"Shop\": File too large. It stays as it was "
                       "before this change.\n");

    // Two problems of one operation.
    QFile::remove(home.shop("Account"));
    QFile::remove(home.shop("Trans"));
    QDir(home.books()).mkdir(u"  ShopAccountData"_s);
    QDir(home.books()).mkdir(u"  ShopTransData"_s);
    run = runCli(data() << u"balances"_s << u"Shop"_s);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, u"quillmark-cli: Quillmark couldn't open the ledger \"Shop\": \"%1\" is a folder, not a plain file.\n"
                       "quillmark-cli: Quillmark couldn't open the ledger \"Shop\": \"%2\" is a folder, not a plain file.\n"_s
                           .arg(home.shop("Account"), home.shop("Trans")));
}

TEST_F(CommandLineTest, TransactionVerbsMakeTheDialogsCalls)
{
    // Every option reaches its field, whatever order they come in.
    done(u"add Shop --description Lease --repeat ANNUALLY --amount 100 --account rent --adjust 5 --date 2014-03-20 "
         "--invoice I9 --memo M"_s);
    EXPECT_TRUE(stored("Trans").endsWith("\n@#@Rent@#@2014-03-20@#@Lease@#@I9@#@-100@#@5@#@-105.00@#@3478118400@#@M@#@@#@Annually@#@\n"));

    done(u"edit Shop 1 --amount 20"_s);
    EXPECT_TRUE(stored("Trans").startsWith("@#@Sales@#@2014-03-09@#@Sale@#@@#@20@#@@#@20.00@#@"));

    done(u"gst Shop 2 --adjust 3"_s);
    EXPECT_TRUE(stored("Trans").contains("\n@#@Rent@#@2014-03-10@#@March@#@@#@-40.00@#@3@#@-43.00@#@"));
    EXPECT_TRUE(stored("Trans").contains("\n1000@#@GST@#@2014-03-10@#@March@#@"));

    // A new transaction starts on the day of --today.
    done(u"add Shop --amount 9 --adjust 1 --gst"_s);
    EXPECT_TRUE(stored("Trans").contains("\n@#@Select account@#@2014-03-31@#@@#@@#@-9@#@1@#@-10.00@#@"));
    EXPECT_TRUE(stored("Trans").contains("\n1000@#@GST@#@2014-03-31@#@"));
}

TEST_F(CommandLineTest, FindReconcileDeleteAndTransferMakeTheirCalls)
{
    EXPECT_EQ(done(u"find Shop MONTHLY"_s), u"2\tRent\t2014-03-10\tMarch\t\t-40\t\t-40,00\t\t\ttrue\tMonthly\n");

    // Row 1's box gets a click; row 2's, checked already, none. Only transBox is stored.
    const QByteArray accounts = stored("Account");
    done(u"reconcile Shop 1 2"_s);
    EXPECT_EQ(stored("Trans").count("@#@true@#@"), 2);
    EXPECT_EQ(stored("Account"), accounts);
    done(u"reconcile Shop 2 --off"_s);
    EXPECT_TRUE(stored("Trans").contains("@#@false@#@Monthly@#@"));
    // The second form of balances: reconcile mode, in which row 1 alone counts.
    EXPECT_EQ(done(u"balances Shop --reconciled"_s), u"Balance\tBase Account\t112.50\nSales\tRevenue\t18.00\nRent\tExpense\t0.00\n");

    done(u"delete Shop 2 1"_s);
    EXPECT_EQ(stored("Trans"), QByteArray());
    EXPECT_TRUE(stored("Account").contains("@#@Sales@#@Revenue@#@5,5@#@0@#@5.5@#@")) << "recalculated";
    // The accounts as the ledger names them.
    done(u"transfer Shop --from sales --to rent --amount 7 --date 2014-03-15"_s);
    EXPECT_EQ(stored("Trans"), "@#@Sales@#@2014-03-15@#@Transfer to Rent@#@@#@-7.00@#@@#@-7.00@#@3477686400@#@@#@@#@Never@#@\n"
                                  "@#@Rent@#@2014-03-15@#@Transfer from Sales@#@@#@7.00@#@@#@7.00@#@3477686400@#@@#@@#@Never@#@\n");
}

TEST_F(CommandLineTest, ChartWritesThePngOfTheKindAndSizeAskedAndPrintsThePiesLegend)
{
    const QString png = home.path() + u"/chart.png"_s;
    EXPECT_EQ(done(u"chart shop --kind bar --out "_s + png), u"");
    EXPECT_EQ(QImage(png).size(), QSize(553, 432)) << "the window's canvas";
    EXPECT_EQ(done(u"chart Shop --kind pie --size 300x200 --out "_s + png), u"1\t#000000\tSales\n");
    EXPECT_EQ(QImage(png).size(), QSize(300, 200));
    const CliRun run = runCli(data() << u"chart"_s << u"home ledger"_s << u"--kind"_s << u"pie"_s << u"--out"_s << png);
    EXPECT_EQ(run.out, u"None of the accounts have been alloted opening amounts.\n");
}

TEST_F(CommandLineTest, ReportPrintsTheRowsOfTheFilterAskedOrTheirPdf)
{
    const QMap<QString, QByteArray> before = files();
    EXPECT_EQ(done(u"report shop"_s), u"\tBalance\t\t100.00\t-40.00\t12.50\t\t\n"
                                      " \t\t\t\t\t\t\t\n"
                                      "   \tSales\t\t5,5\t\t\t\t\n"
                                      "2014-03-09\t\tSale\t\t\t12.50\t\t\n"
                                      " \t\t\t\t\t\t\tRevenue\n"
                                      "   \tRent\t\t\t\t\t\t\n"
                                      "2014-03-10\t\tMarch\t\t-40,00\t\t\t\n"
                                      " \t\t\t\t\t\t\tExpense\n");
    for (const QString& filter : {u"--month 2"_s, u"--year 2013"_s})
        EXPECT_EQ(done(u"report Shop "_s + filter), u"No transactions found\n");
    // Show Year on the year of --today.
    const CliRun run = runCli({u"--data"_s, home.path(), u"--today"_s, u"2015-01-01"_s, u"report"_s, u"Shop"_s, u"--show-year"_s});
    EXPECT_EQ(run.out, u"No transactions found\n");
    EXPECT_EQ(files(), before) << "nothing written in the data folder";

    const QString pdf = home.path() + u"/report.pdf"_s;
    EXPECT_EQ(done(u"report Shop --pdf "_s + pdf), u"");
    const QList<Word> words = wordsOf(pdf);
    EXPECT_EQ(named(words, u"March"_s).size(), 1);
    EXPECT_TRUE(named(words, u"Revenue"_s).isEmpty()) << "the hidden type word of a foot isn't printed";
    EXPECT_LT(named(words, u"Date"_s).value(0).box.right(), named(words, u"Description"_s).value(0).box.left())
        << "the columns laid out side by side, as in the window";
}

TEST_F(CommandLineTest, AccountListsTheTransactionsWindowAndPrintPrintsTheSummary)
{
    EXPECT_EQ(done(u"account Shop RENT"_s), u"\tRent\t2014-03-10\tMarch\t\t-40.00\t0.00\t-40.00 \t1\t\nBalance:\t\n");
    const QString sale = u"\tsales\t2014-03-09\tSale\t\t12.50\t0.00\t12.50 \t0\t\nBalance:\t12.5\n"_s;
    EXPECT_EQ(done(u"account Shop sales --from 2014-03-08 --to 20140309"_s), sale) << "the range's total";
    EXPECT_EQ(done(u"account Shop sales --from 2014-03-08"_s), sale) << "To stays today";

    const QString pdf = home.path() + u"/print.pdf"_s;
    done(u"print shop --what both --pdf "_s + pdf);
    EXPECT_EQ(named(wordsOf(pdf), u"Quillmark:"_s).size(), 2) << "under the main window's title";
    EXPECT_EQ(named(wordsOf(pdf), u"March"_s).size(), 1);
    done(u"print shop --what accounts --pdf "_s + pdf);
    EXPECT_TRUE(named(wordsOf(pdf), u"March"_s).isEmpty());
}

TEST_F(CommandLineTest, ExportWritesTheCsvAndImportAppendsAllOrNothing)
{
    done(u"export shop "_s + home.path() + u"/out"_s);
    EXPECT_TRUE(readBytes(home.path() + u"/out.csv"_s).endsWith("Rent,DEBIT,20140310,-40,00,March\n"));

    // A line above the header and a total below.
    const QString bank = home.path() + u"/bank.csv"_s;
    writeBytes(bank, "Statement\nDate;Text;Amount\n11.03.2014;Cafe;-1.234,56\n12.03.2014;Tea;(5,00)\nTotal;;-1.239,56\n");
    const QString import = u"import Shop %1 --map date=1,description=2,amount=3,account=rent,dates=dmy --delimiter ; "
                           "--skip 2"_s.arg(bank);
    expectRefused(import, u"line 5: \"Total\" is not a date in the order day-month-year"_s);
    expectRefused(u"import Shop %1 --map date=1,amount=3,account=Travel"_s.arg(bank),
                  u"there is no account named \"Travel\" in the ledger \"  Shop\""_s);

    EXPECT_EQ(done(import + u" --skip-end 1"_s), u"2 transactions imported\n");
    EXPECT_TRUE(stored("Trans").contains("\n@#@Rent@#@2014-03-12@#@Tea@#@@#@@#@@#@-5.00@#@"));

    // Again: both are in the ledger now.
    expectRefused(import + u" --skip-end 1"_s,
                  u"2 of the transactions are in the ledger already; give --duplicates keep or skip"_s);
    EXPECT_EQ(done(import + u" --skip-end 1 --duplicates skip"_s), u"0 transactions imported, 2 already in the ledger skipped\n");
    EXPECT_EQ(done(import + u" --skip-end 1 --duplicates keep"_s), u"2 transactions imported\n");
}
