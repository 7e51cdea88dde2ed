#include "support/DataFolder.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct CliRun {
    int status = -1;
    QString out;
    QString err;
};

// Runs quillmark-cli as its own process, with no display of any kind.
CliRun runCli(const QStringList& arguments, const QString& language = u"C.UTF-8"_s)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(name);
    environment.insert(u"LC_ALL"_s, language);
    environment.insert(u"LANG"_s, language);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(QUILLMARK_CLI_PATH), arguments);
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
    QStringList data() const { return {u"--data"_s, home.path()}; }

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
