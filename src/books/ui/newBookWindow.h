#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class SummaryBooks;

// Asks for the name of a new ledger, as a sheet over the main window, and adds
// it to the books it is given.
class newBookWindow : public QDialog {
    Q_OBJECT

public:
    newBookWindow(SummaryBooks& books, QWidget* parent);

    QLabel* StaticText1;
    QLineEdit* EditField1;   // the name, typed without the two blanks
    QPushButton* PushButton1; // OK
    QPushButton* PushButton2; // Cancel

    void PushButton1_Action();

Q_SIGNALS:
    // The ledger was added, selected and opened empty; the ledger list isn't
    // stored yet. Its first account is asked for now.
    void ledgerAdded();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    SummaryBooks& books_;
};
