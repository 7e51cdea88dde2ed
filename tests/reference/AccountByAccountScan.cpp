#include "reference/AccountByAccountScan.h"

#include "books/Globals.h"
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/Numbers.h"

#include <vector>

ScanTotals scanAccountByAccount(Listbox& accounts, const Listbox& transactions, bool reconciledOnly)
{
    const int last = accounts.ListCount() - 1;
    const QString baseType = accounts.Cell(0, AccountCol::Type);
    if (isWord(baseType, u"asset") || isWord(baseType, u"main account"))
        accounts.SetCell(0, AccountCol::Type, u"Base Account");
    std::vector<DecimalSum> totals(std::max(last + 1, 0));
    for (int r = 1; r <= last; ++r) {
        if (isWord(accounts.Cell(r, AccountCol::Type), u"asset"))
            accounts.SetCell(r, AccountCol::Type, u"Revenue");
        const QString name = accounts.Cell(r, AccountCol::Name);
        for (int t = 0; t < transactions.ListCount(); ++t) {
            if (reconciledOnly && !transactions.CellCheck(t, TransCol::Account))
                continue;
            if (transactions.Cell(t, TransCol::Account).compare(name, Qt::CaseInsensitive) == 0)
                totals[r].addVal(Globals::cvt(transactions.Cell(t, TransCol::Transaction)));
        }
        accounts.SetCell(r, AccountCol::Transactions, totals[r].text());
        totals[r].addVal(Globals::cvt(accounts.Cell(r, AccountCol::Opening)));
        accounts.SetCell(r, AccountCol::Balance, totals[r].text());
    }
    ScanTotals result;
    for (int t = 0; t < transactions.ListCount(); ++t) {
        if (reconciledOnly && !transactions.CellCheck(t, TransCol::Account))
            continue;
        result.tax.addVal(Globals::cvt(transactions.Cell(t, TransCol::Tax)));
        result.transactions.addVal(Globals::cvt(transactions.Cell(t, TransCol::Transaction)));
    }
    DecimalSum sum;
    for (int r = 1; r <= last; ++r)
        sum.addVal(Globals::cvt(accounts.Cell(r, AccountCol::Transactions)));
    accounts.SetCell(0, AccountCol::Transactions, sum.text());
    sum.addVal(Globals::cvt(accounts.Cell(0, AccountCol::Opening)));
    accounts.SetCell(0, AccountCol::Balance, sum.text());
    return result;
}
