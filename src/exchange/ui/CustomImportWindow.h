#pragma once

#include "books/rowtable/Listbox.h"
#include "exchange/TransactionImport.h"

#include <QDialog>

#include <functional>
#include <vector>

class ListboxView;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

// "Custom Data Import": the file chosen first, then how its columns map onto a
// transaction, with a preview of its first records that shows what each becomes.
// Continue imports all of it or, when a record can't be read, none of it.
class CustomImportWindow : public QDialog {
    Q_OBJECT

public:
    // What Continue appends: the rows, and whether the duplicates are to be
    // left out; gives how many came in.
    using Commit = std::function<int(const std::vector<ImportedRow>& rows, bool skipDuplicates)>;

    CustomImportWindow(const Listbox& accounts, const Listbox& transactions, Commit commit, QWidget* parent);

    // Reads the file chosen; false (and a message) when it can't be read.
    bool openFile(const QString& path);

    QLabel* StaticText8;         // the instructions
    QLabel* FileLabel;           // the file's name
    QComboBox* SeparatorMenu;    // comma, semicolon, tab, bar
    QSpinBox* SkipFirst;         // records skipped at the start
    QSpinBox* SkipLast;          // records skipped at the end
    QLineEdit* EditField31;      // "*Acc. Name" column
    QComboBox* AccountMenu;      // the column, or one account for every row
    QLineEdit* EditField1;       // "Acc Type" column, never read
    QLineEdit* EditField2;       // "Date" column
    QLineEdit* EditField5;       // "Amount" column
    QLineEdit* DebitField;       // "Debit" column
    QLineEdit* CreditField;      // "Credit" column
    QLineEdit* EditField3;       // "Description" column
    QComboBox* DateOrderMenu;
    QComboBox* DecimalMenu;
    // The line of each record, then up to 30 of its fields.
    Listbox PreviewTable{QStringLiteral("Preview"), 31};
    ListboxView* Preview;
    QLabel* ProblemLabel;        // why the preview or the mapping can't be imported
    QPushButton* PushButton1;    // "Continue"
    QPushButton* PushButton2;    // "Cancel"

    // The mapping as the controls stand.
    ImportMapping mapping() const;
    // Judges the first records again and shows them.
    void updatePreview();
    void PushButton1_Action();

private:
    const Listbox& accounts_;
    const Listbox& transactions_;
    Commit commit_;
    QByteArray bytes_;
    RecordList records_;
    std::vector<JudgedRecord> judged_;
    int firstRefused_ = -1;       // the preview's row of the first record refused
    QChar separatorRead_;
};
