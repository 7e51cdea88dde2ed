#include "exchange/TransactionImport.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <QHash>
#include <QRegularExpression>

#include <deque>

using namespace Qt::StringLiterals;

namespace {

constexpr int kProgressEvery = 4096;

QString dateOrderName(DateOrder order)
{
    switch (order) {
    case DateOrder::DayMonthYear:
        return u"day-month-year"_s;
    case DateOrder::MonthDayYear:
        return u"month-day-year"_s;
    case DateOrder::YearMonthDay:
        break;
    }
    return u"year-month-day"_s;
}

QString field(const Record& record, int column)
{
    return column > 0 ? record.fields.value(column - 1) : QString();
}

// A text for a cell: its line breaks as one blank each.
QString cellText(QString text)
{
    if (!text.contains(u'\n') && !text.contains(u'\r'))
        return text;
    static const QRegularExpression lineBreak(u"\r\n|\r|\n"_s);
    return text.replace(lineBreak, u" "_s);
}

// Text that would break the ledger's files: their separator, or an end that runs into it.
bool breaksFiles(const QString& text)
{
    return text.contains(Listbox::kSeparator) || text.endsWith(u"@#");
}

QString quoted(const QString& text)
{
    return u"\""_s + text + u"\""_s;
}

// The amount of a debit and credit pair: a debit is a withdrawal.
std::optional<QString> splitAmount(const QString& debit, const QString& credit, QString& problem)
{
    const auto isZero = [](const QString& amount) { return Val(amount) == 0; };
    const auto unsigned_ = [](const QString& amount) { return amount.startsWith(u'-') ? amount.mid(1) : amount; };
    if (!debit.isEmpty() && !credit.isEmpty() && !isZero(debit) && !isZero(credit)) {
        problem = u"both the debit %1 and the credit %2 hold an amount"_s.arg(quoted(debit), quoted(credit));
        return std::nullopt;
    }
    if (!debit.isEmpty() && !isZero(debit))
        return u"-"_s + unsigned_(debit);
    if (!credit.isEmpty())
        return credit;
    return debit.isEmpty() ? QString() : unsigned_(debit);
}

QString duplicateKey(QStringView account, QStringView description, QStringView date, double amount)
{
    return account.toString().toCaseFolded() + u'\x1f' + description.toString().toCaseFolded() + u'\x1f'
           + date.toString() + u'\x1f' + Str(amount);
}

} // namespace

QString mappingProblem(const ImportMapping& mapping)
{
    if (mapping.dateColumn <= 0)
        return u"Choose the column that holds the date."_s;
    if (mapping.splitAmount() && mapping.amountColumn > 0)
        return u"Choose either an amount column or debit and credit columns, not both."_s;
    if (mapping.splitAmount() && (mapping.debitColumn <= 0 || mapping.creditColumn <= 0))
        return u"Choose both the debit and the credit column."_s;
    if (!mapping.splitAmount() && mapping.amountColumn <= 0)
        return u"Choose the column that holds the amount, or the debit and credit columns."_s;
    return {};
}

RecordVerdict judgeRecord(const Record& record, const ImportMapping& mapping)
{
    RecordVerdict verdict;
    const auto refuse = [&](const QString& why) {
        verdict.state = RecordState::Refused;
        verdict.problem = why;
        return verdict;
    };
    const QString date = field(record, mapping.dateColumn).trimmed();
    const QString amount = field(record, mapping.amountColumn).trimmed();
    const QString debit = field(record, mapping.debitColumn).trimmed();
    const QString credit = field(record, mapping.creditColumn).trimmed();
    if (date.isEmpty() && amount.isEmpty() && debit.isEmpty() && credit.isEmpty()) {
        verdict.state = RecordState::PassedOver;
        return verdict;
    }
    const int columns[] = {mapping.fixedAccount.isEmpty() ? mapping.accountColumn : 0, mapping.typeColumn,
                           mapping.dateColumn, mapping.amountColumn, mapping.debitColumn, mapping.creditColumn,
                           mapping.descriptionColumn};
    const int wanted = *std::max_element(std::begin(columns), std::end(columns));
    if (wanted > record.fields.size())
        return refuse(u"the record has %1 fields, but column %2 is mapped"_s.arg(record.fields.size()).arg(wanted));

    const std::optional<QDate> day = readImportDate(date, mapping.dateOrder);
    if (!day)
        return refuse(u"%1 is not a date in the order %2"_s.arg(quoted(date), dateOrderName(mapping.dateOrder)));
    std::optional<QString> total;
    if (mapping.splitAmount()) {
        const std::optional<QString> debitAmount = readImportAmount(debit, mapping.decimalMark);
        const std::optional<QString> creditAmount = readImportAmount(credit, mapping.decimalMark);
        if (!debitAmount)
            return refuse(u"the debit %1 is not an amount"_s.arg(quoted(debit)));
        if (!creditAmount)
            return refuse(u"the credit %1 is not an amount"_s.arg(quoted(credit)));
        QString problem;
        total = splitAmount(*debitAmount, *creditAmount, problem);
        if (!total)
            return refuse(problem);
    } else {
        total = readImportAmount(amount, mapping.decimalMark);
        if (!total)
            return refuse(u"%1 is not an amount"_s.arg(quoted(amount)));
    }

    ImportedRow& row = verdict.row;
    row.line = record.line;
    row.account = mapping.fixedAccount.isEmpty() ? cellText(field(record, mapping.accountColumn)).trimmed()
                                                 : mapping.fixedAccount;
    row.date = SQLDate(*day);
    row.description = cellText(field(record, mapping.descriptionColumn));
    row.amount = *total;
    for (const QString& text : {row.account, row.description})
        if (breaksFiles(text))
            return refuse(u"the text %1 holds \"@#@\" or ends in \"@#\", which the ledger's files can't hold"_s.arg(
                quoted(text)));
    return verdict;
}

