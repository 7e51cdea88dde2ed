// Saving and loading a transaction table of 1,000 to 1,000,000 rows with realistic
// cells. The "table_bytes" counter is the heap the loaded table holds. A save
// syncs the file and its folder; beside it the same save without the syncs, and
// the folder's sync alone, tell what the syncs cost.
#include "books/FileCalls.h"
#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "engine/RowLayouts.h"
#include "reference/GeneratedLedger.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

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
    // Large blocks come straight from the system, outside the heap's arena.
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void BM_SaveTransBox(benchmark::State& state)
{
    Fixture fixture(int(state.range(0)));
    for (auto _ : state)
        fixture.manager.saveListBox(fixture.transBox, fixture.fileName);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_SaveTransBoxWithoutSync(benchmark::State& state)
{
    Fixture fixture(int(state.range(0)));
    FileCalls noSync;
    noSync.fsync = [](int) { return 0; };
    const FileCalls previous = installFileCalls(noSync);
    for (auto _ : state)
        fixture.manager.saveListBox(fixture.transBox, fixture.fileName);
    installFileCalls(previous);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_SyncFolder(benchmark::State& state)
{
    // After a rename, as a save leaves the folder.
    QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.path());
    const QByteArray from = path + "/new";
    const QByteArray to = path + "/file";
    for (auto _ : state) {
        state.PauseTiming();
        ::close(::open(from.constData(), O_WRONLY | O_CREAT, 0644));
        ::rename(from.constData(), to.constData());
        state.ResumeTiming();
        const int fd = ::open(path.constData(), O_RDONLY | O_DIRECTORY);
        ::fsync(fd);
        ::close(fd);
    }
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

BENCHMARK(BM_SaveTransBox)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveTransBoxWithoutSync)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SyncFolder)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_LoadTransBox)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
