#pragma once

#include "platform/BlockingServices.h"
#include "platform/PrinterSetup.h"

#include <QBuffer>
#include <QByteArray>

// For the life of a benchmark: the page setup confirmed, the printer a PDF in
// memory, made anew at each print.
class PdfInMemory {
public:
    PdfInMemory()
    {
        BlockingServiceHooks hooks;
        hooks.pageSetupDialog = [](PrinterSetup&) { return true; };
        hooks.openPrinterDialog = [this](const PrinterSetup& setup) {
            buffer.close();
            pdf.clear();
            buffer.open(QIODevice::WriteOnly);
            return pdfPages(&buffer, setup);
        };
        previous = installBlockingServices(hooks);
    }
    ~PdfInMemory() { installBlockingServices(previous); }
    PdfInMemory(const PdfInMemory&) = delete;
    PdfInMemory& operator=(const PdfInMemory&) = delete;

    QByteArray pdf;
    QBuffer buffer{&pdf};

private:
    BlockingServiceHooks previous;
};
