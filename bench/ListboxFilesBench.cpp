// Saving and loading a transaction table of 1,000 to 100,000 rows with realistic
// cells. The "table_bytes" counter is the heap the loaded table holds.
#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "engine/RowLayouts.h"
#include "reference/GeneratedLedger.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

struct Fixture {
    explicit Fixture(int rows)
    {
        manager.ProgramDataFolder = folder.path();
        Listbox accounts(u"accountsBox"_s, AccountCol::Count);
        generateLedger(accounts, transBox, LedgerShape{200, rows, 7, false});
        manager.saveListBox(transBox, fileName);
    }
    QTemporaryDir folder;
    ListboxManager manager;
    Listbox transBox{u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple};
    const QString fileName = u"  BenchTransData"_s;
};

size_t heapInUse()
{
    return mallinfo2().uordblks;
}

void BM_SaveTransBox(benchmark::State& state)
{
    Fixture fixture(int(state.range(0)));
    for (auto _ : state)
        fixture.manager.saveListBox(fixture.transBox, fixture.fileName);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_LoadTransBox(benchmark::State& state)
{
    Fixture fixture(int(state.range(0)));
    size_t tableBytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        fixture.transBox.DeleteAllRows();
        const size_t before = heapInUse();
        state.ResumeTiming();
        fixture.manager.loadListBox(fixture.transBox, fixture.fileName);
        state.PauseTiming();
        tableBytes = heapInUse() - before;
        state.ResumeTiming();
    }
    state.counters["table_bytes"] = double(tableBytes);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(BM_SaveTransBox)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadTransBox)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
