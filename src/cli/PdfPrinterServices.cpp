#include "cli/PdfPrinterServices.h"

#include "books/FileStore.h"
#include "platform/PrinterSetup.h"

using namespace Qt::StringLiterals;

PdfPrinterServices::PdfPrinterServices()
{
    BlockingServiceHooks hooks;
    hooks.pageSetupDialog = [](PrinterSetup&) { return true; };
    hooks.openPrinterDialog = [this](const PrinterSetup& setup) {
        buffer_.open(QIODevice::WriteOnly);
        return pdfPages(&buffer_, setup);
    };
    previous_ = installBlockingServices(hooks);
}

PdfPrinterServices::~PdfPrinterServices()
{
    installBlockingServices(previous_);
}

int PdfPrinterServices::save(const Invocation& call)
{
    const QString path = call.value(u"pdf"_s);
    if (const FileProblem problem = replaceFile(path, pdf_); problem.failed())
        return refused(call, u"couldn't write \"%1\": %2"_s.arg(path, problem.reason));
    return 0;
}
