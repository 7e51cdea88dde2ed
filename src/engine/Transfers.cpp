#include "engine/Transfers.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kTransferPattern = u"#######0.00";

void showBalance(Listbox& from, Listbox& to, int line, double balance)
{
    const QString shown = Format(balance, kTransferPattern);
    from.SetCell(line, 1, shown);
    to.SetCell(line, 1, shown);
}

TransactionForm transferForm(const Listbox& accounts, const QString& account, const QString& description,
                             double amount, const QDate& date)
{
    TransactionForm form;
    form.date = date;
    chooseAccount(form, accounts, accountMenuItem(accounts, account));
    form.description = description;
    form.amount = Format(amount, kTransferPattern);
    return form;
}

} // namespace

void fillTransferList(Listbox& list, const Listbox& accounts)
{
    for (int row = 1; row < accounts.ListCount(); ++row) {
        list.AddRow(accounts.CellView(row, AccountCol::Name));
        list.SetCell(list.LastIndex(), 1, accounts.CellView(row, AccountCol::Balance));
    }
}

double listedBalance(const Listbox& list, int line)
{
    return Val(list.CellView(line, 1));
}

QString previewTransfer(Listbox& from, Listbox& to, double sourceAmount, double destAmount, double amount)
{
    if (amount > sourceAmount)
        return kInsufficientFunds;
    if (from.ListIndex() == to.ListIndex())
        return kSameAccount;
    showBalance(from, to, to.ListIndex(), destAmount + amount);
    showBalance(from, to, from.ListIndex(), sourceAmount - amount);
    return {};
}

TransactionForm transferWithdrawal(const Listbox& accounts, const QString& source, const QString& destination,
                                   double amount, const QDate& date)
{
    TransactionForm form = transferForm(accounts, source, u"Transfer to "_s + destination, amount, date);
    form.deposit = false;
    return form;
}

TransactionForm transferDeposit(const Listbox& accounts, const QString& source, const QString& destination,
                                double amount, const QDate& date)
{
    TransactionForm form = transferForm(accounts, destination, u"Transfer from "_s + source, amount, date);
    chooseDeposit(form);
    return form;
}
