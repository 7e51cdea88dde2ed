#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

// Asks for the name of a new ledger, as a sheet over the main window.
class newBookWindow : public QDialog {
    Q_OBJECT

public:
    newBookWindow();

    QLabel* StaticText1;
    QLineEdit* EditField1;   // the name, typed without the two blanks
    QPushButton* PushButton1; // OK
    QPushButton* PushButton2; // Cancel

    void PushButton1_Action();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
