#include "engine/BalanceCalculation.h"

#include "books/rowtable/Listbox.h"
#include "engine/AccountIndex.h"
#include "engine/RowLayouts.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <vector>

BalanceTotals calculateBalances(Listbox& accounts, const Listbox& transactions, bool reconciledOnly)
{
    const int lastAccount = accounts.ListCount() - 1;
    const QStringView baseType = accounts.CellView(0, AccountCol::Type);
    if (isWord(baseType, AccountType::OldAsset) || isWord(baseType, AccountType::OldMainAccount))
        accounts.SetCell(0, AccountCol::Type, AccountType::BaseAccount);
    for (int r = 1; r <= lastAccount; ++r) {
        if (isWord(accounts.CellView(r, AccountCol::Type), AccountType::OldAsset))
            accounts.SetCell(r, AccountCol::Type, AccountType::Revenue);
    }

    std::vector<DecimalSum> totals(std::max(lastAccount + 1, 0));
    BalanceTotals result;
    {
        AccountIndex index(accounts);
        for (int t = 0; t < transactions.ListCount(); ++t) {
            transactions.prefetchAhead(t);
            if (reconciledOnly && !transactions.CellCheck(t, TransCol::Account))
                continue;
            const QStringView amount = transactions.CellView(t, TransCol::Transaction);
            for (int r : index.rowsNamed(transactions.CellView(t, TransCol::Account)))
                totals[r].addAmount(amount);
            result.tax.addAmount(transactions.CellView(t, TransCol::Tax));
            result.transactions.addAmount(amount);
        }
    }

    for (int r = 1; r <= lastAccount; ++r) {
        accounts.SetCell(r, AccountCol::Transactions, totals[r].text());
        DecimalSum balance = totals[r];
        balance.addAmount(accounts.CellView(r, AccountCol::Opening));
        accounts.SetCell(r, AccountCol::Balance, balance.text());
    }
    // The Base Account sums what the accounts show, read back from their cells.
    DecimalSum sum;
    for (int r = 1; r <= lastAccount; ++r)
        sum.addAmount(accounts.CellView(r, AccountCol::Transactions));
    accounts.SetCell(0, AccountCol::Transactions, sum.text());
    sum.addAmount(accounts.CellView(0, AccountCol::Opening));
    accounts.SetCell(0, AccountCol::Balance, sum.text());
    return result;
}

void writeSeconds(Listbox& transactions)
{
    for (int t = 0; t < transactions.ListCount(); ++t) {
        transactions.prefetchAhead(t);
        QDate date;
        if (!ParseDate(transactions.CellView(t, TransCol::Date), date))
            continue;
        // Usually the cell holds these seconds already: no new string then.
        const StrText seconds(TotalSeconds(date));
        if (transactions.CellView(t, TransCol::Seconds) != seconds.view())
            transactions.SetCell(t, TransCol::Seconds, QString(seconds.view()));
    }
}

namespace {

bool hasOuterBlanks(QStringView cell)
{
    return !cell.isEmpty() && (cell.front().isSpace() || cell.back().isSpace());
}

std::optional<QString> pad(QStringView cell, bool wholeTextTest)
{
    // t of the rule, with "," still standing for "." until a new text is built.
    const QStringView t = hasOuterBlanks(cell) ? cell.trimmed() : cell;
    qsizetype mark = -1;
    for (qsizetype i = 0; i < t.size(); ++i) {
        if (t[i] == u'.' || t[i] == u',') {
            mark = i;
            break;
        }
    }
    qsizetype pieceLength = 0;
    if (mark >= 0) {
        qsizetype end = mark + 1;
        while (end < t.size() && t[end] != u'.' && t[end] != u',')
            ++end;
        pieceLength = end - mark - 1;
    }
    const qsizetype tested = wholeTextTest ? t.size() : pieceLength;
    if (tested == 2)
        return std::nullopt;
    QString result;
    if (mark >= 0 && pieceLength == 1)
        result = t.toString() + u'0';
    else if (mark < 0)
        result = t.toString() + QStringLiteral(".00");
    else
        return std::nullopt;
    result.replace(u',', u'.');
    return result;
}

} // namespace

std::optional<QString> paddedAmount(QStringView cell)
{
    return pad(cell, false);
}

std::optional<QString> paddedTransaction(QStringView cell)
{
    return pad(cell, true);
}

void padAmounts(Listbox& accounts, Listbox& transactions)
{
    for (int column : {AccountCol::Opening, AccountCol::Transactions, AccountCol::Balance}) {
        for (int r = 0; r < accounts.ListCount(); ++r) {
            if (const auto padded = paddedAmount(accounts.CellView(r, column)))
                accounts.SetCell(r, column, *padded);
        }
        if (column == AccountCol::Opening) {
            for (int r = 0; r < accounts.ListCount(); ++r) {
                if (accounts.CellView(r, column) == u".00")
                    accounts.SetCell(r, column, u"0.00");
            }
        }
    }
    // Trimming every total and then padding every total is the same, row by row,
    // as one pass that does both.
    for (int t = 0; t < transactions.ListCount(); ++t) {
        transactions.prefetchAhead(t);
        const QStringView cell = transactions.CellView(t, TransCol::Transaction);
        if (hasOuterBlanks(cell))
            transactions.SetCell(t, TransCol::Transaction, cell.trimmed().toString());
        if (const auto padded = paddedTransaction(transactions.CellView(t, TransCol::Transaction)))
            transactions.SetCell(t, TransCol::Transaction, *padded);
    }
}

QString cmm(QStringView text)
{
    QString result = text.toString();
    result.replace(u'.', u',');
    return result;
}

void showDecimalCommas(Listbox& accounts, Listbox& transactions)
{
    for (int r = 0; r < accounts.ListCount(); ++r) {
        for (int column : {AccountCol::Opening, AccountCol::Transactions, AccountCol::Balance})
            accounts.SetCell(r, column, cmm(accounts.CellView(r, column)));
    }
    for (int t = 0; t < transactions.ListCount(); ++t) {
        transactions.prefetchAhead(t);
        const QStringView cell = transactions.CellView(t, TransCol::Transaction);
        if (cell.contains(u'.'))
            transactions.SetCell(t, TransCol::Transaction, cmm(cell));
    }
}
