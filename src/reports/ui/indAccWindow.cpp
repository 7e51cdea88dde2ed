#include "reports/ui/indAccWindow.h"

#include "books/Globals.h"
#include "books/rowtable/ui/ListboxView.h"
#include "engine/RowLayouts.h"
#include "engine/ui/TransactionWindow.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"
#include "platform/BlockingServices.h"
#include "platform/ui/DialogLayout.h"
#include "reports/LedgerReport.h"
#include "reports/SummaryPrint.h"
#include "widgets/AutoButton.h"
#include "widgets/DateControl.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSize(670, 310);

AutoButton* iconButton(QWidget* parent, const QString& name, const QString& picture, const QString& tip)
{
    auto* button = named(new AutoButton(parent), name);
    button->setBackdrop(Picture::named(picture));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    return button;
}

} // namespace

indAccWindow::indAccWindow(SummaryBooks& books, std::function<::TransactionWindow*()> transactionWindow,
                           QWidget* parent)
    : QDialog(parent)
    , books_(books)
    , transactionWindow_(std::move(transactionWindow))
{
    setObjectName(u"indAccWindow"_s);
    setWindowModality(Qt::WindowModal);
    setMinimumSize(kSize);
    resize(kSize);

    StaticText4 = named(new QLabel(u"Transactions:"_s, this), u"StaticText4"_s);
    QFont bold = StaticText4->font();
    bold.setBold(true);
    StaticText4->setFont(bold);
    StaticText3 = named(new QLabel(this), u"StaticText3"_s);
    Canvas1 = iconButton(this, u"Canvas1"_s, u"addpng_32x32"_s, u"Add a transaction"_s);
    Canvas3 = iconButton(this, u"Canvas3"_s, u"editpng_32x32"_s, u"Edit the selected transaction"_s);
    Canvas2 = iconButton(this, u"Canvas2"_s, u"deletepng_32x32"_s, u"Delete the selected transactions"_s);
    Canvas4 = iconButton(this, u"Canvas4"_s, u"printer36"_s, u"Print"_s);

    setUpAccountList(ListBox1Table);
    ListBox1 = named(new ListboxView(ListBox1Table, this), u"ListBox1"_s);
    ListBox1->applyColumnSettings();
    ListBox1->setDefaultRowHeight(kTransRowHeight);
    ListBox1->setCellLook([](int row, int, bool) {
        CellLook look;
        look.background = ledgerBackground(row);
        return look;
    });

    Label1 = named(new QLabel(u"From"_s, this), u"Label1"_s);
    DateControl1 = named(new DateControl(this), u"DateControl1"_s);
    Label2 = named(new QLabel(u"To"_s, this), u"Label2"_s);
    DateControl2 = named(new DateControl(this), u"DateControl2"_s);
    PushButton1 = named(new QPushButton(u"Apply"_s, this), u"PushButton1"_s);
    PushButton2 = named(new QPushButton(u"Show All"_s, this), u"PushButton2"_s);
    Label4 = named(new QLabel(u"Balance:"_s, this), u"Label4"_s);
    Label3 = named(new QLabel(this), u"Label3"_s);
    PushButton3 = named(new QPushButton(u"OK"_s, this), u"PushButton3"_s);
    placeControls();
    ListBox1->setAccessibleName(u"Transactions"_s);
    Label1->setBuddy(DateControl1);
    Label2->setBuddy(DateControl2);

    connect(PushButton1, &QPushButton::clicked, this, &indAccWindow::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &indAccWindow::PushButton2_Action);
    connect(PushButton3, &QPushButton::clicked, this, &QDialog::close);
    connect(Canvas1, &AutoButton::Action, this, &indAccWindow::Canvas1_Action);
    connect(Canvas3, &AutoButton::Action, this, &indAccWindow::Canvas3_Action);
    connect(Canvas2, &AutoButton::Action, this, &indAccWindow::Canvas2_Action);
    connect(Canvas4, &AutoButton::Action, this, &indAccWindow::Canvas4_Action);
    for (AutoButton* button : {Canvas1, Canvas3, Canvas2, Canvas4})
        button->Event_Open();
}


