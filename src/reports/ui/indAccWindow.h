#pragma once

#include "books/rowtable/Listbox.h"
#include "engine/TransactionEntry.h"
#include "reports/AccountTransactions.h"

#include <QDialog>

#include <functional>

class AutoButton;
class DateControl;
class ListboxView;
class QLabel;
class QPushButton;
class SummaryBooks;
class TransactionWindow;

// One account's transactions: the list of its rows in transBox, its balance, a
// range of days to narrow the list to, and buttons to add, edit, delete and
// print. Every change goes to the books; the list follows.
class indAccWindow : public QDialog {
    Q_OBJECT

public:
    indAccWindow(SummaryBooks& books, std::function<::TransactionWindow*()> transactionWindow, QWidget* parent);

    QString accNum;            // the account's name
    bool daterangeOn = false;  // nothing reads it

    Listbox ListBox1Table{QStringLiteral("ListBox1"), AccountListCol::Count, Listbox::SelectionType::Multiple};
    ListboxView* ListBox1;
    QLabel* StaticText4;       // "Transactions:"
    QLabel* StaticText3;       // the account's name
    AutoButton* Canvas1;       // add
    AutoButton* Canvas3;       // edit
    AutoButton* Canvas2;       // delete
    AutoButton* Canvas4;       // print
    QLabel* Label1;            // "From"
    DateControl* DateControl1;
    QLabel* Label2;            // "To"
    DateControl* DateControl2;
    QPushButton* PushButton1;  // "Apply"
    QPushButton* PushButton2;  // "Show All"
    QLabel* Label4;            // "Balance:"
    QLabel* Label3;            // the balance, or the total of the list
    QPushButton* PushButton3;  // "OK"

    // "Transactions" on the account of this row of the accounts table.
    void openAccount(int accountRow);
    void loadAccount();
    void updateBalance();

    void PushButton1_Action();
    void PushButton2_Action();
    void Canvas1_Action();
    void Canvas3_Action();
    void Canvas2_Action();
    void Canvas4_Action();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The transaction dialog, reporting to this window.
    ::TransactionWindow* transactionDialog();
    void placeControls();

    SummaryBooks& books_;
    std::function<::TransactionWindow*()> transactionWindow_;
    AccountList accountList_{ListBox1Table, {}};
};
