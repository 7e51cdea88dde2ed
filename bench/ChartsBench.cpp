// The two charts of the chart window on a ledger of 200 accounts with 1,000 to
// 100,000 transactions: the bars of the transaction totals and the pie of the
// opening amounts, each made from the account table and drawn, as a press of
// its radio button makes it.
#include "charts/AccountCharts.h"
#include "engine/RowLayouts.h"
#include "ledger/SummaryBooks.h"
#include "reference/GeneratedLedger.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kCanvas(553, 432);

// The generated ledger opened and calculated, as the main window holds it.
class ChartLedger {
public:
    explicit ChartLedger(int transactions)
        : books(home.path() + u"/Quillmark/Books"_s)
    {
        QDir().mkpath(home.path() + u"/Quillmark/Books"_s);
        writeGeneratedLedger(home.path() + u"/Quillmark/Books"_s, u"  Bench"_s, LedgerShape{200, transactions, 11, false});
        books.LedgerList.SetListIndex(0);
        books.calcAll();
    }

    QTemporaryDir home;
    SummaryBooks books;
};

void BM_TransactionsChart(benchmark::State& state)
{
    ChartLedger ledger(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(transactionsChart(ledger.books.accountsBox, kCanvas));
}

void BM_OpeningsChart(benchmark::State& state)
{
    ChartLedger ledger(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(openingsChart(ledger.books.accountsBox, kCanvas));
}

} // namespace

BENCHMARK(BM_TransactionsChart)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpeningsChart)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
