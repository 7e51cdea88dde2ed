#pragma once

#include <QPageLayout>
#include <QString>

#include <memory>

class Graphics;
class QIODevice;

// The page a print job is set up for. Its text, SetupString, is what a page
// setup keeps: the paper's width and height in points as it stands upright,
// the orientation, and the margins in points ("595x842 portrait 36 36 36 36").
// An empty or unreadable text is the default page: A4 upright with margins of
// half an inch. Drawing on the page starts at the corner inside the margins.
class PrinterSetup {
public:
    QString SetupString;

    // The page setup dialog on this page. True when the user confirmed it; the
    // text then holds the page chosen.
    bool PageSetupDialog();
    // The area inside the margins, in points.
    int Width() const;
    int Height() const;

    QPageLayout pageLayout() const;
    static QString setupStringOf(const QPageLayout& layout);
};

// Pages of a PDF on this page setup, written to the device (open for writing,
// and kept by the caller) or to the file at path, as a printer that writes PDF
// gives them.
std::unique_ptr<Graphics> pdfPages(QIODevice* device, const PrinterSetup& setup);
std::unique_ptr<Graphics> pdfPages(const QString& path, const PrinterSetup& setup);

