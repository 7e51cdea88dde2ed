#include "platform/BlockingServices.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include <cstdio>

namespace {

BlockingServiceHooks defaultHooks()
{
    BlockingServiceHooks hooks;
    hooks.msgBox = [](const QString& message) {
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    };
    hooks.messageDialog = [](const MessageDialog& dialog) {
        return dialog.CancelButton.isEmpty() ? MessageDialog::Button::Action : MessageDialog::Button::Cancel;
    };
    hooks.beep = [] {};
    hooks.showUrl = [](const QString& url) { QDesktopServices::openUrl(QUrl(url)); };
    hooks.quit = [] { QCoreApplication::quit(); };
    return hooks;
}

BlockingServiceHooks& current()
{
    static BlockingServiceHooks hooks = defaultHooks();
    return hooks;
}

template <typename F>
void replaceIfSet(F& target, const F& replacement)
{
    if (replacement)
        target = replacement;
}

} // namespace

BlockingServiceHooks installBlockingServices(const BlockingServiceHooks& hooks)
{
    BlockingServiceHooks previous = current();
    replaceIfSet(current().msgBox, hooks.msgBox);
    replaceIfSet(current().messageDialog, hooks.messageDialog);
    replaceIfSet(current().beep, hooks.beep);
    replaceIfSet(current().showUrl, hooks.showUrl);
    replaceIfSet(current().quit, hooks.quit);
    return previous;
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