std::vector<JudgedRecord> judgeRecords(const RecordList& records, const ImportMapping& mapping, int count)
{
    std::vector<JudgedRecord> judged;
    const int total = int(records.records.size());
    for (int i = 0; i < total && int(judged.size()) < count; ++i) {
        JudgedRecord one{records.records[i], {}};
        if (i < mapping.skipFirst || i >= total - mapping.skipLast)
            one.verdict.state = RecordState::Skipped;
        else
            one.verdict = judgeRecord(one.record, mapping);
        judged.push_back(std::move(one));
    }
    return judged;
}

ImportPlan planImport(const QByteArray& bytes, const ImportMapping& mapping, const Listbox& transactions,
                      const std::function<bool(int done, int total)>& progress)
{
    ImportPlan plan;
    const auto refuse = [&plan](int line, const QString& why) {
        plan.rows.clear();
        plan.refusedLine = line;
        plan.refusal = line > 0 ? u"line %1: %2"_s.arg(line).arg(why) : why;
        return plan;
    };
    const QString text = decodeImportText(bytes);
    if (const int nulLine = nulLineOf(text); nulLine > 0)
        return refuse(nulLine, u"this is not a text file: the line holds a NUL character"_s);
    // Records are judged as they are read; the last skipLast wait until the end
    // shows they are the last.
    RecordReader reader(text, mapping.separator);
    std::deque<Record> held;
    const auto heldBack = std::size_t(std::max(mapping.skipLast, 0));
    int index = 0;
    bool anyAfterSkipping = false;
    Record record;
    while (reader.next(record)) {
        if (index++ < mapping.skipFirst)
            continue;
        held.push_back(std::move(record));
        if (held.size() <= heldBack)
            continue;
        const Record current = std::move(held.front());
        held.pop_front();
        anyAfterSkipping = true;
        if (progress && index % kProgressEvery == 0 && !progress(int(reader.position()), int(text.size()))) {
            plan.rows.clear();
            plan.cancelled = true;
            return plan;
        }
        RecordVerdict verdict = judgeRecord(current, mapping);
        if (verdict.state == RecordState::Refused)
            return refuse(current.line, verdict.problem);
        if (verdict.state == RecordState::Imported)
            plan.rows.push_back(std::move(verdict.row));
    }
    if (reader.unclosedQuoteLine() > 0)
        return refuse(reader.unclosedQuoteLine(), u"a field in quotes begins here and never ends"_s);
    if (plan.rows.empty())
        return refuse(0, anyAfterSkipping ? u"The file holds no transaction to import."_s
                                          : u"There is nothing to import after the lines skipped."_s);

    // One to one: each row of the ledger makes at most one imported row a duplicate.
    QHash<QString, int> ledger;
    for (int row = 0; row < transactions.ListCount(); ++row)
        ++ledger[duplicateKey(transactions.CellView(row, TransCol::Account),
                              transactions.CellView(row, TransCol::Description),
                              transactions.CellView(row, TransCol::Date),
                              readAmount(transactions.CellView(row, TransCol::Transaction)))];
    for (ImportedRow& row : plan.rows) {
        const auto match = ledger.find(duplicateKey(row.account, row.description, row.date, Val(row.amount)));
        if (match != ledger.end() && match.value() > 0) {
            --match.value();
            row.duplicate = true;
            ++plan.duplicates;
        }
    }
    if (progress)
        progress(int(text.size()), int(text.size()));
    return plan;
}

Listbox::Rows transactionRows(const std::vector<ImportedRow>& rows, bool skipDuplicates)
{
    Listbox::Rows made(TransCol::Count);
    for (const ImportedRow& row : rows) {
        if (skipDuplicates && row.duplicate)
            continue;
        QStringView cells[TransCol::Count];
        cells[TransCol::Account] = row.account;
        cells[TransCol::Date] = row.date;
        cells[TransCol::Description] = row.description;
        cells[TransCol::Transaction] = row.amount;
        made.add(cells, TransCol::Count);
    }
    return made;
}
