// A ledger of 200 accounts with 1,000 to 1,000,000 transactions, one in fifty a
// monthly repeat that isn't due: adding a transaction as the dialog's OK does
// (the row, calcAll with both saves, the repeat pass); the repeat pass alone
// with nothing due; deleting 1,000 selected rows as the delete button does
// (both saves and calcAll); a transfer (two rows, two calcAlls).
#include "engine/RowLayouts.h"
#include "engine/TransactionEntry.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"
#include "platform/BlockingServices.h"
#include "platform/Clock.h"
#include "reference/GeneratedLedger.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

class BenchLedger {
public:
    explicit BenchLedger(int transactions)
    {
        // The day the generated dates begin: no repeat is due on it.
        previousClock = Clock::install([] { return QDateTime(QDate(2010, 1, 1), QTime(12, 0)); });
        const QString folder = home.path() + u"/Quillmark/Books"_s;
        QDir().mkpath(folder);
        writeGeneratedLedger(folder, u"  Bench"_s, LedgerShape{200, transactions, 11, false});
        books = std::make_unique<SummaryBooks>(folder);
        books->LedgerList.SetListIndex(0);
        for (int row = 0; row < books->transBox.ListCount(); row += 50)
            books->transBox.SetCell(row, TransCol::Repeat, u"Monthly"_s);
        books->calcAll();
    }
    ~BenchLedger() { Clock::install(previousClock); }

    QTemporaryDir home;
    std::unique_ptr<SummaryBooks> books;
    std::function<QDateTime()> previousClock;
};

void BM_AddTransaction(benchmark::State& state)
{
    BenchLedger ledger(int(state.range(0)));
    TransactionForm form;
    chooseAccount(form, ledger.books->accountsBox, 5);
    form.amount = u"12.50"_s;
    form.adjustment = u"0.50"_s;
    form.date = QDate(2010, 1, 1);
    form.description = u"Benchmark"_s;
    for (auto _ : state)
        TransactionOperations(*ledger.books).editAddTransaction(form, false);
    state.SetItemsProcessed(state.iterations());
}

void BM_CheckRepeatsNothingDue(benchmark::State& state)
{
    BenchLedger ledger(int(state.range(0)));
    const int rows = ledger.books->transBox.ListCount();
    for (auto _ : state)
        ledger.books->CheckRepeats();
    if (ledger.books->transBox.ListCount() != rows)
        state.SkipWithError("a repeat was due");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_DeleteThousandSelectedRows(benchmark::State& state)
{
    BenchLedger ledger(int(state.range(0)));
    BlockingServiceHooks confirmed;
    confirmed.messageDialog = [](const MessageDialog&) { return MessageDialog::Button::Action; };
    const BlockingServiceHooks previous = installBlockingServices(confirmed);
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<int> rows;
        for (int row = 0; row < ledger.books->transBox.ListCount() && rows.size() < 1000; row += 50)
            rows.push_back(row);
        ledger.books->transBox.setSelectedRows(rows);
        state.ResumeTiming();
        TransactionOperations(*ledger.books).deleteSelectedTransactions();
    }
    installBlockingServices(previous);
}

void BM_Transfer(benchmark::State& state)
{
    BenchLedger ledger(int(state.range(0)));
    const QString from = ledger.books->accountsBox.Cell(3, AccountCol::Name);
    const QString to = ledger.books->accountsBox.Cell(7, AccountCol::Name);
    for (auto _ : state)
        TransactionOperations(*ledger.books).doTransferFromTo(from, to, 12.5, QDate(2010, 1, 1));
}

} // namespace

BENCHMARK(BM_DeleteThousandSelectedRows)->Arg(100000)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Transfer)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AddTransaction)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CheckRepeatsNothingDue)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
