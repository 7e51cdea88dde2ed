#pragma once

#include "books/rowtable/Listbox.h"

#include <QDialog>

class ListboxView;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;
class SummaryBooks;

// "Transfer Funds Between Accounts": moves an amount from one account of the
// open ledger to another, as a sheet over the main window. Its two lists are a
// snapshot of the accounts taken as it opens; typing an amount previews the
// balances after the transfer, and OK enters it through the books.
class transferWindow : public QDialog {
    Q_OBJECT

public:
    transferWindow(SummaryBooks& books, QWidget* parent);

    QWidget* myParent = nullptr; // the main window, which asked for the transfer
    double sourceAmount = 0;     // balance of the source when it was selected
    double destAmount = 0;       // balance of the destination when it was selected
    double transferAmount = 0;   // Val of the amount field
    int sourceRow = -1;
    int destRow = -1;

    Listbox ListBox1Table{QStringLiteral("ListBox1"), 2};
    Listbox ListBox2Table{QStringLiteral("ListBox2"), 2};
    QLabel* StaticText1;        // "Transfer From:"
    ListboxView* ListBox1;
    QLabel* StaticText2;        // "Transfer To:"
    ListboxView* ListBox2;
    QLabel* StaticText3;        // "Amount to Transfer:"
    QLineEdit* EditField1;
    QPushButton* PushButton1;   // OK
    QPushButton* PushButton2;   // Cancel
    QTimer* Timer1;

    void Timer1_Action();
    void ListBox1_Change();
    void ListBox2_Change();
    void EditField1_TextChange();
    void PushButton1_Action();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    SummaryBooks& books_;
};
