#pragma once

#include <QPointer>
#include <QWidget>

class SummaryWindow;
class newBookWindow;
class SplashWindow;
class AboutWindow;
class PrefsWindow;

// The one instance of each window, made on first access. A window deletes itself
// when it closes, so the next access after that makes a new one.
template <typename W>
W* accessWindow(QPointer<W>& instance)
{
    if (!instance) {
        instance = new W();
        instance->setAttribute(Qt::WA_DeleteOnClose);
    }
    return instance;
}

namespace Windows {
::SummaryWindow* SummaryWindow();
::newBookWindow* newBookWindow();
::SplashWindow* SplashWindow();
::AboutWindow* AboutWindow();
::PrefsWindow* PrefsWindow();
} // namespace Windows
