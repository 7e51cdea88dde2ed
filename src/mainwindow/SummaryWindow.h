#pragma once

#include "books/SummaryBooks.h"

#include <QMainWindow>

class ListboxView;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;

// The main window: the ledger list at the left, the accounts of the open ledger
// at the upper right and its transactions below. It shows the tables of its
// SummaryBooks and forwards the user's actions to them.
class SummaryWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit SummaryWindow(QWidget* parent = nullptr);
    ~SummaryWindow() override;

    SummaryBooks& books() { return books_; }

    // Shortcuts to the tables, as the other windows name them.
    Listbox& LedgerList() { return books_.LedgerList; }
    Listbox& accountsBox() { return books_.accountsBox; }
    Listbox& transBox() { return books_.transBox; }
    void calcAll() { books_.calcAll(); }

    ListboxView* LedgerListView = nullptr;
    ListboxView* accountsBoxView = nullptr;
    ListboxView* transBoxView = nullptr;
    QPushButton* PushButton3 = nullptr; // "+": new ledger
    QPushButton* PushButton4 = nullptr; // "-": delete ledger
    QGroupBox* GroupBox1 = nullptr;
    QLabel* StaticText1 = nullptr;
    QGroupBox* GroupBox2 = nullptr;
    QLabel* StaticText2 = nullptr;
    QCheckBox* reconcilecheckbox = nullptr;

    void PushButton3_Action();
    void PushButton4_Action();
    // Opens the account dialog for the first account of a new ledger.
    void makeNewAccount();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Event_Open();
    void Event_Close();
    void buildMenuBar();

    SummaryBooks books_;
};
