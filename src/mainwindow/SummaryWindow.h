#pragma once

#include "widgets/smartWindow.h"
#include "ledger/SummaryBooks.h"
#include "mainwindow/SummaryDialogs.h"

class AutoButton;
class Canvas;
class ListboxView;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QMenu;
class Toolbar1;
class WindowSplitter;

// The main window: the ledger list at the left, the accounts of the open ledger
// at the upper right and its transactions below. It shows the tables of its
// SummaryBooks and forwards the user's actions to them; the dialogs it opens come
// from the accessors it is given. Closing it stores the open ledger and ends the
// application.
class SummaryWindow : public smartWindow {
    Q_OBJECT

public:
    explicit SummaryWindow(SummaryDialogs dialogs, QWidget* parent = nullptr);

    SummaryBooks& books() { return books_; }

    // Shortcuts to the tables, as the other windows name them.
    Listbox& LedgerList() { return books_.LedgerList; }
    Listbox& accountsBox() { return books_.accountsBox; }
    Listbox& transBox() { return books_.transBox; }
    void calcAll() { books_.calcAll(); }

    // What printAll puts on paper: "accounts", "transactions" or "all".
    QString printRequest;

    // The controls, by their design names, top to bottom.
    Toolbar1* Toolbar11 = nullptr;
    ListboxView* LedgerListView = nullptr;
    QPushButton* PushButton3 = nullptr; // "+": new ledger
    QPushButton* PushButton4 = nullptr; // "-": delete ledger
    QGroupBox* GroupBox1 = nullptr;
    QLabel* StaticText1 = nullptr;
    ListboxView* accountsBoxView = nullptr;
    Canvas* Canvas5 = nullptr; // over the accounts' headings: they can't be pressed
    WindowSplitter* WindowSplitter1 = nullptr;
    QGroupBox* GroupBox2 = nullptr;
    AutoButton* addtransbtn = nullptr;
    AutoButton* deltransbtn = nullptr;
    AutoButton* editTransBtn = nullptr;
    QLabel* StaticText2 = nullptr;
    QLineEdit* EditField1 = nullptr; // the search field's twin, under Canvas13
    AutoButton* Canvas7 = nullptr;
    AutoButton* endSearch = nullptr;
    Canvas* Canvas13 = nullptr;      // the search field's frame
    QLineEdit* EditField11 = nullptr;
    AutoButton* Canvas71 = nullptr;
    AutoButton* endSearch1 = nullptr;
    ListboxView* transBoxView = nullptr;
    QCheckBox* reconcilecheckbox = nullptr;
    QLabel* StaticText4 = nullptr; // "Total Tax:", hidden
    QLabel* taxText = nullptr;
    QLabel* StaticText3 = nullptr; // "Total Transactions:", hidden
    QLabel* balText = nullptr;
    Canvas* Canvas10 = nullptr;    // the strip along the bottom
    QLineEdit* separatorFld = nullptr;

    void PushButton3_Action();
    void PushButton4_Action();
    // --- commands ---
    void Toolbar11_Action(QAction* item);
    void Toolbar11_DropDownMenuAction(QAction* item, QAction* menuItem);
    void Event_EnableMenuItems();
    void _FilePrint_Action();
    void _FilePageSetup_Action();
    void _FileExportData_Action();
    void _FileImportData_Action();
    // Writes every transaction to the CSV file the user names.
    void exportData();
    // Prints what printRequest says, on the page set up in this run.
    void printAll();
    void _FileNewAccount_Action();
    void _FileNewTransaction_Action();
    void addtransbtn_Action();
    // Opens the transaction dialog on the selected transaction.
    void editTransaction();
    void editTransBtn_Action() { editTransaction(); }
    void deltransbtn_Action();
    // Selects the transactions that hold the text of the search field.
    void findTrans();
    void searchIcon_Action();
    // Takes the search's selection away and empties the field.
    void endSearch_Action(AutoButton* pressed);
    void transBox_DoubleClick() { editTransaction(); }
    // Opens the account dialog on the selected account.
    void editAccount();
    void accountsBox_DoubleClick();
    bool transBox_CellClick(int row, int column, int x, int y, bool contextual);
    bool transBox_ConstructContextualMenu(QMenu& menu);
    void transBox_ContextualMenuAction(QAction* item);

    void WindowSplitter1_Open();
    void WindowSplitter1_SplitterMoved() {}
    bool accountsBox_DragReorderRows(int newPosition, int parentRow);
    // Opens the account dialog for the first account of a new ledger.
    void makeNewAccount();
    // Writes the window's place to "WindowData".
    void saveWindowData();

protected:
    void Open() override;
    void Close() override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildLedgerColumn(QWidget* parent);
    void buildAccountsRegion(QWidget* parent);
    void buildTransactionsRegion(QWidget* parent);
    QWidget* buildSearchField(QWidget* parent);
    QWidget* buildBottomLine(QWidget* parent);
    void buildMenuBar();
    void connectCommands();
    void showTotals();

    SummaryDialogs dialogs_;
    SummaryBooks books_;
    bool splitterPlaced_ = false;
};
