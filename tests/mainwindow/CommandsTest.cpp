#include "books/ui/newBookWindow.h"
#include "engine/ui/AccountWindow.h"
#include "ledger/TransactionOperations.h"
#include "mainwindow/MenuBar1.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "mainwindow/Toolbar1.h"
#include "widgets/Canvas.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

class CommandsTest : public SummaryWindowTest {
protected:
    // "  Shop": the Base Account and four more; transactions name their accounts
    // in any letter case.
    void writeShop() const
    {
        writeLedgers();
        writeBytes(home.books() + u"/  ShopAccountData"_s,
                   "@#@Cash@#@Base Account@#@100.00@#@0@#@100@#@@#@\n"
                   "@#@Rent@#@Expense@#@0.00@#@-20@#@-20@#@@#@\n"
                   "@#@Sales@#@Revenue@#@0.00@#@30@#@30@#@@#@\n"
                   "@#@Fuel@#@Expense@#@0.00@#@-5@#@-5@#@@#@\n"
                   "@#@Car-Hire@#@Expense@#@0.00@#@0@#@0@#@@#@\n");
        writeBytes(home.books() + u"/  ShopTransData"_s,
                   "@#@Rent@#@2026-01-02@#@January@#@@#@-20@#@0@#@-20@#@@#@@#@@#@Never@#@\n"
                   "@#@sales@#@2026-01-03@#@till@#@@#@10@#@0@#@10@#@@#@@#@@#@Never@#@\n"
                   "@#@FUEL@#@2026-01-04@#@diesel@#@@#@-5@#@0@#@-5@#@@#@@#@@#@Never@#@\n"
                   "@#@Sales@#@2026-01-05@#@till@#@@#@20@#@0@#@20@#@@#@@#@@#@Never@#@\n");
    }

    SummaryWindow* openShop()
    {
        writeShop();
        SummaryWindow* window = shownWindow();
        window->LedgerList().SetListIndex(0);
        return window;
    }

    static void press(SummaryWindow* window, const QString& item)
    {
        QTest::mouseClick(window->Toolbar11->widgetForAction(window->Toolbar11->item(item)), Qt::LeftButton);
    }

    // A real double click: a click, then the second press that makes it double.
    static void doubleClick(ListboxView* grid, int row)
    {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, rowCenter(grid, row));
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, rowCenter(grid, row));
        QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, rowCenter(grid, row));
    }

    static QStringList column(const Listbox& table, int col)
    {
        QStringList cells;
        for (int row = 0; row < table.ListCount(); ++row)
            cells << table.Cell(row, col);
        return cells;
    }

    QByteArray accountsFile() const { return readBytes(home.books() + u"/  ShopAccountData"_s); }
    QByteArray transFile() const { return readBytes(home.books() + u"/  ShopTransData"_s); }
    QStringList bookFiles() const { return QDir(home.books()).entryList(QDir::Files); }
};

} // namespace

TEST_F(CommandsTest, RefusedCommandsSayWhyAndChangeNothing)
{
    writeShop();
    const QStringList filesBefore = bookFiles();
    SummaryWindow* window = shownWindow();
    const QMenuBar& bar = *window->menuBar();
    EXPECT_FALSE(MenuBar1::item(bar, u"FileImportData"_s)->isEnabled());
    EXPECT_FALSE(MenuBar1::item(bar, u"FileExportData"_s)->isEnabled());
    EXPECT_TRUE(MenuBar1::item(bar, u"FileNewAccount"_s)->isEnabled());
    EXPECT_EQ(MenuBar1::item(bar, u"FileNewTransaction"_s)->shortcut(), QKeySequence(u"Ctrl+2"_s));

    for (const QString& item : {u"Add"_s, u"Delete"_s, u"Edit"_s, u"Transfer"_s, u"Transactions"_s, u"Ledger"_s,
                                u"Graphs"_s})
        press(window, item);
    for (QAction* printItem : window->Toolbar11->printSaveMenu()->actions())
        printItem->trigger();
    const QString noLedger = u"No ledger selected."_s;
    EXPECT_EQ(platform.messages, (QStringList{noLedger, u"No account selected."_s, u"No account selected."_s,
                                              noLedger, u"No account selected"_s, noLedger, noLedger, noLedger,
                                              noLedger, noLedger}));
    EXPECT_EQ(window->printRequest, u"");
    EXPECT_EQ(bookFiles(), filesBefore);
    EXPECT_TRUE(Windows::SummaryWindow()->findChildren<AccountWindow*>().isEmpty());

    // With a ledger open, the account commands still need an account; the Base
    // Account can't be deleted and has no transactions window.
    window->LedgerList().SetListIndex(0);
    EXPECT_TRUE(MenuBar1::item(bar, u"FileImportData"_s)->isEnabled());
    const QByteArray accounts = accountsFile();
    const QByteArray transactions = transFile();
    platform.messages.clear();
    for (const QString& item : {u"Delete"_s, u"Edit"_s, u"Transactions"_s})
        press(window, item);
    window->accountsBox().SetListIndex(0);
    press(window, u"Delete"_s);
    EXPECT_FALSE(window->books().deletingOn);
    press(window, u"Transactions"_s);
    EXPECT_EQ(platform.messages,
              (QStringList{u"No account selected."_s, u"No account selected."_s, u"No account selected"_s,
                           u"The Base Account cannot be deleted."_s, u"No account selected"_s}));
    EXPECT_TRUE(platform.dialogs.empty());
    EXPECT_EQ(accountsFile(), accounts);
    EXPECT_EQ(transFile(), transactions);

    window->Toolbar11->printSaveMenu()->actions().at(1)->trigger();
    EXPECT_EQ(window->printRequest, u"transactions");
}

