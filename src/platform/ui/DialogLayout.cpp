#include "platform/ui/DialogLayout.h"

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

void layOutOneFieldDialog(QDialog& dialog, QLabel* label, QLineEdit* field, QPushButton* ok, QPushButton* cancel)
{
    auto* layout = new QGridLayout(&dialog);
    layout->addWidget(label, 0, 0);
    layout->addWidget(field, 0, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(ok);
    layout->addLayout(buttons, 1, 0, 1, 2);
    label->setBuddy(field);
    QWidget::setTabOrder(cancel, ok);
}

void makeSheet(QDialog& dialog, const QString& name, const QString& title, QSize size)
{
    dialog.setObjectName(name);
    dialog.setWindowTitle(title);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setFixedSize(size);
}
