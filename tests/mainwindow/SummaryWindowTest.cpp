#include "app/App.h"
#include "app/SplashWindow.h"
#include "books/ui/newBookWindow.h"
#include "engine/RowLayouts.h"
#include "engine/ui/AccountWindow.h"
#include "mainwindow/MenuBar1.h"
#include "mainwindow/SummaryColours.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "support/FailingSaves.h"
#include "widgets/WindowSplitter.h"

#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

TEST_F(SummaryWindowTest, StartMakesTheFoldersAndShowsTheMainWindowAfterTheStartScreen)
{
    QDir().mkpath(home.books());
    writeBytes(home.books() + u"/ShopAccountData"_s, "@#@Balance@#@\n");
    writeBytes(home.books() + u"/  HomeTransData"_s, "");

    App::Event_Open();
    EXPECT_EQ(QDir(home.books()).entryList(QDir::Files), (QStringList{u"  HomeTransData"_s, u"  ShopAccountData"_s}));
    EXPECT_TRUE(Windows::SplashWindow()->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([] { return Windows::SummaryWindow()->isVisible(); }));
    EXPECT_EQ(Windows::SummaryWindow()->books().LedgerList.ListIndex(), -1) << "no ledger is open after start";
}

TEST_F(SummaryWindowTest, ANewWindowAfterTheOldOneClosedTakesItsPlaceWithinOneRunOnly)
{
    QPointer<SummaryWindow> first = Windows::SummaryWindow();
    EXPECT_EQ(Windows::SummaryWindow(), first.data());
    EXPECT_FALSE(first->isVisible()) << "made hidden";
    first->setGeometry(50, 60, 800, 600);
    first->close(); // ends the application: stores nothing with no ledger open
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(first.isNull());
    EXPECT_EQ(platform.quits, 1);
    EXPECT_FALSE(QDir(home.books()).exists()) << "nothing was written";

    SummaryWindow* second = Windows::SummaryWindow();
    EXPECT_EQ(second->geometry(), QRect(50, 60, 800, 600));
    second->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    smartWindowsGlobals::windowSpecs().clear(); // the application starts again
    EXPECT_EQ(Windows::SummaryWindow()->size(), QSize(990, 712));
}

TEST_F(SummaryWindowTest, TheSplitterCarriesTheTwoRegionsAndHelpOpensTheMakersPages)
{
    SummaryWindow* window = Windows::SummaryWindow();
    WindowSplitter* splitter = window->WindowSplitter1;
    std::vector<std::pair<QWidget*, bool>> registered;
    for (splitter->MoveFirst(); splitter->HasNext();) {
        const bool before = splitter->NextIsBefore();
        registered.emplace_back(splitter->GetNext(), before);
    }
    const std::vector<std::pair<QWidget*, bool>> expected{
        {window->accountsBoxView, true}, {window->GroupBox1, true}, {window->GroupBox2, false}};
    EXPECT_EQ(registered, expected);
    EXPECT_TRUE(window->GroupBox1->isAncestorOf(window->accountsBoxView));
    EXPECT_TRUE(window->GroupBox2->isAncestorOf(window->transBoxView));
    EXPECT_EQ(window->separatorFld->text(), u"1234.00") << "the probe of the decimal mark";

    MenuBar1::item(*window->menuBar(), u"HelpUsersGuide"_s)->trigger();
    MenuBar1::item(*window->menuBar(), u"HelpSupport"_s)->trigger();
    EXPECT_EQ(platform.urls, (QStringList{QStringLiteral(QUILLMARK_SERVER "/docs/QuillmarkGuide.pdf"),
                                          QStringLiteral(QUILLMARK_SERVER "/support.html")}));
}

TEST_F(SummaryWindowTest, ANewLedgerIsNamedInItsDialogThenGetsItsBaseAccount)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    QTest::mouseClick(window->PushButton3, Qt::LeftButton);
    newBookWindow* dialog = Windows::newBookWindow();
    ASSERT_TRUE(dialog->isVisible());

    // OK is enabled by the text the field held before each key.
    QTest::keyClick(dialog->EditField1, Qt::Key_G);
    EXPECT_FALSE(dialog->PushButton1->isEnabled());
    QTest::keyClick(dialog->EditField1, Qt::Key_A);
    EXPECT_TRUE(dialog->PushButton1->isEnabled());
    QTest::keyClick(dialog->EditField1, Qt::Key_Backspace);
    QTest::keyClick(dialog->EditField1, Qt::Key_Backspace);
    EXPECT_TRUE(dialog->PushButton1->isEnabled());
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(platform.messages, QStringList{u"Please enter a name for the ledger."_s});
    EXPECT_TRUE(dialog->isVisible()) << "a refused name leaves the dialog open";

    QTest::keyClicks(dialog->EditField1, u"Garden"_s);
    QTest::keyClick(dialog->EditField1, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(readBytes(home.quillmark() + u"/BookList"_s), QByteArray("  Shop\n  Home\n  Garden\n"));

    AccountWindow* base = Windows::AccountWindow();
    ASSERT_TRUE(base->isVisible());
    EXPECT_FALSE(base->RadioButton1->isVisible()) << "the Base Account has no type";
    EXPECT_TRUE(base->PushButton1->isEnabled());
    const QString hint = base->EditField4->toPlainText();
    EXPECT_TRUE(hint.startsWith(u"Enter your total available cash amount in the 'Amount' field."));
    QTest::keyClicks(base->EditField3, u"250"_s);
    QTest::mouseClick(base->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(base->isVisible());
    EXPECT_EQ(readBytes(home.books() + u"/  GardenAccountData"_s),
              "999@#@Balance@#@@#@250@#@0@#@250@#@" + hint.toUtf8() + "@#@\n");
}

TEST_F(SummaryWindowTest, TheLedgerListClosesTheLedgerBelowItsRowsAndRenamesInPlace)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    ListboxView* list = window->LedgerListView;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowCenter(list, 0));
    EXPECT_EQ(window->books().theLedger, u"  Shop");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, list->viewport()->height() - 5));
    EXPECT_EQ(window->books().theLedger, u"");
    QApplication::processEvents();
    EXPECT_FALSE(list->selectionModel()->hasSelection());

    window->LedgerList().SetListIndex(0);
    QTest::keyClick(list, Qt::Key_F2);
    auto* editor = list->viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, u"Store"_s);
    EXPECT_EQ(window->books().theLedger, u"Store") << "follows the typing";
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(readBytes(home.quillmark() + u"/BookList"_s), QByteArray("  Store\n  Home\n"));
    EXPECT_TRUE(fileExists(home.books() + u"/  StoreTransData"_s));
}

