// The balance calculation of a ledger of 200 accounts with 1,000 to 1,000,000
// transactions (the scan to 100,000): calcAll as a whole (both saves included), and beside it the
// plain account-by-account scan of the same sums, without saves.
#include "ledger/SummaryBooks.h"
#include "engine/RowLayouts.h"
#include "reference/AccountByAccountScan.h"
#include "reference/GeneratedLedger.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void BM_CalcAll(benchmark::State& state)
{
    QTemporaryDir home;
    const QString books = home.path() + u"/Quillmark/Books"_s;
    QDir().mkpath(books);
    writeGeneratedLedger(books, u"  Bench"_s, LedgerShape{200, int(state.range(0)), 11, false});
    SummaryBooks summary(books);
    summary.LedgerList.SetListIndex(0);
    // Every stored ledger has been calculated before: its seconds and padded
    // totals stand in the cells already.
    summary.calcAll();
    for (auto _ : state)
        summary.calcAll();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_AccountByAccountScan(benchmark::State& state)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    Listbox transactions(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
    generateLedger(accounts, transactions, LedgerShape{200, int(state.range(0)), 11, false});
    for (auto _ : state)
        benchmark::DoNotOptimize(scanAccountByAccount(accounts, transactions, false));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(BM_CalcAll)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AccountByAccountScan)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
