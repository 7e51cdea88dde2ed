// The CSV export of 1,000 to 100,000 transactions, written to a file, and the
// import of as many records (the export of another ledger) into a ledger of
// 200 accounts, with its calculation and both saves.
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "exchange/CsvExport.h"
#include "exchange/TransactionImport.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"
#include "reference/GeneratedLedger.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void BM_Export(benchmark::State& state)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    Listbox transactions(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
    generateLedger(accounts, transactions, LedgerShape{200, int(state.range(0)), 11, false});
    QTemporaryDir folder;
    for (auto _ : state)
        benchmark::DoNotOptimize(exportData(transactions, folder.path() + u"/export.csv"_s));
}

void BM_Import(benchmark::State& state)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    Listbox source(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
    generateLedger(accounts, source, LedgerShape{200, int(state.range(0)), 7, false});
    const QByteArray file = exportRecords(source);

    QTemporaryDir home;
    const QString books = home.path() + u"/Quillmark/Books"_s;
    QDir().mkpath(books);
    for (auto _ : state) {
        state.PauseTiming();
        writeGeneratedLedger(books, u"  Bench"_s, LedgerShape{200, 1000, 11, false});
        SummaryBooks summary(books);
        summary.LedgerList.SetListIndex(0);
        state.ResumeTiming();
        const ImportPlan plan = planImport(file, ImportMapping(), summary.transBox);
        TransactionOperations(summary).appendTransactions(transactionRows(plan.rows, false));
        state.PauseTiming();
        state.counters["rows"] = double(plan.rows.size());
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(BM_Export)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Import)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