TEST_F(SummaryWindowTest, ClosingStoresTheOpenLedgerAndTheWindowsPlace)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    window->LedgerList().SetListIndex(0);
    window->accountsBox().SetCell(0, 6, u"kept on closing"_s);
    window->setGeometry(30, 40, 900, 650);
    window->close();
    EXPECT_EQ(platform.quits, 1);
    EXPECT_TRUE(stored("Account").contains("@#@kept on closing@#@\n"));
    EXPECT_EQ(readBytes(home.books() + u"/WindowData"_s), QByteArray("40\n30\n900\n650\n"));
    EXPECT_EQ(readBytes(home.path() + u"/Quillmark_WindowData"_s), QByteArray("Quillmark;30;40;900;650\n"));
}

TEST_F(SummaryWindowTest, ClosingOnAFullDiskSaysSoOnceBeforeTheEndAndKeepsTheFiles)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    window->LedgerList().SetListIndex(0);
    window->accountsBox().SetCell(0, 6, u"not stored"_s);
    const QByteArray accounts = stored("Account");
    int quitsWhenTold = -1;
    const BlockingServiceHooks scripted = blockingServices();
    BlockingServiceHooks watching;
    watching.msgBox = [&](const QString& message) {
        quitsWhenTold = platform.quits;
        scripted.msgBox(message);
    };
    installBlockingServices(watching);
    {
        const FailingSaves full(FailingSaves::Step::Write, 0);
        window->close();
    }
    EXPECT_EQ(platform.quits, 1);
    EXPECT_EQ(quitsWhenTold, 0) << "told before the application ends";
    EXPECT_EQ(platform.messages,
              QStringList{u"Quillmark couldn't save the places of its windows: No space left on device.\n\n"
                          "Quillmark couldn't save the ledger \"Shop\": No space left on device. It stays as it was "
                          "before this change."_s});
    EXPECT_EQ(stored("Account"), accounts);
    EXPECT_EQ(QDir(home.books()).entryList(QDir::Files).size(), 2) << "nothing left beside the files";
}

TEST(SummaryColours, AccountTextShowsTheBaseAccountAndNegativeBalancesOfNonRevenue)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    setUpAccountsBox(accounts);
    // Types and balances.
    addRows(accounts, {u"||Base Account|||   -50.00"_s, u"||Expense|||   -12.50"_s, u"||REVENUE|||   -99.00"_s,
                       u"||Expense|||    12.50"_s, u"||asset|||-1,5"_s});
    const QColor red(255, 0, 0), green(0, 128, 64), white(255, 255, 255), blue(217, 233, 255);
    const QList<QColor> text{green, red, QColor(), QColor(), red}; // revenue in any case is never red
    for (int row = 0; row < accounts.ListCount(); ++row) {
        SCOPED_TRACE(row);
        EXPECT_EQ(SummaryColours::accountsCell(accounts, row, false).text, text[row]);
        EXPECT_EQ(SummaryColours::accountsCell(accounts, row, true).text, white) << "selection wins";
        EXPECT_EQ(SummaryColours::accountsCell(accounts, row, false).background, row % 2 ? white : blue);
        EXPECT_EQ(SummaryColours::transCell(row).background, row % 2 ? white : blue);
    }
    EXPECT_FALSE(SummaryColours::transCell(3).selectionGradient) << "transactions keep the grid's highlight";
    EXPECT_TRUE(SummaryColours::accountsCell(accounts, 1, true).selectionGradient);
    EXPECT_EQ(SummaryColours::ledgerCell(false).background, QColor(219, 223, 232));
    EXPECT_TRUE(SummaryColours::ledgerCell(true).selectionGradient);
    EXPECT_EQ(SummaryColours::ledgerCell(true).text, white);
}
