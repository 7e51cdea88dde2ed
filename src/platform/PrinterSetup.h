#pragma once

#include <QString>

// The page a print job is set up for, as the text the page setup dialog
// gives; empty: the printer's default page.
struct PrinterSetup {
    QString SetupString;
};
