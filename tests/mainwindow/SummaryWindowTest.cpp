#include "app/App.h"
#include "books/ui/newBookWindow.h"
#include "mainwindow/MenuBar1.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "app/SplashWindow.h"

#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

TEST_F(SummaryWindowTest, StartMakesTheFoldersAndShowsTheMainWindowAfterTheStartScreen)
{
    QDir().mkpath(home.books());
    writeBytes(home.books() + u"/ShopAccountData"_s, "@#@Balance@#@\n");
    writeBytes(home.books() + u"/  HomeTransData"_s, "");

    App::Event_Open();
    EXPECT_TRUE(QDir(home.books()).exists());
    EXPECT_EQ(QDir(home.books()).entryList(QDir::Files), (QStringList{u"  HomeTransData"_s, u"  ShopAccountData"_s}));

    SplashWindow* splash = Windows::SplashWindow();
    EXPECT_TRUE(splash->isVisible());
    EXPECT_TRUE(splash->Timer1->isSingleShot());
    EXPECT_EQ(splash->Timer1->interval(), 1000);
    QTest::qWait(1300);
    EXPECT_TRUE(Windows::SummaryWindow()->isVisible());
    EXPECT_EQ(Windows::SummaryWindow()->windowTitle(), u"Quillmark");
    EXPECT_EQ(Windows::SummaryWindow()->books().LedgerList.ListIndex(), -1) << "no ledger is open after start";
}

TEST_F(SummaryWindowTest, AccessorsMakeANewWindowAfterTheOldOneClosed)
{
    SummaryWindow* first = Windows::SummaryWindow();
    EXPECT_EQ(Windows::SummaryWindow(), first);
    EXPECT_FALSE(first->isVisible()) << "made hidden";
    first->close(); // ends the application: stores nothing with no ledger open
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(platform.quits, 1);
    EXPECT_NE(Windows::SummaryWindow(), nullptr);
    EXPECT_FALSE(QDir(home.books()).exists()) << "nothing was written";
}

TEST_F(SummaryWindowTest, ApplicationCommandsOpenTheMakersPages)
{
    SummaryWindow* window = Windows::SummaryWindow();
    MenuBar1::item(*window->menuBar(), u"HelpUsersGuide"_s)->trigger();
    MenuBar1::item(*window->menuBar(), u"HelpSupport"_s)->trigger();
    EXPECT_EQ(platform.urls, (QStringList{QStringLiteral(QUILLMARK_SERVER "/docs/QuillmarkGuide.pdf"),
                                          QStringLiteral(QUILLMARK_SERVER "/support.html")}));
}

TEST_F(SummaryWindowTest, NewLedgerDialogEnablesOkByTheTextBeforeEachKey)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    QTest::mouseClick(window->PushButton3, Qt::LeftButton);
    newBookWindow* dialog = Windows::newBookWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->windowTitle(), u"New Ledger");

    QTest::keyClick(dialog->EditField1, Qt::Key_G);
    EXPECT_FALSE(dialog->PushButton1->isEnabled()) << "the field was empty before the key";
    QTest::keyClick(dialog->EditField1, Qt::Key_A);
    EXPECT_TRUE(dialog->PushButton1->isEnabled());
    QTest::keyClick(dialog->EditField1, Qt::Key_Backspace);
    QTest::keyClick(dialog->EditField1, Qt::Key_Backspace);
    EXPECT_EQ(dialog->EditField1->text(), u"");
    EXPECT_TRUE(dialog->PushButton1->isEnabled()) << "the field held \"G\" before the last key";

    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(platform.messages, QStringList{u"Please enter a name for the ledger."_s});
    EXPECT_TRUE(dialog->isVisible()) << "a refused name leaves the dialog open";

    QTest::keyClicks(dialog->EditField1, u"Garden"_s);
    QTest::keyClick(dialog->EditField1, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(window->books().theLedger, u"  Garden");
    EXPECT_EQ(readBytes(home.quillmark() + u"/BookList"_s), QByteArray("  Shop\n  Home\n  Garden\n"));
}

TEST_F(SummaryWindowTest, ClickingBelowTheLastLedgerClosesTheLedger)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    ListboxView* list = window->LedgerListView;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowCenter(list, 0));
    EXPECT_EQ(window->books().theLedger, u"  Shop");
    EXPECT_EQ(window->accountsBox().ListCount(), 1);
    window->accountsBox().SetCell(0, 6, u"stored on closing");

    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, list->viewport()->height() - 5));
    EXPECT_EQ(window->LedgerList().ListIndex(), -1);
    EXPECT_EQ(window->books().theLedger, u"");
    EXPECT_EQ(window->accountsBox().ListCount(), 0);
    EXPECT_TRUE(readBytes(home.books() + u"/  ShopAccountData"_s).contains("stored on closing"));
    QApplication::processEvents();
    EXPECT_FALSE(list->selectionModel()->hasSelection());
}

TEST_F(SummaryWindowTest, RenamingInTheListMovesTheFiles)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    ListboxView* list = window->LedgerListView;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowCenter(list, 0));
    ASSERT_EQ(window->books().theLedger, u"  Shop");

    QTest::keyClick(list, Qt::Key_F2);
    auto* editor = list->viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, u"Store"_s);
    EXPECT_EQ(window->books().theLedger, u"Store") << "follows the typing";
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();

    EXPECT_EQ(window->LedgerList().Cell(0, 0), u"  Store");
    EXPECT_EQ(readBytes(home.quillmark() + u"/BookList"_s), QByteArray("  Store\n  Home\n"));
    EXPECT_EQ(QDir(home.books()).entryList(QDir::Files), (QStringList{u"  StoreAccountData"_s, u"  StoreTransData"_s}));
}

TEST_F(SummaryWindowTest, PressingATransactionHeadingSortsTheRows)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    window->LedgerList().SetListIndex(0);
    ListboxView* grid = window->transBoxView;
    const int dateSection = 2;
    QHeaderView* header = grid->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(dateSection) + 5, header->height() / 2));
    EXPECT_EQ(window->transBox().Cell(0, 3), u"a");
    EXPECT_EQ(window->transBox().Cell(2, 3), u"b");
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(dateSection) + 5, header->height() / 2));
    EXPECT_EQ(window->transBox().Cell(0, 3), u"b");
}
