#pragma once

#include "cli/Verbs.h"
#include "platform/BlockingServices.h"

#include <QBuffer>
#include <QByteArray>

// For the life of a print command: the page setup dialog answered with its
// default page, the printer dialog with a PDF kept in memory until the command
// saves it to the file of its --pdf option.
class PdfPrinterServices {
public:
    PdfPrinterServices();
    ~PdfPrinterServices();
    PdfPrinterServices(const PdfPrinterServices&) = delete;
    PdfPrinterServices& operator=(const PdfPrinterServices&) = delete;

    // Writes the PDF to the file with the ledgers' checked save: 0, or 1 with
    // the reason printed when it couldn't.
    int save(const Invocation& call);

private:
    QByteArray pdf_;
    QBuffer buffer_{&pdf_};
    BlockingServiceHooks previous_;
};