TEST_F(CommandsTest, ANewLedgerGetsItsBaseAccountThroughTheDialog)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    QTest::mouseClick(window->PushButton3, Qt::LeftButton);
    QTest::keyClicks(Windows::newBookWindow()->EditField1, u"Garden"_s);
    QTest::keyClick(Windows::newBookWindow()->EditField1, Qt::Key_Return);

    AccountWindow* dialog = Windows::AccountWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->windowTitle(), u"Account Information");
    EXPECT_EQ(dialog->EditField1->text(), u"Balance");
    EXPECT_EQ(dialog->StaticText4->text(), u"Amount:");
    EXPECT_FALSE(dialog->RadioButton1->isVisible());
    EXPECT_FALSE(dialog->StaticText3->isVisible());
    EXPECT_TRUE(dialog->PushButton1->isEnabled());
    const QString hint = dialog->EditField4->toPlainText();
    EXPECT_TRUE(hint.startsWith(u"Enter your total available cash amount in the 'Amount' field."));
    EXPECT_TRUE(hint.endsWith(u"Enter '0' if an initial balance is not needed. "));

    QTest::keyClicks(dialog->EditField3, u"250"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(readBytes(home.books() + u"/  GardenAccountData"_s),
              "999@#@Balance@#@@#@250@#@0@#@250@#@" + hint.toUtf8() + "@#@\n");
    EXPECT_EQ(window->accountsBox().rowPicture(0), RowPicture::BookIcon);
    EXPECT_EQ(readBytes(home.quillmark() + u"/BookList"_s), QByteArray("  Shop\n  Home\n  Garden\n"));
}

TEST_F(CommandsTest, AddingAnAccountChecksItsNameAndStoresIt)
{
    SummaryWindow* window = openShop();
    press(window, u"Add"_s);
    AccountWindow* dialog = Windows::AccountWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->PushButton1->isEnabled());
    const QByteArray accounts = accountsFile();

    // The rules are the books' (tested there); the dialog shows a refusal and stays.
    QTest::keyClicks(dialog->EditField1, u"rENT"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(platform.messages, QStringList{u"That account name is already in use. Please enter a different name."_s});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(accountsFile(), accounts);

    dialog->EditField1->setText(u"Tips"_s);
    QTest::mouseClick(dialog->RadioButton1, Qt::LeftButton);
    QTest::keyClicks(dialog->EditField4, u"jar by"_s);
    QTest::keyClick(dialog->EditField4, Qt::Key_Return);
    QTest::keyClicks(dialog->EditField4, u" the till"_s);
    EXPECT_EQ(platform.beeps, 1) << "Return gives no line break in the notes";
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(accountsFile().endsWith("999@#@Tips@#@Revenue@#@0.00@#@0@#@0@#@jar by the till@#@\n"));
    EXPECT_EQ(window->accountsBox().rowPicture(5), RowPicture::accountPlus9);
}

