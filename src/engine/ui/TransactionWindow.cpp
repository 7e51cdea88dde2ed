#include "engine/ui/TransactionWindow.h"

#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"
#include "platform/ui/DialogLayout.h"
#include "widgets/AutoButton.h"
#include "widgets/CalendarControl.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

// The fields stand in a column at the right, their labels right-aligned before
// them; the GST button and the calendar at the left.
constexpr int kLabelLeft = 168;
constexpr int kLabelWidth = 124;
constexpr int kFieldLeft = 310;
constexpr int kFieldWidth = 195;
constexpr int kLineHeight = 24;

QLabel* fieldLabel(QWidget* parent, const QString& name, const QString& text, int top)
{
    auto* label = named(new QLabel(text, parent), name);
    label->setGeometry(kLabelLeft, top, kLabelWidth, kLineHeight);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QLineEdit* textField(QWidget* parent, const QString& name, int left, int top, int width)
{
    auto* field = named(new QLineEdit(parent), name);
    field->setGeometry(left, top, width, kLineHeight);
    return field;
}

void dollarSign(QWidget* parent, int top)
{
    auto* sign = new QLabel(u"$"_s, parent);
    sign->setGeometry(kFieldLeft - 11, top, 9, kLineHeight);
}

} // namespace

TransactionWindow::TransactionWindow(SummaryBooks& books, QWidget* parent)
    : QDialog(parent)
    , books_(books)
{
    makeSheet(*this, u"TransactionWindow"_s, u"Transaction"_s, QSize(520, 305));

    Canvas1 = named(new AutoButton(this), u"Canvas1"_s);
    Canvas1->setGeometry(62, 28, 67, 68);
    Canvas1->setBackdrop(Picture::named(u"bookIcon64"_s));
    Canvas1->setAccessibleName(u"Add with GST"_s);
    CalendarControl1 = named(new CalendarControl(this), u"CalendarControl1"_s);
    CalendarControl1->setGeometry(28, 119, 135, 143);
    CalendarControl1->setAccessibleName(u"Date"_s);

    StaticText1 = fieldLabel(this, u"StaticText1"_s, u"Account Name:"_s, 18);
    PopupMenu1 = named(new QComboBox(this), u"PopupMenu1"_s);
    PopupMenu1->setGeometry(kFieldLeft, 18, kFieldWidth, kLineHeight);

    StaticText2 = fieldLabel(this, u"StaticText2"_s, u"Amount:"_s, 56);
    dollarSign(this, 56);
    EditField1 = textField(this, u"EditField1"_s, kFieldLeft, 56, 95);
    RadioButton1 = named(new QRadioButton(u"Deposit"_s, this), u"RadioButton1"_s);
    RadioButton1->setGeometry(415, 46, 95, 20);
    RadioButton2 = named(new QRadioButton(u"Withdrawal"_s, this), u"RadioButton2"_s);
    RadioButton2->setGeometry(415, 68, 95, 20);
    RadioButton2->setChecked(true);

    StaticText3 = fieldLabel(this, u"StaticText3"_s, u"Adjustment:"_s, 96);
    dollarSign(this, 96);
    EditField5 = textField(this, u"EditField5"_s, kFieldLeft, 96, 95);
    StaticText9 = named(new QLabel(u"optional"_s, this), u"StaticText9"_s);
    StaticText9->setGeometry(kFieldLeft, 120, 95, 14);
    QFont small = StaticText9->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    StaticText9->setFont(small);
    StaticText9->setForegroundRole(QPalette::PlaceholderText);

    StaticText4 = fieldLabel(this, u"StaticText4"_s, u"Description:"_s, 140);
    EditField3 = textField(this, u"EditField3"_s, kFieldLeft, 140, kFieldWidth);
    StaticText5 = fieldLabel(this, u"StaticText5"_s, u"Invoice Number:"_s, 170);
    EditField4 = textField(this, u"EditField4"_s, kFieldLeft, 170, kFieldWidth);
    StaticText6 = fieldLabel(this, u"StaticText6"_s, u"Memo:"_s, 200);
    EditField6 = textField(this, u"EditField6"_s, kFieldLeft, 200, kFieldWidth);
    StaticText7 = fieldLabel(this, u"StaticText7"_s, u"Repeat Transaction:"_s, 230);
    PopupMenu2 = named(new QComboBox(this), u"PopupMenu2"_s);
    PopupMenu2->setGeometry(kFieldLeft, 230, 120, kLineHeight);
    PopupMenu2->addItems(kRepeatWords);

    PushButton2 = named(new QPushButton(u"Cancel"_s, this), u"PushButton2"_s);
    PushButton2->setGeometry(335, 266, 80, 28);
    PushButton1 = named(new QPushButton(u"OK"_s, this), u"PushButton1"_s);
    PushButton1->setGeometry(425, 266, 80, 28);
    PushButton1->setDefault(true);
    PushButton1->setEnabled(false);
    const std::pair<QLabel*, QWidget*> buddies[] = {{StaticText1, PopupMenu1}, {StaticText2, EditField1},
                                                    {StaticText3, EditField5}, {StaticText4, EditField3},
                                                    {StaticText5, EditField4}, {StaticText6, EditField6},
                                                    {StaticText7, PopupMenu2}};
    for (const auto& [label, field] : buddies)
        label->setBuddy(field);

    // Event_Open
    whichWindow = this;
    PopupMenu1->addItems(accountMenu(books_.accountsBox));
    Canvas1->Event_Open();

    connect(PopupMenu1, &QComboBox::currentIndexChanged, this, &TransactionWindow::PopupMenu1_Change);
    connect(EditField1, &QLineEdit::textChanged, this, &TransactionWindow::EditField1_TextChange);
    connect(RadioButton1, &QRadioButton::clicked, this, &TransactionWindow::RadioButton1_Action);
    connect(PushButton1, &QPushButton::clicked, this, &TransactionWindow::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &QDialog::close);
    connect(Canvas1, &AutoButton::Action, this, &TransactionWindow::Canvas1_Action);
}

