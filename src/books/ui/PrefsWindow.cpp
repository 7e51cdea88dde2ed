#include "books/ui/PrefsWindow.h"

#include "books/prefsDictionary.h"
#include "platform/ui/DialogLayout.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

PrefsWindow::PrefsWindow()
{
    setObjectName(u"PrefsWindow"_s);
    setWindowTitle(u"Preferences"_s);
    setWindowModality(Qt::ApplicationModal);
    setFixedSize(349, 113);

    StaticText1 = new QLabel(u"Bank Card/Account Number:"_s, this);
    EditField1 = new QLineEdit(prefsDictionary::prefsDict().value(u"AccountNumber"_s), this);
    PushButton1 = new QPushButton(u"OK"_s, this);
    PushButton1->setDefault(true);
    PushButton2 = new QPushButton(u"Cancel"_s, this);

    layOutOneFieldDialog(*this, StaticText1, EditField1, PushButton1, PushButton2);

    connect(PushButton1, &QPushButton::clicked, this, [this] {
        prefsDictionary::prefsDict().insert(u"AccountNumber"_s, EditField1->text());
        accept();
    });
    connect(PushButton2, &QPushButton::clicked, this, &QDialog::reject);
    // Every way of closing ends here: OK, Cancel, Escape, the close box.
    connect(this, &QDialog::finished, this, [] { prefsDictionary::savePreferences(); });
}
