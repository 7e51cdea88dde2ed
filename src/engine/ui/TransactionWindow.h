#pragma once

#include "engine/TransactionEntry.h"

#include <QDialog>

class AutoButton;
class CalendarControl;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class SummaryBooks;

// "Transaction": adds a transaction to the open ledger or changes one, as a
// sheet over the main window. It works on the books it is given; its fields
// are a TransactionForm, and OK and the GST button are the books' calls.
class TransactionWindow : public QDialog {
    Q_OBJECT

public:
    TransactionWindow(SummaryBooks& books, QWidget* parent);

    bool editingOn = false;   // an existing row is changed
    int accountboxrow = 0;    // account row of the chosen account: the menu's index
    // The window that asked for the dialog: the dialog itself unless one of the
    // opening calls below names its caller. When it is neither the dialog nor the
    // main window, it is an account's transactions window, whose list shows the
    // change too.
    QWidget* whichWindow = nullptr;

    QLabel* StaticText1;          // "Account Name:"
    QComboBox* PopupMenu1;        // "Select account", then the accounts from row 1
    QLabel* StaticText2;          // "Amount:"
    QLineEdit* EditField1;        // the amount
    QRadioButton* RadioButton1;   // "Deposit"
    QRadioButton* RadioButton2;   // "Withdrawal"
    QLabel* StaticText3;          // "Adjustment:"
    QLineEdit* EditField5;        // the adjustment, stored as the Tax cell
    QLabel* StaticText9;          // "optional"
    CalendarControl* CalendarControl1;
    QLabel* StaticText4;          // "Description:"
    QLineEdit* EditField3;
    QLabel* StaticText5;          // "Invoice Number:"
    QLineEdit* EditField4;
    QLabel* StaticText6;          // "Memo:"
    QLineEdit* EditField6;
    QLabel* StaticText7;          // "Repeat Transaction:"
    QComboBox* PopupMenu2;        // "Never", "Monthly", "Annually"
    QPushButton* PushButton1;     // OK
    QPushButton* PushButton2;     // Cancel
    AutoButton* Canvas1;          // the GST button

    // The fields as they stand.
    TransactionForm form() const;
    // Shows the dialog to add a transaction for the main window, with the
    // account of accountRow chosen when it is one (above 0).
    void addTransaction(QWidget* caller, int accountRow);
    // Shows the dialog to add a transaction from an account's transactions
    // window: that account chosen for good (the menu disabled), and the window's
    // list shows the new line.
    void addToAccountList(QWidget* caller, const AccountList& list, int accountItem);
    // Shows the dialog on a row of transBox, to change it: the fields filled from
    // the row, which is stored as it stands.
    void editTransaction(int row);
    // Shows the dialog on a line of an account's transactions window, to change
    // the transaction it copies: the fields filled from the line.
    void editFromList(QWidget* caller, const AccountList& list, int line);
    // Chooses an account of the menu, as the user would.
    void chooseAccount(int item);

    void PopupMenu1_Change();
    void EditField1_TextChange();
    void RadioButton1_Action();
    void PushButton1_Action();
    void Canvas1_Action();
    void editAddTransaction();
    void doGST();

Q_SIGNALS:
    // OK or the GST button wrote a line into the list of the account's window
    // that asked for the dialog.
    void accountListChanged();

private:
    void showForm(const TransactionForm& form);
    // Over the account's window as well as the main window, which share a parent.
    void openOverAccountList(QWidget* caller, const AccountList& list);
    const AccountList* listToShowIn() const;

    SummaryBooks& books_;
    // The list and balance of the account's window that asked for the dialog.
    const AccountList* accountList_ = nullptr;
};
