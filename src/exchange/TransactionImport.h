#pragma once

#include "books/rowtable/Listbox.h"
#include "exchange/ImportFields.h"
#include "exchange/ImportText.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>


// The import of a delimited text file into the open ledger's transactions,
// without any widget: the mapping of its columns, the verdict on each record,
// and the plan of the rows to append, all or nothing.

struct ImportMapping {
    QChar separator = u',';
    int skipFirst = 1;          // records above the header and the header itself
    int skipLast = 0;           // summary lines at the end
    // Columns count from 1; 0 is none.
    int accountColumn = 1;
    QString fixedAccount;       // every row's account, in place of a column, when not empty
    int typeColumn = 2;         // must be there, is never read
    int dateColumn = 3;
    int amountColumn = 4;
    int debitColumn = 0;        // with creditColumn, in place of amountColumn
    int creditColumn = 0;
    int descriptionColumn = 5;
    DateOrder dateOrder = DateOrder::YearMonthDay;
    DecimalMark decimalMark = DecimalMark::Auto;

    bool splitAmount() const { return debitColumn > 0 || creditColumn > 0; }
};

// What makes the mapping itself unusable (no date column, no amount column, an
// amount column beside debit and credit ones), or "" when it can be used.
QString mappingProblem(const ImportMapping& mapping);

// A transaction row the import appends: columns 1, 2, 3 and 7 of transBox.
struct ImportedRow {
    int line = 0;               // where its record starts in the file
    QString account;
    QString date;               // YYYY-MM-DD
    QString description;
    QString amount;
    bool duplicate = false;     // the ledger holds a row of the same account, text, day and amount
};

enum class RecordState { Skipped, PassedOver, Imported, Refused };

struct RecordVerdict {
    RecordState state = RecordState::Imported;
    QString problem;            // why a record is refused
    ImportedRow row;
};

// The verdict on one record that isn't skipped: passed over when its date and
// amount fields are all empty (a blank line, the rest of a text); refused when
// it lacks a mapped column, holds no readable date, an amount that can't be
// read, debit and credit both, or a text the ledger can't store; otherwise the
// row it makes. Line breaks inside a text become one blank.
RecordVerdict judgeRecord(const Record& record, const ImportMapping& mapping);

// The records of the file with what becomes of each: the first skipFirst and
// the last skipLast are skipped.
struct JudgedRecord {
    Record record;
    RecordVerdict verdict;
};
std::vector<JudgedRecord> judgeRecords(const RecordList& records, const ImportMapping& mapping, int count);

struct ImportPlan {
    std::vector<ImportedRow> rows;
    QString refusal;            // why nothing can be imported, "line N: ..." where a record is at fault
    int refusedLine = 0;
    int duplicates = 0;
    bool cancelled = false;
};

// Reads the whole file and decides the rows it gives, stopping at the first
// refusal. progress(characters read, characters in all) is asked now and then;
// its false cancels. Duplicates are matched against the ledger's transactions one
// to one: a ledger row makes one imported row a duplicate at most.
ImportPlan planImport(const QByteArray& bytes, const ImportMapping& mapping, const Listbox& transactions,
                      const std::function<bool(int done, int total)>& progress = {});

// The plan's rows as transBox rows, in their order, without the duplicates when
// they are to be skipped: account, date, description and amount.
Listbox::Rows transactionRows(const std::vector<ImportedRow>& rows, bool skipDuplicates);
