#pragma once

#include <functional>

class AccountWindow;
class TransactionWindow;
class transferWindow;
class newBookWindow;
class chartingWindow;
class ledgerWindow;
class indAccWindow;
class CustomImportWindow;

// The dialogs the main window opens, each reached through the accessor of its
// name: the one instance while it is open, a new one after it closed. The
// application hands them in when it makes the main window, so the main window
// never makes or wires another window itself.
struct SummaryDialogs {
    std::function<::AccountWindow*()> AccountWindow;
    std::function<::TransactionWindow*()> TransactionWindow;
    std::function<::transferWindow*()> transferWindow;
    std::function<::newBookWindow*()> newBookWindow;
    std::function<::chartingWindow*()> chartingWindow;
    std::function<::ledgerWindow*()> ledgerWindow;
    std::function<::indAccWindow*()> indAccWindow;
    std::function<::CustomImportWindow*()> CustomImportWindow;
};
