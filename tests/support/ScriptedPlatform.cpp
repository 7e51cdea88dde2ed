#include "support/ScriptedPlatform.h"

ScriptedPlatform::ScriptedPlatform()
{
    BlockingServiceHooks hooks;
    hooks.msgBox = [this](const QString& message) { messages << message; };
    hooks.messageDialog = [this](const MessageDialog& dialog) {
        dialogs.push_back(dialog);
        if (answers.empty())
            return MessageDialog::Button::Cancel;
        const MessageDialog::Button answer = answers.front();
        answers.pop_front();
        return answer;
    };
    hooks.saveAsDialog = hooks.openDialog = [this](const FileDialogRequest& request) {
        fileDialogs.push_back(request);
        return filePath;
    };
    hooks.pageSetupDialog = [this](PrinterSetup&) {
        ++pageSetups;
        return confirmPageSetup;
    };
    hooks.openPrinterDialog = [this](const PrinterSetup& setup) -> std::unique_ptr<Graphics> {
        ++printerDialogs;
        if (pdfPath.isEmpty())
            return nullptr;
        return pdfPages(pdfPath, setup);
    };
    hooks.beep = [this] { ++beeps; };
    hooks.showUrl = [this](const QString& url) { urls << url; };
    hooks.quit = [this] { ++quits; };
    previous = installBlockingServices(hooks);
}

ScriptedPlatform::~ScriptedPlatform()
{
    installBlockingServices(previous);
}

FixedClock::FixedClock(const QDateTime& now)
    : current(now)
{
    previous = Clock::install([this] { return current; });
}

FixedClock::~FixedClock()
{
    Clock::install(previous);
}
