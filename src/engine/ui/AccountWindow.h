#pragma once

#include "engine/AccountMaintenance.h"

#include <QDialog>

class Canvas;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

// "Account Information": adds an account to the open ledger or edits the
// selected one, as a sheet over the main window. The main window prepares it
// (makeNewAccount, editAccount); the toolbar's Add shows it as it is.
class AccountWindow : public QDialog {
    Q_OBJECT

public:
    AccountWindow();

    bool editingOn = false;     // an existing row is edited
    bool nameChanged = false;   // the name must be checked for uniqueness on OK
    bool windowOpening = false; // the program fills the fields: no nameChanged
    QString oldName;            // the edited row's name when editing began

    QLabel* StaticText1;        // "Account Name:"
    QLineEdit* EditField1;      // the name
    QLabel* StaticText3;        // "Account Type:"
    QRadioButton* RadioButton1; // "Revenue"
    QRadioButton* RadioButton2; // "Expense"
    Canvas* Canvas2;            // the type's picture
    QLabel* StaticText4;        // "Opening Balance:", or "Amount:" for the Base Account
    QLineEdit* EditField3;      // the opening amount
    QLabel* StaticText2;        // "Notes:"
    QPlainTextEdit* EditField4; // the notes
    QPushButton* PushButton1;   // OK
    QPushButton* PushButton2;   // Cancel

    // Shows the dialog for the Base Account of a new ledger: the amount and the
    // notes' hint, no type.
    void prepareBaseAccount();
    // Hides the type, as the Base Account has none.
    void hideAccountType();

    void EditField1_TextChange();
    void PushButton1_Action();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    AccountFields fields() const;
    void showTypePicture();
};
