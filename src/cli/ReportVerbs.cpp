// The ledger report window, as text or printed to a PDF file.
#include "cli/DrawingVerbs.h"

#include "cli/PdfPrinterServices.h"
#include "platform/Clock.h"
#include "platform/Numbers.h"
#include "reports/LedgerReport.h"
#include "reports/ListboxPrinter.h"

using namespace Qt::StringLiterals;

int reportVerb(const Invocation& call, SummaryBooks& books)
{
    const Listbox& accounts = books.accountsBox;
    const Listbox& transactions = books.transBox;
    Listbox report(u"ledgerbox"_s, ReportCol::Count);
    setUpLedgerReport(report);
    // The window opens on every month, then takes the filter asked for.
    loadLedger(report, accounts, transactions, 0);
    if (call.isSet(u"month"_s))
        loadLedger(report, accounts, transactions, call.value(u"month"_s).toInt());
    else if (call.isSet(u"year"_s))
        loadLedgerYear(report, accounts, transactions, call.value(u"year"_s));
    else if (call.isSet(u"show-year"_s))
        loadLedgerYear(report, accounts, transactions, Str(Clock::today().year()));

    if (call.isSet(u"pdf"_s)) {
        report.layOutColumns(kLedgerboxWidth);
        PdfPrinterServices printer;
        ListboxPrinter().print(report, true);
        return printer.save(call);
    }
    if (report.ListCount() == 0)
        call.out << "No transactions found\n";
    for (int row = 0; row < report.ListCount(); ++row) {
        for (int column = 0; column <= ReportCol::Type; ++column) {
            if (column > 0)
                call.out << '\t';
            call.out << report.CellView(row, column);
        }
        call.out << '\n';
    }
    return 0;
}
