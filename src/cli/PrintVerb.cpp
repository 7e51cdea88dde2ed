// The Print/Save items of the main window, printed to a PDF file.
#include "cli/DrawingVerbs.h"

#include "cli/PdfPrinterServices.h"
#include "reports/SummaryPrint.h"

using namespace Qt::StringLiterals;

int printVerb(const Invocation& call, SummaryBooks& books)
{
    const QString what = call.value(u"what"_s);
    PdfPrinterServices printer;
    printAll(what == u"both" ? u"all"_s : what, u"Quillmark"_s, books.accountsBox, books.transBox);
    return printer.save(call);
}
