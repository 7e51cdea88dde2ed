// The ledger report on a ledger of 200 accounts with 1,000 to 100,000
// transactions: the report of one year, as "Show Year" builds it, and the whole
// report printed to a PDF, fitted to an A4 page, as the print button prints it.
#include "PdfInMemory.h"
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "reference/GeneratedLedger.h"
#include "reports/LedgerReport.h"
#include "reports/ListboxPrinter.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

struct Ledger {
    explicit Ledger(int transactionCount) { generateLedger(accounts, transactions, LedgerShape{200, transactionCount, 11, false}); }
    Listbox accounts{u"accountsBox"_s, AccountCol::Count};
    Listbox transactions{u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple};
};

void BM_ReportOfAYear(benchmark::State& state)
{
    const Ledger ledger(int(state.range(0)));
    Listbox report(u"ledgerbox"_s, ReportCol::Count);
    setUpLedgerReport(report);
    for (auto _ : state)
        benchmark::DoNotOptimize(loadLedgerYear(report, ledger.accounts, ledger.transactions, u"2013"_s));
    state.counters["rows"] = report.ListCount();
}

void BM_PrintWholeReport(benchmark::State& state)
{
    const Ledger ledger(int(state.range(0)));
    Listbox report(u"ledgerbox"_s, ReportCol::Count);
    setUpLedgerReport(report);
    loadLedger(report, ledger.accounts, ledger.transactions, 0);
    report.layOutColumns(kLedgerboxWidth);
    PdfInMemory printer;
    for (auto _ : state) {
        ListboxPrinter().print(report, true);
    }
    state.counters["rows"] = report.ListCount();
    state.counters["MB"] = printer.pdf.size() / 1e6;
}

} // namespace

BENCHMARK(BM_ReportOfAYear)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PrintWholeReport)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
