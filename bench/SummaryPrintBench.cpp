// An account's transactions window and Print/Save on a ledger of 200 accounts
// with 1,000 to 100,000 transactions: the list of one account as the window
// fills it, and Print/Save Both printed to a PDF on the default page.
#include "PdfInMemory.h"
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "reference/GeneratedLedger.h"
#include "reports/AccountTransactions.h"
#include "reports/SummaryPrint.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

struct Ledger {
    explicit Ledger(int transactionCount)
    {
        generateLedger(accounts, transactions, LedgerShape{200, transactionCount, 11, false});
        accounts.SetListIndex(5);
    }
    Listbox accounts{u"accountsBox"_s, AccountCol::Count};
    Listbox transactions{u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple};
};

void BM_AccountList(benchmark::State& state)
{
    const Ledger ledger(int(state.range(0)));
    const QString account = ledger.accounts.Cell(5, AccountCol::Name);
    for (auto _ : state) {
        Listbox list(u"ListBox1"_s, AccountListCol::Count, Listbox::SelectionType::Multiple);
        setUpAccountList(list);
        loadAccount(list, ledger.transactions, account);
        benchmark::DoNotOptimize(selectedAccountBalance(ledger.accounts));
        state.counters["lines"] = list.ListCount();
    }
}

void BM_PrintBoth(benchmark::State& state)
{
    const Ledger ledger(int(state.range(0)));
    PdfInMemory printer;
    for (auto _ : state) {
        printAll(u"all"_s, u"Quillmark"_s, ledger.accounts, ledger.transactions);
    }
    state.counters["MB"] = printer.pdf.size() / 1e6;
}

} // namespace

BENCHMARK(BM_AccountList)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PrintBoth)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
