#pragma once

#include <QDialog>

class Canvas;
class SummaryBooks;
struct AccountFields;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

// "Account Information": adds an account to the open ledger or edits one of its
// rows, as a sheet over the main window. It works on the books it is given; the
// main window prepares it (makeNewAccount, editAccount) and the toolbar's Add
// shows it as it is.
class AccountWindow : public QDialog {
    Q_OBJECT

public:
    AccountWindow(SummaryBooks& books, QWidget* parent);

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
    // Shows the dialog filled from an account row, to edit it. The type can't be
    // changed; row 0, the Base Account, shows none.
    void editAccount(int row);
    // Hides the type, as the Base Account has none.
    void hideAccountType();

    void EditField1_TextChange();
    void PushButton1_Action();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    AccountFields fields() const;
    void showTypePicture();

    SummaryBooks& books_;
    int editedRow_ = -1;
};
