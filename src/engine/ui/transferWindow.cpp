#include "engine/ui/transferWindow.h"

#include "books/rowtable/ui/ListboxView.h"
#include "engine/RowLayouts.h"
#include "engine/Transfers.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"
#include "platform/BlockingServices.h"
#include "platform/Clock.h"
#include "platform/Numbers.h"
#include "platform/ui/DialogLayout.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

transferWindow::transferWindow(SummaryBooks& books, QWidget* parent)
    : QDialog(parent)
    , books_(books)
{
    makeSheet(*this, u"transferWindow"_s, u"Transfer Funds Between Accounts"_s, QSize(579, 302));

    setUpTransferList(ListBox1Table);
    setUpTransferList(ListBox2Table);
    StaticText1 = named(new QLabel(u"Transfer From:"_s, this), u"StaticText1"_s);
    StaticText1->setGeometry(20, 12, 260, 20);
    ListBox1 = named(new ListboxView(ListBox1Table, this), u"ListBox1"_s);
    ListBox1->setGeometry(20, 34, 260, 180);
    StaticText2 = named(new QLabel(u"Transfer To:"_s, this), u"StaticText2"_s);
    StaticText2->setGeometry(299, 12, 260, 20);
    ListBox2 = named(new ListboxView(ListBox2Table, this), u"ListBox2"_s);
    ListBox2->setGeometry(299, 34, 260, 180);

    StaticText3 = named(new QLabel(u"Amount to Transfer:"_s, this), u"StaticText3"_s);
    StaticText3->setGeometry(20, 228, 140, 24);
    EditField1 = named(new QLineEdit(u"0.00"_s, this), u"EditField1"_s);
    EditField1->setGeometry(160, 228, 120, 24);
    EditField1->setAlignment(Qt::AlignRight);
    EditField1->setEnabled(false);

    PushButton2 = named(new QPushButton(u"Cancel"_s, this), u"PushButton2"_s);
    PushButton2->setGeometry(389, 262, 80, 28);
    PushButton1 = named(new QPushButton(u"OK"_s, this), u"PushButton1"_s);
    PushButton1->setGeometry(479, 262, 80, 28);
    PushButton1->setDefault(true);
    ListBox1->setAccessibleName(u"Transfer From"_s);
    ListBox2->setAccessibleName(u"Transfer To"_s);
    StaticText3->setBuddy(EditField1);

    Timer1 = new QTimer(this);
    Timer1->setSingleShot(true);
    Timer1->setInterval(200);

    connect(Timer1, &QTimer::timeout, this, &transferWindow::Timer1_Action);
    connect(&ListBox1Table, &Listbox::Change, this, &transferWindow::ListBox1_Change);
    connect(&ListBox2Table, &Listbox::Change, this, &transferWindow::ListBox2_Change);
    connect(EditField1, &QLineEdit::textChanged, this, &transferWindow::EditField1_TextChange);
    connect(PushButton1, &QPushButton::clicked, this, &transferWindow::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &QDialog::close);
    Timer1->start();
}


void transferWindow::Timer1_Action()
{
    fillTransferList(ListBox1Table, books_.accountsBox);
    fillTransferList(ListBox2Table, books_.accountsBox);
}

void transferWindow::ListBox1_Change()
{
    sourceRow = ListBox1Table.ListIndex();
    sourceAmount = listedBalance(ListBox1Table, sourceRow);
    EditField1->setEnabled(sourceRow > -1 && ListBox2Table.ListIndex() > -1);
}

void transferWindow::ListBox2_Change()
{
    destRow = ListBox2Table.ListIndex();
    destAmount = listedBalance(ListBox2Table, destRow);
    EditField1->setEnabled(destRow > -1 && ListBox1Table.ListIndex() > -1);
}

void transferWindow::EditField1_TextChange()
{
    transferAmount = Val(EditField1->text());
    if (const QString problem = previewTransfer(ListBox1Table, ListBox2Table, sourceAmount, destAmount, transferAmount);
        !problem.isEmpty())
        MsgBox(problem);
}

void transferWindow::PushButton1_Action()
{
    const double amount = Val(EditField1->text());
    if (amount > 0.0) {
        const QString problem = TransactionOperations(books_).doTransferFromTo(ListBox1Table.Cell(ListBox1Table.ListIndex(), 0),
                                                        ListBox2Table.Cell(ListBox2Table.ListIndex(), 0), amount,
                                                        Clock::today());
        if (!problem.isEmpty()) {
            MsgBox(problem);
            return;
        }
    }
    close();
}

void transferWindow::closeEvent(QCloseEvent* event)
{
    books_.CheckRepeats();
    QDialog::closeEvent(event);
}
