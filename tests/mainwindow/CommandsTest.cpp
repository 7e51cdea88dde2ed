// The main window's commands on an open ledger, as a user gives them, with the
// files checked on disk. The rules behind the calls are tested on the books.
#include "engine/RowLayouts.h"
#include "engine/ui/AccountWindow.h"
#include "ledger/TransactionOperations.h"
#include "mainwindow/MenuBar1.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "widgets/AutoButton.h"
#include "widgets/Canvas.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

namespace {

class CommandsTest : public SummaryWindowTest {
protected:
    // "  Shop": the Base Account and four more; transactions name their accounts
    // in any letter case.
    SummaryWindow* openShop()
    {
        SummaryWindow* window = SummaryWindowTest::openShop("@#@Cash@#@Base Account@#@100.00@#@0@#@100@#@@#@\n"
                                                            "@#@Rent@#@Expense@#@0.00@#@-20@#@-20@#@@#@\n"
                                                            "@#@Sales@#@Revenue@#@0.00@#@30@#@30@#@@#@\n"
                                                            "@#@Fuel@#@Expense@#@0.00@#@-5@#@-5@#@@#@\n"
                                                            "@#@Car-Hire@#@Expense@#@0.00@#@0@#@0@#@@#@\n",
            "@#@Rent@#@2026-01-02@#@January@#@@#@-20@#@0@#@-20@#@@#@@#@@#@Never@#@\n"
            "@#@sales@#@2026-01-03@#@till@#@@#@10@#@0@#@10@#@@#@@#@@#@Never@#@\n"
            "@#@FUEL@#@2026-01-04@#@diesel@#@@#@-5@#@0@#@-5@#@@#@@#@@#@Never@#@\n"
            "@#@Sales@#@2026-01-05@#@till@#@@#@20@#@0@#@20@#@@#@@#@@#@Never@#@\n");
        QApplication::processEvents();
        return window;
    }

    static void click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, 8)); }

    // A drag with the mouse from the middle of one row to a point in the grid.
    static void dragRow(ListboxView* grid, int row, QPoint drop)
    {
        const QPoint start = rowCenter(grid, row);
        QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, start);
        QTest::mouseMove(grid->viewport(), start + QPoint(0, drop.y() > start.y() ? 8 : -8));
        QTest::mouseMove(grid->viewport(), drop);
        QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, drop);
    }

    static std::vector<int> selected(const Listbox& table)
    {
        std::vector<int> rows;
        for (int row = 0; row < table.ListCount(); ++row)
            if (table.Selected(row))
                rows.push_back(row);
        return rows;
    }
};

} // namespace

TEST_F(CommandsTest, RefusedCommandsSayWhyAndChangeNothing)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    const QMenuBar& bar = *window->menuBar();
    EXPECT_FALSE(MenuBar1::item(bar, u"FileImportData"_s)->isEnabled());
    EXPECT_FALSE(MenuBar1::item(bar, u"FileExportData"_s)->isEnabled());
    EXPECT_TRUE(MenuBar1::item(bar, u"FileNewAccount"_s)->isEnabled());

    for (const QString& item : {u"Add"_s, u"Delete"_s, u"Edit"_s, u"Transfer"_s, u"Transactions"_s, u"Ledger"_s,
                                u"Graphs"_s})
        press(window, item);
    for (QAction* printItem : window->Toolbar11->printSaveMenu()->actions())
        printItem->trigger();
    const QString noLedger = u"No ledger selected."_s;
    const QString noAccount = u"No account selected."_s;
    EXPECT_EQ(platform.messages, (QStringList{noLedger, noAccount, noAccount, noLedger, u"No account selected"_s,
                                              noLedger, noLedger, noLedger, noLedger, noLedger}));
    EXPECT_EQ(window->printRequest, u"");
    EXPECT_TRUE(window->findChildren<AccountWindow*>().isEmpty());

    // With a ledger open, the account commands still need an account; the Base
    // Account can't be deleted and has no transactions window.
    window->LedgerList().SetListIndex(0);
    EXPECT_TRUE(MenuBar1::item(bar, u"FileImportData"_s)->isEnabled());
    const QByteArray accounts = stored("Account");
    platform.messages.clear();
    for (const QString& item : {u"Delete"_s, u"Edit"_s, u"Transactions"_s})
        press(window, item);
    window->accountsBox().SetListIndex(0);
    press(window, u"Delete"_s);
    press(window, u"Transactions"_s);
    EXPECT_EQ(platform.messages, (QStringList{noAccount, noAccount, u"No account selected"_s,
                                              u"The Base Account cannot be deleted."_s, u"No account selected"_s}));
    EXPECT_TRUE(platform.dialogs.empty());
    EXPECT_EQ(stored("Account"), accounts);

    window->Toolbar11->printSaveMenu()->actions().at(1)->trigger();
    EXPECT_EQ(window->printRequest, u"transactions");
}

