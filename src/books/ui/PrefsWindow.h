#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

// The one preference, the user's bank card or account number. The preferences
// are stored whenever the window closes, whichever button closed it.
class PrefsWindow : public QDialog {
    Q_OBJECT

public:
    PrefsWindow();

    QLabel* StaticText1;
    QLineEdit* EditField1;
    QPushButton* PushButton1; // OK
    QPushButton* PushButton2; // Cancel
};
