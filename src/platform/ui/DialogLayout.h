#pragma once

#include <QSize>
#include <QString>

class QDialog;
class QLabel;
class QLineEdit;
class QPushButton;

// A control under its design name, by which handlers, tests and styles know it.
template <typename W>
W* named(W* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

// A dialog shown as a sheet over its parent window: its name, its title, modal to
// that window alone, and a fixed size.
void makeSheet(QDialog& dialog, const QString& name, const QString& title, QSize size);

// The small dialogs that ask for one text: the label and the field on a line, the
// buttons below at the right, OK last. The label names the field to assistive
// tools, and Tab goes from Cancel to OK as they stand.
void layOutOneFieldDialog(QDialog& dialog, QLabel* label, QLineEdit* field, QPushButton* ok, QPushButton* cancel);
