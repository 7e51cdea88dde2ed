#pragma once

class QDialog;
class QLabel;
class QLineEdit;
class QPushButton;

// The small dialogs that ask for one text: the label and the field on a line, the
// buttons below at the right, OK last.
void layOutOneFieldDialog(QDialog& dialog, QLabel* label, QLineEdit* field, QPushButton* ok, QPushButton* cancel);
