// The main window's commands: menu bar, toolbar, the accounts' double click and
// the context menu of the transactions.
#include "ledger/AccountOperations.h"
#include "ledger/TransactionOperations.h"
#include "mainwindow/SummaryWindow.h"

#include "books/rowtable/ui/ListboxView.h"
#include "charts/ui/chartingWindow.h"
#include "engine/ui/AccountWindow.h"
#include "engine/ui/TransactionWindow.h"
#include "engine/ui/transferWindow.h"
#include "widgets/AutoButton.h"
#include "mainwindow/MenuBar1.h"
#include "mainwindow/Toolbar1.h"
#include "platform/BlockingServices.h"
#include "books/Globals.h"
#include "exchange/CsvExport.h"
#include "exchange/FileTypes1.h"
#include "exchange/ui/CustomImportWindow.h"
#include "platform/PrinterSetup.h"
#include "reports/SummaryPrint.h"
#include "reports/ui/indAccWindow.h"
#include "reports/ui/ledgerWindow.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

const QString kNoLedger = u"No ledger selected."_s;

} // namespace

void SummaryWindow::buildMenuBar()
{
    setMenuBar(MenuBar1::build(this));
    const QMenuBar& bar = *menuBar();
    MenuBar1::bind(bar, u"FileQuit"_s, this, [this] { close(); });
    MenuBar1::bind(bar, u"FilePrint"_s, this, [this] { _FilePrint_Action(); });
    MenuBar1::bind(bar, u"FilePageSetup"_s, this, [this] { _FilePageSetup_Action(); });
    MenuBar1::bind(bar, u"FileExportData"_s, this, [this] { _FileExportData_Action(); });
    MenuBar1::bind(bar, u"FileImportData"_s, this, [this] { _FileImportData_Action(); });
    MenuBar1::bind(bar, u"FileNewAccount"_s, this, [this] { _FileNewAccount_Action(); });
    MenuBar1::bind(bar, u"FileNewTransaction"_s, this, [this] { _FileNewTransaction_Action(); });
    if (QMenu* file = bar.findChild<QMenu*>(u"FileMenu"_s))
        connect(file, &QMenu::aboutToShow, this, &SummaryWindow::Event_EnableMenuItems);
}

void SummaryWindow::connectCommands()
{
    connect(Toolbar11, &Toolbar1::Action, this, &SummaryWindow::Toolbar11_Action);
    connect(Toolbar11, &Toolbar1::DropDownMenuAction, this, &SummaryWindow::Toolbar11_DropDownMenuAction);
    // Opening or closing a ledger changes what the menus offer.
    connect(&books_, &SummaryBooks::importAvailable, this, &SummaryWindow::Event_EnableMenuItems);
    connect(&books_, &SummaryBooks::searchFieldCleared, EditField1, &QLineEdit::clear);
    connect(&books_, &SummaryBooks::searchFieldCleared, EditField11, &QLineEdit::clear);
    connect(deltransbtn, &AutoButton::Action, this, &SummaryWindow::deltransbtn_Action);
    // One set of search controls shows: the field on the frame, its icon and its
    // end button. The twin set under the frame answers alike.
    for (QLineEdit* field : {EditField1, EditField11})
        connect(field, &QLineEdit::returnPressed, this, &SummaryWindow::findTrans);
    for (AutoButton* icon : {Canvas7, Canvas71})
        connect(icon, &AutoButton::Action, this, &SummaryWindow::searchIcon_Action);
    for (AutoButton* end : {endSearch, endSearch1})
        connect(end, &AutoButton::Action, this, [this, end] { endSearch_Action(end); });
    connect(&books_.accountsBox, &Listbox::DoubleClick, this, &SummaryWindow::accountsBox_DoubleClick);
    connect(&books_.transBox, &Listbox::DoubleClick, this, &SummaryWindow::transBox_DoubleClick);
    connect(addtransbtn, &AutoButton::Action, this, &SummaryWindow::addtransbtn_Action);
    connect(editTransBtn, &AutoButton::Action, this, &SummaryWindow::editTransBtn_Action);
    transBoxView->CellClick = [this](int row, int column, int x, int y, bool contextual) {
        return transBox_CellClick(row, column, x, y, contextual);
    };
    transBoxView->ConstructContextualMenu = [this](QMenu& menu) { return transBox_ConstructContextualMenu(menu); };
    transBoxView->ContextualMenuAction = [this](QAction* item) { transBox_ContextualMenuAction(item); };
    Event_EnableMenuItems();
}

void SummaryWindow::Event_EnableMenuItems()
{
    const QMenuBar& bar = *menuBar();
    for (const QString& name : {u"FilePrint"_s, u"FileNewAccount"_s, u"FileNewTransaction"_s})
        MenuBar1::item(bar, name)->setEnabled(true);
    const bool ledgerOpen = books_.LedgerList.ListIndex() > -1;
    MenuBar1::item(bar, u"FileImportData"_s)->setEnabled(ledgerOpen);
    MenuBar1::item(bar, u"FileExportData"_s)->setEnabled(ledgerOpen);
}

void SummaryWindow::_FilePrint_Action()
{
    printRequest = u"all"_s;
    printAll();
}

void SummaryWindow::_FilePageSetup_Action()
{
    PrinterSetup setup;
    setup.SetupString = Globals::ps;
    if (setup.PageSetupDialog())
        Globals::ps = setup.SetupString;
}

void SummaryWindow::_FileExportData_Action()
{
    exportData();
}