void indAccWindow::placeControls()
{
    // The list takes the room; the range and the balance keep to the foot, the
    // buttons to the right.
    const int dx = width() - kSize.width();
    const int dy = height() - kSize.height();
    StaticText4->setGeometry(20, 12, 95, 20);
    StaticText3->setGeometry(115, 12, 330 + dx, 20);
    Canvas1->setGeometry(478 + dx, 4, 32, 32);
    Canvas3->setGeometry(514 + dx, 4, 32, 32);
    Canvas2->setGeometry(550 + dx, 4, 32, 32);
    Canvas4->setGeometry(614 + dx, 2, 36, 36);
    ListBox1->setGeometry(20, 42, 630 + dx, 222 + dy);
    Label1->setGeometry(14, 277 + dy, 35, 18);
    DateControl1->setGeometry(51, 274 + dy, 100, 23);
    Label2->setGeometry(156, 277 + dy, 16, 18);
    DateControl2->setGeometry(174, 274 + dy, 100, 23);
    PushButton1->setGeometry(282, 272 + dy, 70, 27);
    PushButton2->setGeometry(356, 272 + dy, 80, 27);
    Label4->setGeometry(446 + dx, 277 + dy, 56, 18);
    Label3->setGeometry(502 + dx, 277 + dy, 80, 18);
    PushButton3->setGeometry(590 + dx, 272 + dy, 60, 27);
}

void indAccWindow::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    placeControls();
}

bool indAccWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        Globals::gfrontIndAccWindow = this;
    return QDialog::event(event);
}

void indAccWindow::openAccount(int accountRow)
{
    accNum = books_.accountsBox.Cell(accountRow, AccountCol::Name);
    StaticText3->setText(accNum);
    loadAccount();
}

void indAccWindow::loadAccount()
{
    ::loadAccount(ListBox1Table, books_.transBox, accNum);
    updateBalance();
}

void indAccWindow::updateBalance()
{
    Label3->setText(selectedAccountBalance(books_.accountsBox));
}

void indAccWindow::PushButton1_Action()
{
    const DateRangeResult range = applyDateRange(ListBox1Table, DateControl1->DateValue(), DateControl2->DateValue());
    if (!range.applied)
        return;
    if (range.removedAny) {
        for (AutoButton* button : {Canvas1, Canvas2, Canvas3})
            button->disableMe();
    }
    Label3->setText(range.total);
}

void indAccWindow::PushButton2_Action()
{
    ListBox1Table.DeleteAllRows();
    loadAccount();
    updateBalance();
    for (AutoButton* button : {Canvas1, Canvas2, Canvas3})
        button->enableMe();
}

::TransactionWindow* indAccWindow::transactionDialog()
{
    ::TransactionWindow* dialog = transactionWindow_();
    connect(dialog, &::TransactionWindow::accountListChanged, this, &indAccWindow::updateBalance,
            Qt::UniqueConnection);
    return dialog;
}

void indAccWindow::Canvas1_Action()
{
    transactionDialog()->addToAccountList(this, accountList_, accountMenuItem(books_.accountsBox, StaticText3->text()));
}

void indAccWindow::Canvas3_Action()
{
    const int line = ListBox1Table.ListIndex();
    if (line == -1)
        return MsgBox(u"No transaction selected"_s);
    transactionDialog()->editFromList(this, accountList_, line);
}

void indAccWindow::Canvas2_Action()
{
    if (TransactionOperations(books_).deleteAccountListLines(ListBox1Table))
        updateBalance();
}

void indAccWindow::Canvas4_Action()
{
    printAccountTransactions(ListBox1Table, StaticText3->text(), Label3->text());
}
