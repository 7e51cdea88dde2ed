#include "engine/TransactionEntry.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace {

// Column 7 of transBox holds ten digit places; the account list's nine.
constexpr QStringView kTransactionPattern = u"#########0.00";
constexpr QStringView kListPattern = u"########0.00";
constexpr QStringView kNegativeListPattern = u"-########0.00";

QString withoutLeadingMinus(const QString& text)
{
    return text.startsWith(u'-') ? text.mid(1) : text;
}

} // namespace

QStringList accountMenu(const Listbox& accounts)
{
    QStringList items{kSelectAccount};
    for (int row = 1; row < accounts.ListCount(); ++row)
        items << accounts.Cell(row, AccountCol::Name);
    return items;
}

int accountMenuItem(const Listbox& accounts, QStringView name)
{
    for (int row = 1; row < accounts.ListCount(); ++row) {
        if (accounts.CellView(row, AccountCol::Name).compare(name, Qt::CaseInsensitive) == 0)
            return row;
    }
    return 0;
}

void chooseAccount(TransactionForm& form, const Listbox& accounts, int item)
{
    form.account = item;
    form.accountText = item > 0 ? accounts.Cell(item, AccountCol::Name) : kSelectAccount;
    if (item > 0) {
        form.accountRow = item;
        form.deposit = isWord(accounts.CellView(item, AccountCol::Type), AccountType::Revenue);
    }
}

void chooseDeposit(TransactionForm& form)
{
    form.deposit = true;
    form.amount = withoutLeadingMinus(form.amount);
}

bool okEnabled(const TransactionForm& form)
{
    return form.account > 0 && !form.amount.isEmpty();
}

bool gstEnabled(const TransactionForm& form)
{
    return !form.amount.isEmpty() && !form.adjustment.isEmpty() && !form.deposit;
}

QString okRefusal(const TransactionForm& form)
{
    return okEnabled(form) ? QString() : u"OK can't be pressed: it needs an account and an amount"_s;
}

QString gstRefusal(const TransactionForm& form)
{
    return gstEnabled(form) ? QString() : u"the GST button needs an amount, an adjustment and a withdrawal"_s;
}

void fillFromTransaction(TransactionForm& form, const Listbox& transactions, int row, const Listbox& accounts)
{
    if (const int item = accountMenuItem(accounts, transactions.CellView(row, TransCol::Account)); item > 0)
        chooseAccount(form, accounts, item);
    form.amount = withoutLeadingMinus(transactions.Cell(row, TransCol::Transaction));
    form.description = transactions.Cell(row, TransCol::Description);
    form.invoice = transactions.Cell(row, TransCol::Invoice);
    form.memo = transactions.Cell(row, TransCol::Memo);
    const QString date = transactions.Cell(row, TransCol::Date);
    const QDate day(int(Val(NthField(date, u"-", 1))), int(Val(NthField(date, u"-", 2))),
                    int(Val(NthField(date, u"-", 3))));
    if (day.isValid())
        form.date = day;
    const QStringView repeat = transactions.CellView(row, TransCol::Repeat);
    if (isWord(repeat, kRepeatWords[1]))
        form.repeat = kRepeatWords[1];
    else if (isWord(repeat, kRepeatWords[2]))
        form.repeat = kRepeatWords[2];
}

QString amountCell(const TransactionForm& form)
{
    QString amount = form.deposit || form.amount.startsWith(u'-') ? form.amount : u'-' + form.amount;
    return amount.replace(u',', u'.');
}

double transactionTotal(const TransactionForm& form)
{
    const double amount = Val(amountCell(form));
    const double adjustment = Val(form.adjustment); // plain Val: "1,5" counts 1
    return 0 > amount ? amount - adjustment : amount + adjustment;
}

void writeTransaction(Listbox& transactions, int row, const TransactionForm& form)
{
    transactions.SetCell(row, TransCol::Account, form.accountText);
    transactions.SetCell(row, TransCol::Date, SQLDate(form.date));
    transactions.SetCell(row, TransCol::Description, form.description);
    transactions.SetCell(row, TransCol::Invoice, form.invoice);
    transactions.SetCell(row, TransCol::Amount, amountCell(form));
    transactions.SetCell(row, TransCol::Tax, form.adjustment);
    transactions.SetCell(row, TransCol::Memo, form.memo);
    transactions.SetCell(row, TransCol::Repeat, form.repeat);
    const QString total = Format(transactionTotal(form), kTransactionPattern);
    transactions.SetCell(row, TransCol::Transaction, form.deposit ? total : u'-' + total);
}

void writeGstRow(Listbox& transactions, int row, const TransactionForm& form)
{
    transactions.SetCell(row, TransCol::Number, u"1000");
    transactions.SetCell(row, TransCol::Account, u"GST");
    transactions.SetCell(row, TransCol::Date, SQLDate(form.date));
    transactions.SetCell(row, TransCol::Description, form.description);
    transactions.SetCell(row, TransCol::Invoice, form.invoice);
}

void writeAccountListLine(Listbox& list, int line, const TransactionForm& form, bool adding, int transRow)
{
    list.SetCell(line, TransCol::Account, form.accountText);
    list.SetCell(line, TransCol::Date, SQLDate(form.date));
    list.SetCell(line, TransCol::Description, form.description);
    list.SetCell(line, TransCol::Invoice, form.invoice);
    // The amount as it stood before its "," became ".".
    list.SetCell(line, TransCol::Amount,
                 form.deposit || form.amount.startsWith(u'-') ? form.amount : u'-' + form.amount);
    list.SetCell(line, TransCol::Tax, form.adjustment);
    list.SetCell(line, TransCol::Memo, form.memo);
    list.SetCell(line, TransCol::Repeat, form.repeat);
    if (adding)
        list.SetCell(line, TransCol::Seconds, Str(transRow));
    const double total = transactionTotal(form);
    const QString figure = Format(total, kListPattern);
    list.SetCell(line, TransCol::Transaction, total < 0 ? u'-' + figure : figure);
}

void writeAccountListGstLine(Listbox& list, int line, const TransactionForm& form, int transRow)
{
    list.SetCell(line, TransCol::Number, u"1000");
    list.SetCell(line, TransCol::Account, u"GST");
    list.SetCell(line, TransCol::Date, SQLDate(form.date));
    list.SetCell(line, TransCol::Description, form.description);
    list.SetCell(line, TransCol::Invoice, form.invoice);
    list.SetCell(line, TransCol::Seconds, Str(transRow));
    list.SetCell(line, TransCol::Transaction, Format(Val(form.adjustment), kNegativeListPattern));
}
