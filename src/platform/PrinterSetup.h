#pragma once

#include <QPageLayout>
#include <QString>

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