TEST_F(CommandsTest, EditingKeepsTheTypeAndRenamesTheTransactionsInAnyCase)
{
    SummaryWindow* window = openShop();
    window->accountsBox().SetListIndex(2);
    press(window, u"Edit"_s);
    AccountWindow* dialog = Windows::AccountWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->RadioButton1->isChecked());
    EXPECT_FALSE(dialog->RadioButton1->isEnabled());
    EXPECT_FALSE(dialog->RadioButton2->isEnabled());
    EXPECT_FALSE(dialog->nameChanged) << "filling the fields is no typing";

    dialog->EditField1->setText(u"Takings"_s);
    dialog->EditField3->clear();
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(column(window->transBox(), 1), (QStringList{u"Rent"_s, u"Takings"_s, u"FUEL"_s, u"Takings"_s}))
        << "the row the dialog was opened on, renamed with its transactions";
    EXPECT_EQ(window->accountsBox().Cell(2, 3), u"0.00") << "an empty opening shows as 0.00";

    // A name typed back to the account's own, in another case, counts as in use.
    doubleClick(window->accountsBoxView, 1);
    dialog = Windows::AccountWindow();
    ASSERT_TRUE(dialog->isVisible());
    dialog->EditField1->setText(u"rent"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(platform.messages.last(), u"That account name is already in use. Please enter a different name.");
    EXPECT_EQ(window->accountsBox().Cell(1, 1), u"Rent");
    QTest::mouseClick(dialog->PushButton2, Qt::LeftButton);

    // The Base Account is edited from the toolbar only, without a type.
    doubleClick(window->accountsBoxView, 0);
    EXPECT_FALSE(Windows::AccountWindow()->isVisible());
    press(window, u"Edit"_s);
    dialog = Windows::AccountWindow();
    EXPECT_EQ(dialog->StaticText4->text(), u"Amount:");
    EXPECT_FALSE(dialog->Canvas2->isVisible());
    dialog->EditField3->setText(u"150"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_TRUE(accountsFile().startsWith("@#@Cash@#@@#@150@#@")) << accountsFile().toStdString();
}

TEST_F(CommandsTest, DeletingAnAccountTakesItsTransactionsOnlyWhenConfirmed)
{
    SummaryWindow* window = openShop();
    window->accountsBox().SetListIndex(3);
    const QByteArray accounts = accountsFile();
    const QByteArray transactions = transFile();

    platform.answerNextDialog(MessageDialog::Button::Cancel);
    press(window, u"Delete"_s);
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].Message, u"Are you sure you want to delete the account and all of its transactions?");
    EXPECT_EQ(platform.dialogs[0].Explanation, u"This action cannot be undone.");
    EXPECT_EQ(platform.dialogs[0].ActionButton, u"Delete");
    EXPECT_EQ(platform.dialogs[0].CancelButton, u"Cancel");
    EXPECT_EQ(accountsFile(), accounts);
    EXPECT_EQ(transFile(), transactions);
    EXPECT_FALSE(window->books().deletingOn);

    platform.answerNextDialog(MessageDialog::Button::Action);
    press(window, u"Delete"_s);
    EXPECT_EQ(column(window->accountsBox(), 1), (QStringList{u"Cash"_s, u"Rent"_s, u"Sales"_s, u"Car-Hire"_s}));
    EXPECT_FALSE(accountsFile().contains("Fuel"));
    EXPECT_FALSE(transFile().contains("FUEL")) << "its transactions in any letter case";
    EXPECT_EQ(transFile().count('\n'), 3);
    EXPECT_FALSE(window->books().deletingOn);
}

TEST_F(CommandsTest, TheContextMenuMovesTheSelectedTransactionCutAtTheDash)
{
    SummaryWindow* window = openShop();
    ListboxView* grid = window->transBoxView;
    window->transBox().SetListIndex(0);
    QApplication::processEvents();

    const QPoint onRow2 = grid->visualRect(grid->model()->index(2, 3)).center();
    QTest::mousePress(grid->viewport(), Qt::RightButton, {}, onRow2);
    QContextMenuEvent request(QContextMenuEvent::Mouse, onRow2, grid->viewport()->mapToGlobal(onRow2));
    QApplication::sendEvent(grid->viewport(), &request);
    EXPECT_EQ(window->transBox().ListIndex(), 0) << "the right click doesn't select";

    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QStringList items;
    for (QAction* item : menu->actions())
        items << item->text();
    EXPECT_EQ(items, (QStringList{u"-Rent"_s, u"-Sales"_s, u"-Fuel"_s, u"-Car-Hire"_s}));
    menu->actions().at(1)->trigger();
    menu->close();
    EXPECT_EQ(window->transBox().Cell(0, 1), u"Sales");
    EXPECT_EQ(window->accountsBox().Cell(1, 4).trimmed(), u"0.00") << "recalculated";
    EXPECT_TRUE(transFile().startsWith("@#@Sales@#@2026-01-02@#@January@#@"));

    TransactionOperations(window->books()).transBox_ContextualMenuAction(u"999-Car-Hire"_s);
    EXPECT_EQ(window->transBox().Cell(0, 0), u"999");
    EXPECT_EQ(window->transBox().Cell(0, 1), u"Car") << "cut at the dash";
}
