#include "books/ui/newBookWindow.h"

#include "ledger/SummaryBooks.h"
#include "platform/ui/DialogLayout.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

newBookWindow::newBookWindow(SummaryBooks& books, QWidget* parent)
    : QDialog(parent)
    , books_(books)
{
    makeSheet(*this, u"newBookWindow"_s, u"New Ledger"_s, QSize(300, 102));

    StaticText1 = new QLabel(u"New Ledger Name:"_s, this);
    EditField1 = named(new QLineEdit(this), u"EditField1"_s);
    PushButton1 = named(new QPushButton(u"OK"_s, this), u"PushButton1"_s);
    PushButton1->setDefault(true);
    PushButton1->setEnabled(false);
    PushButton2 = named(new QPushButton(u"Cancel"_s, this), u"PushButton2"_s);

    layOutOneFieldDialog(*this, StaticText1, EditField1, PushButton1, PushButton2);

    EditField1->installEventFilter(this);
    connect(PushButton1, &QPushButton::clicked, this, &newBookWindow::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &QDialog::close);
}

bool newBookWindow::eventFilter(QObject* watched, QEvent* event)
{
    // OK follows the field as it stands before the key takes effect.
    if (watched == EditField1 && event->type() == QEvent::KeyPress)
        PushButton1->setEnabled(!EditField1->text().isEmpty());
    return QDialog::eventFilter(watched, event);
}

void newBookWindow::PushButton1_Action()
{
    if (!books_.shelf.addLedger(EditField1->text())) {
        EditField1->setFocus();
        return;
    }
    Q_EMIT ledgerAdded();
    books_.shelf.saveBooks();
    close();
}