TransactionForm TransactionWindow::form() const
{
    TransactionForm form;
    form.account = PopupMenu1->currentIndex();
    form.accountText = PopupMenu1->currentText();
    form.accountRow = accountboxrow;
    form.amount = EditField1->text();
    form.deposit = RadioButton1->isChecked();
    form.adjustment = EditField5->text();
    form.date = CalendarControl1->SelectedDate();
    form.description = EditField3->text();
    form.invoice = EditField4->text();
    form.memo = EditField6->text();
    form.repeat = PopupMenu2->currentText();
    return form;
}

void TransactionWindow::showForm(const TransactionForm& form)
{
    chooseAccount(form.account);
    EditField1->setText(form.amount);
    (form.deposit ? RadioButton1 : RadioButton2)->setChecked(true);
    EditField5->setText(form.adjustment);
    CalendarControl1->SetSelectedDate(form.date);
    EditField3->setText(form.description);
    EditField4->setText(form.invoice);
    EditField6->setText(form.memo);
    PopupMenu2->setCurrentIndex(int(kRepeatWords.indexOf(form.repeat)));
}

void TransactionWindow::chooseAccount(int item)
{
    PopupMenu1->setCurrentIndex(item); // fires PopupMenu1_Change when the item is another
}

void TransactionWindow::addTransaction(QWidget* caller, int accountRow)
{
    if (accountRow > 0)
        chooseAccount(accountRow);
    whichWindow = caller;
    show();
}

void TransactionWindow::openOverAccountList(QWidget* caller, const AccountList& list)
{
    whichWindow = caller;
    accountList_ = &list;
    setWindowModality(Qt::ApplicationModal);
}

void TransactionWindow::addToAccountList(QWidget* caller, const AccountList& list, int accountItem)
{
    openOverAccountList(caller, list);
    if (accountItem > 0)
        chooseAccount(accountItem);
    PopupMenu1->setEnabled(false);
    show();
}

void TransactionWindow::editTransaction(int row)
{
    editingOn = true;
    show();
    TransactionForm filled = form();
    fillFromTransaction(filled, books_.transBox, row, books_.accountsBox);
    showForm(filled);
    books_.store(LedgerFiles::Table::Transactions);
}

void TransactionWindow::editFromList(QWidget* caller, const AccountList& list, int line)
{
    openOverAccountList(caller, list);
    editingOn = true;
    show();
    TransactionForm filled = form();
    fillFromTransaction(filled, list.list, line, books_.accountsBox);
    showForm(filled);
}

void TransactionWindow::PopupMenu1_Change()
{
    TransactionForm chosen = form();
    ::chooseAccount(chosen, books_.accountsBox, PopupMenu1->currentIndex());
    if (chosen.account > 0) {
        accountboxrow = chosen.account;
        (chosen.deposit ? RadioButton1 : RadioButton2)->setChecked(true);
    }
    PushButton1->setEnabled(okEnabled(chosen));
}

void TransactionWindow::EditField1_TextChange()
{
    PushButton1->setEnabled(okEnabled(form()));
}

void TransactionWindow::RadioButton1_Action()
{
    TransactionForm clicked = form();
    chooseDeposit(clicked);
    EditField1->setText(clicked.amount);
}

void TransactionWindow::PushButton1_Action()
{
    editAddTransaction();
    close();
}

void TransactionWindow::Canvas1_Action()
{
    if (!gstEnabled(form()))
        return;
    editAddTransaction();
    doGST();
    close();
}

const AccountList* TransactionWindow::listToShowIn() const
{
    return whichWindow != this && whichWindow != parentWidget() ? accountList_ : nullptr;
}

void TransactionWindow::editAddTransaction()
{
    const AccountList* list = listToShowIn();
    TransactionOperations(books_).editAddTransaction(form(), editingOn, list);
    if (list)
        Q_EMIT accountListChanged();
}

void TransactionWindow::doGST()
{
    const AccountList* list = listToShowIn();
    TransactionOperations(books_).doGST(form(), list);
    if (list)
        Q_EMIT accountListChanged();
}
