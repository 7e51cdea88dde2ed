// The verbs of the transaction dialog: add, edit, gst.
#include "cli/Verbs.h"

#include "engine/RowLayouts.h"
#include "engine/TransactionEntry.h"
#include "engine/Transfers.h"
#include "platform/Clock.h"
#include "platform/Numbers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The options typed into the dialog, in the dialog's order; false (refusal
// printed) for an account that the menu doesn't offer.
bool typeOptions(const Invocation& call, const SummaryBooks& books, TransactionForm& form)
{
    if (call.isSet(u"account"_s)) {
        const int item = accountMenuItem(books.accountsBox, call.value(u"account"_s));
        if (item == 0) {
            refused(call, u"the account menu has no account \"%1\""_s.arg(call.value(u"account"_s)));
            return false;
        }
        chooseAccount(form, books.accountsBox, item);
    }
    if (call.isSet(u"amount"_s))
        form.amount = call.value(u"amount"_s);
    if (call.isSet(u"deposit"_s))
        chooseDeposit(form);
    if (call.isSet(u"withdrawal"_s))
        form.deposit = false;
    if (call.isSet(u"adjust"_s))
        form.adjustment = call.value(u"adjust"_s);
    if (call.isSet(u"description"_s))
        form.description = call.value(u"description"_s);
    if (call.isSet(u"invoice"_s))
        form.invoice = call.value(u"invoice"_s);
    if (call.isSet(u"memo"_s))
        form.memo = call.value(u"memo"_s);
    if (call.isSet(u"repeat"_s)) {
        const QString word = call.value(u"repeat"_s);
        for (const QString& item : kRepeatWords)
            if (item.compare(word, Qt::CaseInsensitive) == 0)
                form.repeat = item;
    }
    if (call.isSet(u"date"_s))
        form.date = QDate::fromString(call.value(u"date"_s), u"yyyy-MM-dd"_s);
    return true;
}

// The dialog as it opens: the calendar on today.
TransactionForm newForm()
{
    TransactionForm form;
    form.date = Clock::today();
    return form;
}

// edit and gst: the dialog opened on ROW as the main window opens it, the
// options typed over it; the button's condition checked before anything is
// stored. Returns the row, or -1 after a refusal.
int openForEditing(const Invocation& call, SummaryBooks& books, TransactionForm& form, bool gst)
{
    const int row = transactionRow(call, books, call.words[2]);
    if (row < 0)
        return -1;
    books.transBox.SetListIndex(row);
    fillFromTransaction(form, books.transBox, row, books.accountsBox);
    if (!typeOptions(call, books, form))
        return -1;
    if (const QString problem = gst ? gstRefusal(form) : okRefusal(form); !problem.isEmpty()) {
        refused(call, problem);
        return -1;
    }
    books.store(LedgerFiles::Table::Transactions); // opening the row for editing stores transBox
    return row;
}

} // namespace

bool transactionOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    if (parser.isSet(u"deposit"_s) && parser.isSet(u"withdrawal"_s))
        return false;
    if (!parser.isSet(u"repeat"_s))
        return true;
    const QString word = parser.value(u"repeat"_s);
    return std::any_of(kRepeatWords.begin(), kRepeatWords.end(),
                       [&](const QString& item) { return item.compare(word, Qt::CaseInsensitive) == 0; });
}

bool editOptionsUsable(const QCommandLineParser& parser, const QStringList& words)
{
    return rowsUsable(parser, words) && transactionOptionsUsable(parser, words);
}

int addTransactionVerb(const Invocation& call, SummaryBooks& books)
{
    TransactionForm form = newForm();
    if (!typeOptions(call, books, form))
        return 1;
    const bool gst = call.isSet(u"gst"_s);
    if (const QString problem = gst ? gstRefusal(form) : okRefusal(form); !problem.isEmpty())
        return refused(call, problem);
    TransactionOperations(books).editAddTransaction(form, false);
    if (gst)
        TransactionOperations(books).doGST(form);
    return 0;
}

int editTransactionVerb(const Invocation& call, SummaryBooks& books)
{
    TransactionForm form = newForm();
    if (openForEditing(call, books, form, false) < 0)
        return 1;
    TransactionOperations(books).editAddTransaction(form, true);
    return 0;
}

int gstVerb(const Invocation& call, SummaryBooks& books)
{
    TransactionForm form = newForm();
    if (openForEditing(call, books, form, true) < 0)
        return 1;
    TransactionOperations(books).editAddTransaction(form, true);
    TransactionOperations(books).doGST(form);
    return 0;
}

bool transferOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    return parser.isSet(u"from"_s) && parser.isSet(u"to"_s) && parser.isSet(u"amount"_s);
}

int transferVerb(const Invocation& call, SummaryBooks& books)
{
    const Listbox& accounts = books.accountsBox;
    QStringList names;
    for (const QString& option : {u"from"_s, u"to"_s}) {
        const QString wanted = call.value(option);
        if (accounts.CellView(0, AccountCol::Name).compare(wanted, Qt::CaseInsensitive) == 0)
            return refused(call, u"the Base Account can't take part in a transfer"_s);
        // The transfer window lists every account but the Base Account.
        const int item = accountMenuItem(accounts, wanted);
        if (item == 0)
            return refused(call, u"there is no account named \"%1\" in the ledger \"%2\""_s.arg(wanted,
                                                                                                  books.theLedger));
        names << accounts.Cell(item, AccountCol::Name);
    }
    const double amount = Val(call.value(u"amount"_s));
    if (!(amount > 0.0))
        return refused(call, u"the amount to transfer must be above 0"_s);
    const QDate date = call.isSet(u"date"_s) ? QDate::fromString(call.value(u"date"_s), u"yyyy-MM-dd"_s)
                                             : Clock::today();
    if (const QString problem = TransactionOperations(books).doTransferFromTo(names[0], names[1], amount, date); !problem.isEmpty())
        return refused(call, problem);
    books.CheckRepeats(); // the window's closing
    return 0;
}
