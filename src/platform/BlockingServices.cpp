#include "platform/BlockingServices.h"

#include "platform/Hooks.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

BlockingServiceHooks defaultHooks()
{
    const auto printLine = [](const QString& text) { std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData()); };
    BlockingServiceHooks hooks;
    hooks.msgBox = printLine;
    hooks.messageDialog = [](const MessageDialog& dialog) {
        return dialog.CancelButton.isEmpty() ? MessageDialog::Button::Action : MessageDialog::Button::Cancel;
    };
    hooks.saveAsDialog = [](const FileDialogRequest&) { return QString(); };
    hooks.openDialog = [](const FileDialogRequest&) { return QString(); };
    hooks.pageSetupDialog = [](PrinterSetup&) { return false; };
    hooks.openPrinterDialog = [](const PrinterSetup&) { return std::unique_ptr<Graphics>(); };
    hooks.beep = [] {};
    hooks.showUrl = printLine;
    hooks.quit = [] { QCoreApplication::quit(); };
    return hooks;
}

BlockingServiceHooks& current()
{
    static BlockingServiceHooks hooks = defaultHooks();
    return hooks;
}

} // namespace

BlockingServiceHooks installBlockingServices(const BlockingServiceHooks& hooks)
{
    return replaceSetHooks(current(), hooks, &BlockingServiceHooks::msgBox, &BlockingServiceHooks::messageDialog,
                           &BlockingServiceHooks::saveAsDialog, &BlockingServiceHooks::openDialog,
                           &BlockingServiceHooks::pageSetupDialog, &BlockingServiceHooks::openPrinterDialog,
                           &BlockingServiceHooks::beep, &BlockingServiceHooks::showUrl, &BlockingServiceHooks::quit);
}

const BlockingServiceHooks& blockingServices()
{
    return current();
}

MessageDialog::Button MessageDialog::ShowModal() const
{
    return current().messageDialog(*this);
}

void MsgBox(const QString& message)
{
    current().msgBox(message);
}

QString SaveAsDialog(const FileDialogRequest& request)
{
    return current().saveAsDialog(request);
}

QString OpenDialog(const FileDialogRequest& request)
{
    return current().openDialog(request);
}

std::unique_ptr<Graphics> OpenPrinterDialog(const PrinterSetup& setup)
{
    return current().openPrinterDialog(setup);
}

void Beep()
{
    current().beep();
}

void ShowURL(const QString& url)
{
    current().showUrl(url);
}

void Quit()
{
    current().quit();
}

bool confirmDeletion(const QString& message)
{
    MessageDialog dialog;
    dialog.Message = message;
    dialog.Explanation = QStringLiteral("This action cannot be undone.");
    dialog.ActionButton = QStringLiteral("Delete");
    dialog.CancelButton = QStringLiteral("Cancel");
    return dialog.ShowModal() == MessageDialog::Button::Action;
}