void SummaryWindow::exportData()
{
    const QString path = SaveAsDialog({.Title = u"Export Data"_s,
                                       .PromptText = u"Export Data"_s,
                                       .SuggestedFileName = u"untitled"_s,
                                       .Filter = {}});
    if (path.isEmpty())
        return;
    if (const QString problem = ::exportData(books_.transBox, path); !problem.isEmpty())
        MsgBox(problem);
}

void SummaryWindow::_FileImportData_Action()
{
    // The file first: the dialog shows what it holds.
    const QString path = OpenDialog({.Title = u"Select a transaction data file"_s,
                                     .PromptText = {},
                                     .SuggestedFileName = {},
                                     .Filter = FileTypes1::CommaSeparatedValues().filter()});
    if (path.isEmpty())
        return;
    ::CustomImportWindow* dialog = dialogs_.CustomImportWindow();
    if (dialog->openFile(path))
        dialog->show();
    else
        dialog->close();
}

void SummaryWindow::printAll()
{
    ::printAll(printRequest, windowTitle(), books_.accountsBox, books_.transBox);
}

void SummaryWindow::_FileNewAccount_Action()
{
    ::AccountWindow* dialog = dialogs_.AccountWindow();
    dialog->nameChanged = true;
    dialog->show();
}

void SummaryWindow::_FileNewTransaction_Action()
{
    dialogs_.TransactionWindow()->show();
}

void SummaryWindow::addtransbtn_Action()
{
    if (books_.LedgerList.ListIndex() == -1)
        return;
    dialogs_.TransactionWindow()->addTransaction(this, books_.accountsBox.ListIndex());
}

void SummaryWindow::editTransaction()
{
    const int row = books_.transBox.ListIndex();
    if (row == -1)
        return MsgBox(u"No transaction selected."_s);
    dialogs_.TransactionWindow()->editTransaction(row);
}

void SummaryWindow::deltransbtn_Action()
{
    TransactionOperations(books_).deleteSelectedTransactions();
}

void SummaryWindow::findTrans()
{
    TransactionOperations(books_).findTrans(EditField11->text());
    endSearch1->show();
    transBoxView->setFocus();
}

void SummaryWindow::searchIcon_Action()
{
    if (!EditField11->text().isEmpty())
        findTrans();
}

void SummaryWindow::endSearch_Action(AutoButton* pressed)
{
    books_.transBox.setSelectedRows({});
    EditField11->clear();
    pressed->hide();
}

void SummaryWindow::Toolbar11_Action(QAction* item)
{
    const QString name = item->objectName();
    const bool ledgerOpen = books_.LedgerList.ListIndex() != -1;
    if (name == u"Add") {
        if (!ledgerOpen)
            return MsgBox(kNoLedger);
        _FileNewAccount_Action();
    } else if (name == u"Delete") {
        AccountOperations(books_).deleteSelectedAccount();
        return; // the calculation redraws the tables
    } else if (name == u"Edit") {
        editAccount();
    } else if (name == u"Transactions") {
        if (books_.accountsBox.ListIndex() <= 0)
            return MsgBox(u"No account selected"_s);
        ::indAccWindow* account = dialogs_.indAccWindow();
        account->openAccount(books_.accountsBox.ListIndex());
        account->show();
    } else if (name == u"Transfer") {
        if (!ledgerOpen)
            return MsgBox(kNoLedger);
        ::transferWindow* transfer = dialogs_.transferWindow();
        transfer->myParent = this;
        transfer->show();
    } else if (name == u"Ledger") {
        if (!ledgerOpen)
            return MsgBox(kNoLedger);
        ::ledgerWindow* report = dialogs_.ledgerWindow();
        report->setWindowTitle(books_.LedgerList.Text() + u" - Summary"_s);
        report->show();
    } else if (name == u"Graphs") {
        if (!ledgerOpen)
            return MsgBox(kNoLedger);
        ::chartingWindow* charts = dialogs_.chartingWindow();
        charts->setWindowTitle(books_.LedgerList.Text());
        charts->show();
    }
    update();
}

void SummaryWindow::Toolbar11_DropDownMenuAction(QAction*, QAction* menuItem)
{
    if (books_.LedgerList.ListIndex() == -1)
        return MsgBox(kNoLedger);
    const QString text = menuItem->text();
    if (text == u"Print/Save Accounts")
        printRequest = u"accounts"_s;
    else if (text == u"Print/Save Transactions")
        printRequest = u"transactions"_s;
    else if (text == u"Print/Save Both")
        printRequest = u"all"_s;
    printAll();
    update();
}

void SummaryWindow::makeNewAccount()
{
    if (books_.accountsBox.ListCount() > 0) {
        calcAll();
        return;
    }
    dialogs_.AccountWindow()->prepareBaseAccount();
}

void SummaryWindow::editAccount()
{
    const int row = books_.accountsBox.ListIndex();
    if (row < 0)
        return MsgBox(u"No account selected."_s);
    dialogs_.AccountWindow()->editAccount(row);
}

void SummaryWindow::accountsBox_DoubleClick()
{
    if (books_.accountsBox.ListIndex() != 0)
        editAccount();
}

bool SummaryWindow::transBox_CellClick(int, int column, int, int, bool contextual)
{
    // A right click leaves the selection alone: the menu acts on the selected row.
    return contextual && column != 0;
}

bool SummaryWindow::transBox_ConstructContextualMenu(QMenu& menu)
{
    for (const QString& text : TransactionOperations(books_).transBox_ContextualMenuItems())
        menu.addAction(text);
    return true;
}

void SummaryWindow::transBox_ContextualMenuAction(QAction* item)
{
    TransactionOperations(books_).transBox_ContextualMenuAction(item->text());
}