TEST_F(CommandsTest, AddingAnAccountShowsARefusalAndStoresWhatTheDialogHolds)
{
    SummaryWindow* window = openShop();
    press(window, u"Add"_s);
    AccountWindow* dialog = Windows::AccountWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->PushButton1->isEnabled());

    QTest::keyClicks(dialog->EditField1, u"rENT"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(platform.messages, QStringList{u"That account name is already in use. Please enter a different name."_s});
    EXPECT_TRUE(dialog->isVisible());

    dialog->EditField1->setText(u"Tips"_s);
    QTest::mouseClick(dialog->RadioButton1, Qt::LeftButton);
    QTest::keyClicks(dialog->EditField4, u"jar by"_s);
    QTest::keyClick(dialog->EditField4, Qt::Key_Return);
    QTest::keyClicks(dialog->EditField4, u" the till"_s);
    EXPECT_EQ(platform.beeps, 1) << "Return gives no line break in the notes";
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(stored("Account").endsWith("999@#@Tips@#@Revenue@#@0.00@#@0@#@0@#@jar by the till@#@\n"));
}

TEST_F(CommandsTest, EditingOpensOnTheSelectedRowWithItsTypeFixed)
{
    SummaryWindow* window = openShop();
    window->accountsBox().SetListIndex(2);
    press(window, u"Edit"_s);
    AccountWindow* dialog = Windows::AccountWindow();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->RadioButton1->isChecked());
    EXPECT_FALSE(dialog->RadioButton1->isEnabled());
    EXPECT_FALSE(dialog->nameChanged) << "filling the fields is no typing";
    dialog->EditField1->setText(u"Takings"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(window->accountsBox().Cell(2, 1), u"Takings");

    // A double click edits any account but the Base Account, which the toolbar
    // edits without a type. The account's own name typed in another case is in use.
    window->accountsBox().SetListIndex(1);
    window->accountsBox().userDoubleClicked();
    dialog = Windows::AccountWindow();
    ASSERT_TRUE(dialog->isVisible());
    dialog->EditField1->setText(u"rent"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(platform.messages, QStringList{u"That account name is already in use. Please enter a different name."_s});
    QTest::mouseClick(dialog->PushButton2, Qt::LeftButton);
    window->accountsBox().SetListIndex(0);
    window->accountsBox().userDoubleClicked();
    EXPECT_FALSE(Windows::AccountWindow()->isVisible());
    press(window, u"Edit"_s);
    dialog = Windows::AccountWindow();
    EXPECT_FALSE(dialog->Canvas2->isVisible());
    dialog->EditField3->setText(u"150"_s);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_TRUE(stored("Account").startsWith("@#@Cash@#@@#@150@#@")) << stored("Account").toStdString();
}

TEST_F(CommandsTest, DeletingAnAccountOrTransactionsWaitsForTheConfirmation)
{
    SummaryWindow* window = openShop();
    window->accountsBox().SetListIndex(3);
    const QByteArray accounts = stored("Account");
    press(window, u"Delete"_s); // cancelled
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].Message, u"Are you sure you want to delete the account and all of its transactions?");
    EXPECT_EQ(stored("Account"), accounts);
    platform.answerNextDialog(MessageDialog::Button::Action);
    press(window, u"Delete"_s);
    EXPECT_EQ(columnOf(window->accountsBox(), 1), (QStringList{u"Cash"_s, u"Rent"_s, u"Sales"_s, u"Car-Hire"_s}));

    click(window->deltransbtn);
    EXPECT_EQ(platform.messages, QStringList{u"No transaction selected."_s});
    window->transBox().setSelectedRows({0, 2});
    const QByteArray transactions = stored("Trans");
    click(window->deltransbtn); // cancelled
    EXPECT_EQ(platform.dialogs.size(), 3u);
    EXPECT_EQ(stored("Trans"), transactions);
    platform.answerNextDialog(MessageDialog::Button::Action);
    click(window->deltransbtn);
    EXPECT_EQ(columnOf(window->transBox(), 3), QStringList{u"till"_s});
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
    QTest::mouseRelease(grid->viewport(), Qt::RightButton, {}, onRow2); // no button left down for later tests
    EXPECT_EQ(window->transBox().Cell(0, 1), u"Sales");
    EXPECT_EQ(window->accountsBox().Cell(1, 4).trimmed(), u"0.00") << "recalculated";
    EXPECT_TRUE(stored("Trans").startsWith("@#@Sales@#@2026-01-02@#@January@#@"));

    TransactionOperations(window->books()).transBox_ContextualMenuAction(u"999-Car-Hire"_s);
    EXPECT_EQ(window->transBox().Cell(0, 0), u"999");
    EXPECT_EQ(window->transBox().Cell(0, 1), u"Car") << "cut at the dash";
}

