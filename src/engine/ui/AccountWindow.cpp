#include "engine/ui/AccountWindow.h"

#include "engine/AccountMaintenance.h"
#include "engine/RowLayouts.h"
#include "ledger/AccountOperations.h"
#include "ledger/SummaryBooks.h"
#include "platform/BlockingServices.h"
#include "platform/ui/DialogLayout.h"
#include "widgets/Canvas.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

const QString kAmountLabel = u"Amount:"_s;

} // namespace

AccountWindow::AccountWindow(SummaryBooks& books, QWidget* parent)
    : QDialog(parent)
    , books_(books)
{
    makeSheet(*this, u"AccountWindow"_s, u"Account Information"_s, QSize(409, 297));
    StaticText1 = named(new QLabel(u"Account Name:"_s, this), u"StaticText1"_s);
    EditField1 = named(new QLineEdit(this), u"EditField1"_s);
    StaticText3 = named(new QLabel(u"Account Type:"_s, this), u"StaticText3"_s);
    RadioButton1 = named(new QRadioButton(u"Revenue"_s, this), u"RadioButton1"_s);
    RadioButton2 = named(new QRadioButton(u"Expense"_s, this), u"RadioButton2"_s);
    RadioButton2->setChecked(true);
    Canvas2 = named(new Canvas(this), u"Canvas2"_s);
    Canvas2->setFixedSize(16, 16);
    StaticText4 = named(new QLabel(u"Opening Balance:"_s, this), u"StaticText4"_s);
    EditField3 = named(new QLineEdit(this), u"EditField3"_s);
    StaticText2 = named(new QLabel(u"Notes:"_s, this), u"StaticText2"_s);
    EditField4 = named(new QPlainTextEdit(this), u"EditField4"_s);
    PushButton1 = named(new QPushButton(u"OK"_s, this), u"PushButton1"_s);
    PushButton1->setDefault(true);
    PushButton1->setEnabled(false);
    PushButton2 = named(new QPushButton(u"Cancel"_s, this), u"PushButton2"_s);

    auto* layout = new QGridLayout(this);
    layout->addWidget(StaticText1, 0, 0);
    layout->addWidget(EditField1, 0, 1, 1, 3);
    layout->addWidget(StaticText3, 1, 0);
    auto* types = new QHBoxLayout;
    types->addWidget(RadioButton1);
    types->addWidget(RadioButton2);
    types->addWidget(Canvas2);
    types->addStretch();
    layout->addLayout(types, 1, 1, 1, 3);
    layout->addWidget(StaticText4, 2, 0);
    layout->addWidget(new QLabel(u"$"_s, this), 2, 1);
    layout->addWidget(EditField3, 2, 2);
    layout->addWidget(new QLabel(u"(optional)"_s, this), 2, 3);
    layout->addWidget(StaticText2, 3, 0, Qt::AlignTop);
    layout->addWidget(EditField4, 3, 1, 1, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(PushButton2);
    buttons->addWidget(PushButton1);
    layout->addLayout(buttons, 4, 0, 1, 4);
    showTypePicture();
    StaticText1->setBuddy(EditField1);
    StaticText4->setBuddy(EditField3);
    StaticText2->setBuddy(EditField4);
    setTabOrder(PushButton2, PushButton1);

    EditField4->installEventFilter(this);
    connect(EditField1, &QLineEdit::textChanged, this, &AccountWindow::EditField1_TextChange);
    connect(RadioButton1, &QRadioButton::toggled, this, &AccountWindow::showTypePicture);
    connect(PushButton1, &QPushButton::clicked, this, &AccountWindow::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &QDialog::close);
}

void AccountWindow::hideAccountType()
{
    RadioButton1->hide();
    RadioButton2->hide();
    StaticText3->hide();
    StaticText4->setText(kAmountLabel);
}

void AccountWindow::prepareBaseAccount()
{
    nameChanged = true;
    const AccountFields preset = baseAccountFields();
    EditField4->setPlainText(preset.notes);
    EditField1->setText(preset.name);
    EditField1->setCursorPosition(EditField1->text().size());
    hideAccountType();
    show();
    EditField3->setFocus();
}

void AccountWindow::editAccount(int row)
{
    if (row == 0) {
        hideAccountType();
        Canvas2->hide();
    }
    const AccountFields shown = accountFieldsOf(books_.accountsBox, row);
    editedRow_ = row;
    oldName = shown.name;
    editingOn = true;
    windowOpening = true;
    EditField1->setText(oldName);
    // The type of an account never changes after it was made.
    (shown.typeWord == AccountType::Revenue ? RadioButton1 : RadioButton2)->setChecked(true);
    RadioButton1->setEnabled(false);
    RadioButton2->setEnabled(false);
    EditField3->setText(shown.opening);
    EditField4->setPlainText(shown.notes);
    PushButton1->setEnabled(true);
    show();
    windowOpening = false;
}

void AccountWindow::showTypePicture()
{
    Canvas2->setBackdrop(Picture::named(RadioButton1->isChecked() ? u"accountPlus9"_s : u"accountMinus9"_s));
}

void AccountWindow::EditField1_TextChange()
{
    PushButton1->setEnabled(!EditField1->text().isEmpty());
    if (!windowOpening && editingOn)
        nameChanged = true;
}

AccountFields AccountWindow::fields() const
{
    AccountFields fields;
    fields.name = EditField1->text();
    if (StaticText4->text() != kAmountLabel)
        fields.typeWord = (RadioButton1->isChecked() ? AccountType::Revenue : AccountType::Expense).toString();
    fields.opening = EditField3->text();
    fields.notes = EditField4->toPlainText();
    return fields;
}

void AccountWindow::PushButton1_Action()
{
    EditField4->setFocus(); // ends an edit under way
    const QString problem = AccountOperations(books_).saveAccount(fields(), nameChanged, editingOn ? editedRow_ : -1, oldName);
    if (!problem.isEmpty()) {
        MsgBox(problem);
        EditField1->setFocus();
        return;
    }
    close();
}

bool AccountWindow::eventFilter(QObject* watched, QEvent* event)
{
    // The notes take no line break from the Return key.
    if (watched == EditField4 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Beep();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
