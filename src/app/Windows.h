#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class SummaryWindow;
class newBookWindow;
class SplashWindow;
class AboutWindow;
class PrefsWindow;
class AccountWindow;
class TransactionWindow;
class transferWindow;
class chartingWindow;
class ledgerWindow;
class indAccWindow;
class CustomImportWindow;

// Calls forget as soon as the window is closed, before its deletion, which
// waits for the event loop.
void forgetOnClose(QWidget* window, std::function<void()> forget);

// The one instance of a window, made by make() on first access. A window deletes
// itself when it closes, so the next access after that makes a new one, also
// while the closed one still waits to be deleted.
template <typename W, typename Make>
W* accessWindow(QPointer<W>& instance, Make make)
{
    if (!instance) {
        instance = make();
        instance->setAttribute(Qt::WA_DeleteOnClose);
        forgetOnClose(instance, [&instance] { instance.clear(); });
    }
    return instance;
}

// The window accessors. Each makes its window with the data it works on and
// connects it to the windows it reports to; no other place makes a window.
namespace Windows {
::SummaryWindow* SummaryWindow();
::newBookWindow* newBookWindow();
::SplashWindow* SplashWindow();
::AboutWindow* AboutWindow();
::PrefsWindow* PrefsWindow();
::AccountWindow* AccountWindow();
::TransactionWindow* TransactionWindow();
::transferWindow* transferWindow();
::chartingWindow* chartingWindow();
::ledgerWindow* ledgerWindow();
::indAccWindow* indAccWindow();
::CustomImportWindow* CustomImportWindow();
} // namespace Windows
