// An account's transactions window.
#include "cli/Verbs.h"

#include "engine/RowLayouts.h"
#include "platform/Clock.h"
#include "platform/Dates.h"
#include "reports/AccountTransactions.h"

using namespace Qt::StringLiterals;

namespace {

// The day of a --from or --to option, else today.
QDate dayOf(const Invocation& call, const QString& option)
{
    QDate day = Clock::today();
    if (call.isSet(option))
        ParseDate(call.value(option), day);
    return day;
}

} // namespace

bool accountOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    for (const QString& option : {u"from"_s, u"to"_s}) {
        QDate day;
        if (parser.isSet(option) && !ParseDate(parser.value(option), day))
            return false;
    }
    return true;
}

int accountListVerb(const Invocation& call, SummaryBooks& books)
{
    const int row = selectAccount(call, books);
    if (row < 0)
        return 1;
    if (row == 0)
        return refused(call, u"the Base Account has no transactions window"_s);
    Listbox list(u"ListBox1"_s, AccountListCol::Count, Listbox::SelectionType::Multiple);
    setUpAccountList(list);
    loadAccount(list, books.transBox, books.accountsBox.Cell(row, AccountCol::Name));
    QString balance = selectedAccountBalance(books.accountsBox);
    if (call.isSet(u"from"_s) || call.isSet(u"to"_s)) {
        // Both controls hold the time of day they were made at.
        const QTime made = Clock::now().time();
        const DateRangeResult range = applyDateRange(list, QDateTime(dayOf(call, u"from"_s), made),
                                                     QDateTime(dayOf(call, u"to"_s), made));
        if (range.applied)
            balance = range.total;
    }
    for (int line = 0; line < list.ListCount(); ++line) {
        for (int column = 0; column <= AccountListCol::Memo; ++column) {
            if (column > 0)
                call.out << '\t';
            call.out << list.CellView(line, column);
        }
        call.out << '\n';
    }
    call.out << "Balance:\t" << balance << '\n';
    return 0;
}
