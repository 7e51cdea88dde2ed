// The main window with a ledger of 1,000 to 1,000,000 transactions: opening the
// ledger in the visible window up to its first painted screen, scrolling the
// transactions from the top to the end with the repaint that follows, and a
// search that hits one row in a hundred, selects them and repaints.
#include "books/rowtable/ui/ListboxView.h"
#include "app/Windows.h"
#include "mainwindow/SummaryWindow.h"
#include "reference/GeneratedLedger.h"

#include <QApplication>
#include <QLineEdit>
#include <QDir>
#include <QScrollBar>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

// A data folder of its own holding one generated ledger, and the main window
// over it, shown.
class BenchWindow {
public:
    explicit BenchWindow(int transactions)
    {
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        const QString books = home.path() + u"/Quillmark/Books"_s;
        QDir().mkpath(books);
        writeGeneratedLedger(books, u"  Bench"_s, LedgerShape{200, transactions, 11, false});
        window = Windows::SummaryWindow();
        window->show();
        QApplication::processEvents();
    }
    ~BenchWindow() { delete window; }

    // Paints the whole window now, as its first screen after a change.
    void paint() const
    {
        QApplication::processEvents();
        window->repaint();
    }

    QTemporaryDir home;
    SummaryWindow* window;
};

void BM_OpenLedgerAndPaint(benchmark::State& state)
{
    BenchWindow bench(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        bench.window->LedgerList().SetListIndex(-1);
        bench.paint();
        state.ResumeTiming();
        bench.window->LedgerList().SetListIndex(0);
        bench.paint();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_ScrollTransactionsToEnd(benchmark::State& state)
{
    BenchWindow bench(int(state.range(0)));
    bench.window->LedgerList().SetListIndex(0);
    bench.paint();
    ListboxView* grid = bench.window->transBoxView;
    for (auto _ : state) {
        state.PauseTiming();
        grid->scrollToTop();
        bench.paint();
        state.ResumeTiming();
        grid->scrollToBottom();
        grid->viewport()->repaint();
    }
    benchmark::DoNotOptimize(grid->verticalScrollBar()->value());
}

void BM_SearchSelectAndPaint(benchmark::State& state)
{
    BenchWindow bench(int(state.range(0)));
    bench.window->LedgerList().SetListIndex(0);
    Listbox& transactions = bench.window->transBox();
    for (int row = 0; row < transactions.ListCount(); row += 100)
        transactions.SetCell(row, 9, u"paid with the zqx card"_s); // the memo, which no column shows
    bench.paint();
    for (auto _ : state) {
        state.PauseTiming();
        transactions.setSelectedRows({});
        bench.paint();
        state.ResumeTiming();
        bench.window->EditField11->setText(u"ZQX"_s);
        bench.window->findTrans();
        bench.paint();
    }
    state.counters["hits"] = double((transactions.ListCount() + 99) / 100);
}

} // namespace

BENCHMARK(BM_SearchSelectAndPaint)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenLedgerAndPaint)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScrollTransactionsToEnd)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
