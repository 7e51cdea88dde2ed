#include "engine/AccountMaintenance.h"

#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "engine/RowLayouts.h"

using namespace Qt::StringLiterals;

namespace {

bool sameName(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool breaksARow(QStringView text)
{
    return !ListboxManager::fitsTheFile(text);
}

} // namespace

AccountFields baseAccountFields()
{
    return {u"Balance"_s, {}, {},
            u"Enter your total available cash amount in the 'Amount' field. (eg. bank balance, balance forward, "
            "annual operating budget, etc.) Enter '0' if an initial balance is not needed. "_s};
}

AccountFields accountFieldsOf(const Listbox& accounts, int row)
{
    AccountFields fields;
    fields.name = accounts.Cell(row, AccountCol::Name);
    if (row != 0) {
        const bool revenue = isWord(accounts.CellView(row, AccountCol::Type), AccountType::Revenue);
        fields.typeWord = (revenue ? AccountType::Revenue : AccountType::Expense).toString();
    }
    fields.opening = accounts.Cell(row, AccountCol::Opening);
    fields.notes = accounts.Cell(row, AccountCol::Notes);
    return fields;
}

bool checkName(const Listbox& accounts, QStringView name)
{
    for (int row = 0; row < accounts.ListCount(); ++row) {
        if (sameName(accounts.CellView(row, AccountCol::Name), name))
            return true;
    }
    return false;
}

QString accountFieldsProblem(const AccountFields& fields)
{
    if (breaksARow(fields.name) || breaksARow(fields.typeWord) || breaksARow(fields.opening) || breaksARow(fields.notes))
        return u"An account can't hold the text \"@#@\" or a line break, or end in \"@#\". Please remove it from the "
               "name, amount or notes."_s;
    return {};
}

void addAccount(Listbox& accounts, const AccountFields& fields)
{
    accounts.AddRow(u"999");
    const int row = accounts.LastIndex();
    accounts.SetCell(row, AccountCol::Name, fields.name);
    accounts.SetCell(row, AccountCol::Type, fields.typeWord);
    accounts.SetCell(row, AccountCol::Opening, fields.opening.isEmpty() ? u"0.00"_s : fields.opening);
    accounts.SetCell(row, AccountCol::Balance, fields.opening);
    accounts.SetCell(row, AccountCol::Notes, fields.notes);
    if (accounts.ListCount() > 1)
        accounts.SetRowPicture(row, fields.typeWord == AccountType::Revenue ? RowPicture::accountPlus9
                                                                          : RowPicture::accountMinus9);
    else
        accounts.SetRowPicture(row, RowPicture::BookIcon);
}

void editAccountRow(Listbox& accounts, int row, const AccountFields& fields)
{
    accounts.SetCell(row, AccountCol::Number, u"");
    accounts.SetCell(row, AccountCol::Name, fields.name);
    accounts.SetCell(row, AccountCol::Type, fields.typeWord);
    accounts.SetCell(row, AccountCol::Opening, fields.opening);
    accounts.SetCell(row, AccountCol::Notes, fields.notes);
}

void updateAccountIDName(Listbox& transactions, QStringView oldName, QStringView newName)
{
    for (int row = 0; row < transactions.ListCount(); ++row) {
        if (sameName(transactions.CellView(row, TransCol::Account), oldName))
            transactions.SetCell(row, TransCol::Account, newName);
    }
}

void deleteAccountWithTransactions(Listbox& accounts, Listbox& transactions, int row)
{
    const QString name = accounts.Cell(row, AccountCol::Name);
    transactions.removeRowsWhere(
        [&](int transaction) { return sameName(transactions.CellView(transaction, TransCol::Account), name); });
    accounts.RemoveRow(row);
}