TEST_F(CommandsTest, AnAccountDroppedOnTopIsRefusedAndAnyOtherDropIsStored)
{
    SummaryWindow* window = openShop();
    ListboxView* grid = window->accountsBoxView;
    const QByteArray accounts = stored("Account");
    dragRow(grid, 2, QPoint(30, 2));
    EXPECT_EQ(platform.beeps, 1);
    EXPECT_EQ(stored("Account"), accounts);

    // Dropped on the lower half of the last row: Rent goes to the end.
    dragRow(grid, 1, QPoint(30, grid->visualRect(grid->model()->index(4, 1)).bottom() - 2));
    EXPECT_EQ(columnOf(window->accountsBox(), 1),
              (QStringList{u"Cash"_s, u"Sales"_s, u"Fuel"_s, u"Car-Hire"_s, u"Rent"_s}));
    EXPECT_TRUE(stored("Account").endsWith("@#@Rent@#@Expense@#@0.00@#@-20@#@-20@#@@#@\n"));
    EXPECT_EQ(window->accountsBox().ListIndex(), 4) << "the dragged row stays selected";

    // The Base Account itself may go down: only the drop position is looked at.
    dragRow(grid, 0, rowCenter(grid, 1) + QPoint(0, 8));
    EXPECT_EQ(platform.beeps, 1);
    EXPECT_EQ(window->accountsBox().Cell(1, 1), u"Cash");
}

TEST_F(CommandsTest, OnlyTheTransactionHeadingsSort)
{
    SummaryWindow* window = openShop();
    QSignalSpy pressed(&window->accountsBox(), &Listbox::HeaderPressed);
    const auto clickHeading = [window](ListboxView* grid, int section) {
        QHeaderView* headings = grid->horizontalHeader();
        const QPoint at(headings->sectionViewportPosition(section) + 10, headings->height() / 2);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, headings->mapTo(window, at));
    };
    clickHeading(window->accountsBoxView, 1);
    EXPECT_EQ(pressed.count(), 0);
    clickHeading(window->transBoxView, 2);
    clickHeading(window->transBoxView, 2);
    EXPECT_EQ(columnOf(window->transBox(), 2),
              (QStringList{u"2026-01-05"_s, u"2026-01-04"_s, u"2026-01-03"_s, u"2026-01-02"_s}));
}

TEST_F(CommandsTest, SearchingSelectsTheHitsUntilTheSearchEnds)
{
    SummaryWindow* window = openShop();
    QTest::keyClicks(window->EditField11, u"TILL"_s);
    QTest::keyClick(window->EditField11, Qt::Key_Return);
    EXPECT_EQ(selected(window->transBox()), (std::vector<int>{1, 3}));
    EXPECT_TRUE(window->endSearch1->isVisible());
    window->EditField11->setText(u"diesel"_s);
    click(window->Canvas71);
    EXPECT_EQ(selected(window->transBox()), std::vector<int>{2});

    click(window->endSearch1);
    EXPECT_TRUE(selected(window->transBox()).empty());
    EXPECT_EQ(window->EditField11->text(), u"");
    EXPECT_FALSE(window->endSearch1->isVisible());
    click(window->Canvas71);
    EXPECT_FALSE(window->endSearch1->isVisible()) << "the icon needs a text";

    // Another ledger empties both search fields.
    window->EditField1->setText(u"rent"_s);
    window->EditField11->setText(u"rent"_s);
    window->LedgerList().SetListIndex(1);
    EXPECT_EQ(window->EditField1->text() + window->EditField11->text(), u"");
}

TEST_F(CommandsTest, AReconcileBoxIsStoredAndCountsOnlyInReconcileMode)
{
    SummaryWindow* window = openShop();
    QAbstractItemModel* model = window->transBoxView->model();
    model->setData(model->index(1, 1), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Reconciled), u"true");
    EXPECT_TRUE(stored("Trans").contains("@#@10@#@0@#@10@#@@#@@#@true@#@Never@#@\n"));
    EXPECT_EQ(window->accountsBox().Cell(1, AccountCol::Transactions).trimmed(), u"-20") << "reconcile mode is off";

    window->reconcilecheckbox->setChecked(true);
    model->setData(model->index(0, 1), Qt::Checked, Qt::CheckStateRole);
    model->setData(model->index(0, 1), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_EQ(window->accountsBox().Cell(2, AccountCol::Transactions).trimmed(), u"10.00") << "the checked row alone";
    EXPECT_EQ(window->accountsBox().Cell(1, AccountCol::Transactions).trimmed(), u"0.00");
    EXPECT_EQ(window->balText->text(), u"10");
    EXPECT_FALSE(window->balText->isVisible()) << "the totals are kept, not shown";

    window->reconcilecheckbox->setChecked(false);
    EXPECT_EQ(window->accountsBox().Cell(2, AccountCol::Transactions).trimmed(), u"30.00");
}
