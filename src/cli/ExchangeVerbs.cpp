// The CSV export and the import of delimited text.
#include "cli/Verbs.h"

#include "books/FileStore.h"
#include "engine/RowLayouts.h"
#include "engine/TransactionEntry.h"
#include "exchange/CsvExport.h"
#include "exchange/TransactionImport.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace {

bool wholeNumber(const QString& text, int& value)
{
    bool ok = false;
    value = text.toInt(&ok);
    return ok && value >= 0 && !text.startsWith(u'+');
}

// --map MAP, comma-separated keys: a column number, or for the account the
// name of an account for every row; a key left out is column 0.
std::optional<ImportMapping> mappingOf(const QCommandLineParser& parser)
{
    ImportMapping mapping;
    mapping.accountColumn = mapping.typeColumn = mapping.dateColumn = mapping.amountColumn = 0;
    mapping.descriptionColumn = 0;
    const QMap<QString, int ImportMapping::*> columns{
        {u"account"_s, &ImportMapping::accountColumn}, {u"type"_s, &ImportMapping::typeColumn},
        {u"date"_s, &ImportMapping::dateColumn},       {u"amount"_s, &ImportMapping::amountColumn},
        {u"debit"_s, &ImportMapping::debitColumn},     {u"credit"_s, &ImportMapping::creditColumn},
        {u"description"_s, &ImportMapping::descriptionColumn}};
    QStringList seen;
    for (const QString& entry : parser.value(u"map"_s).split(u',')) {
        const qsizetype equals = entry.indexOf(u'=');
        const QString key = entry.left(equals).trimmed();
        const QString value = entry.mid(equals + 1).trimmed();
        if (equals < 0 || seen.contains(key) || value.isEmpty())
            return std::nullopt;
        seen << key;
        int number = 0;
        if (columns.contains(key)) {
            if (wholeNumber(value, number))
                mapping.*columns[key] = number;
            else if (key == u"account")
                mapping.fixedAccount = value;
            else
                return std::nullopt;
        } else if (key == u"dates") {
            static const QMap<QString, DateOrder> orders{{u"ymd"_s, DateOrder::YearMonthDay},
                                                         {u"dmy"_s, DateOrder::DayMonthYear},
                                                         {u"mdy"_s, DateOrder::MonthDayYear}};
            if (!orders.contains(value))
                return std::nullopt;
            mapping.dateOrder = orders[value];
        } else if (key == u"decimal") {
            static const QMap<QString, DecimalMark> marks{
                {u"auto"_s, DecimalMark::Auto}, {u"period"_s, DecimalMark::Period}, {u"comma"_s, DecimalMark::Comma}};
            if (!marks.contains(value))
                return std::nullopt;
            mapping.decimalMark = marks[value];
        } else {
            return std::nullopt;
        }
    }
    if (parser.isSet(u"delimiter"_s)) {
        const QString delimiter = parser.value(u"delimiter"_s);
        if (delimiter == u"tab")
            mapping.separator = u'\t';
        else if (delimiter.size() == 1 && delimiter != u"\"" && delimiter != u"\n" && delimiter != u"\r")
            mapping.separator = delimiter.front();
        else
            return std::nullopt;
    }
    if (parser.isSet(u"skip"_s) && !wholeNumber(parser.value(u"skip"_s), mapping.skipFirst))
        return std::nullopt;
    if (parser.isSet(u"skip-end"_s) && !wholeNumber(parser.value(u"skip-end"_s), mapping.skipLast))
        return std::nullopt;
    if (!mappingProblem(mapping).isEmpty())
        return std::nullopt;
    return mapping;
}

} // namespace

bool importOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    if (parser.isSet(u"duplicates"_s) && parser.value(u"duplicates"_s) != u"keep"
        && parser.value(u"duplicates"_s) != u"skip")
        return false;
    return parser.isSet(u"map"_s) && mappingOf(parser).has_value();
}

int exportVerb(const Invocation& call, SummaryBooks& books)
{
    if (const QString problem = exportData(books.transBox, call.words[2]); !problem.isEmpty())
        return refused(call, problem);
    return 0;
}

int importVerb(const Invocation& call, SummaryBooks& books)
{
    ImportMapping mapping = *mappingOf(call.parser);
    if (!mapping.fixedAccount.isEmpty()) {
        // An account the window's menu offers, as the ledger spells it.
        const int row = accountMenuItem(books.accountsBox, mapping.fixedAccount);
        if (row == 0)
            return refused(call, u"there is no account named \"%1\" in the ledger \"%2\""_s.arg(
                                     mapping.fixedAccount, books.theLedger));
        mapping.fixedAccount = books.accountsBox.Cell(row, AccountCol::Name);
    }
    const FileContent file = readPlainFile(call.words[2]);
    if (!file.problem.isEmpty())
        return refused(call, u"couldn't read \"%1\": %2"_s.arg(call.words[2], file.problem));
    if (!file.bytes)
        return refused(call, u"there is no file \"%1\""_s.arg(call.words[2]));
    const ImportPlan plan = planImport(*file.bytes, mapping, books.transBox);
    if (!plan.refusal.isEmpty())
        return refused(call, plan.refusal);
    if (plan.duplicates > 0 && !call.isSet(u"duplicates"_s))
        return refused(call, u"%1 of the transactions are in the ledger already; give --duplicates keep or skip"_s.arg(
                                 plan.duplicates));
    const bool skip = call.value(u"duplicates"_s) == u"skip";
    const int imported = TransactionOperations(books).appendTransactions(transactionRows(plan.rows, skip));
    call.out << imported << " transactions imported";
    if (skip && plan.duplicates > 0)
        call.out << ", " << plan.duplicates << " already in the ledger skipped";
    call.out << '\n';
    return 0;
}
