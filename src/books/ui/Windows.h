#pragma once

#include <QPointer>
#include <QWidget>

class SummaryWindow;
class newBookWindow;
class SplashWindow;
class AboutWindow;
class PrefsWindow;
class AccountWindow;

#include <functional>

// Calls forget as soon as the window is closed, before its deletion, which
// waits for the event loop.
void forgetOnClose(QWidget* window, std::function<void()> forget);

// The one instance of each window, made on first access. A window deletes itself
// when it closes, so the next access after that makes a new one, also while the
// closed one still waits to be deleted.
template <typename W>
W* accessWindow(QPointer<W>& instance)
{
    if (!instance) {
        instance = new W();
        instance->setAttribute(Qt::WA_DeleteOnClose);
        forgetOnClose(instance, [&instance] { instance.clear(); });
    }
    return instance;
}

namespace Windows {
::SummaryWindow* SummaryWindow();
::newBookWindow* newBookWindow();
::SplashWindow* SplashWindow();
::AboutWindow* AboutWindow();
::PrefsWindow* PrefsWindow();
::AccountWindow* AccountWindow();
} // namespace Windows
