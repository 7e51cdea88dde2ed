#pragma once

#include "platform/Graphics.h"
#include "platform/PrinterSetup.h"

#include <QString>

#include <functional>
#include <memory>

// The services that wait for the user or leave the program: message box,
// confirmation dialog, file dialogs, page setup and printer dialogs, beep, web
// browser, quit. Each goes through one replaceable hook, so the windows install
// the real dialogs and a test scripts the answers and records what was shown.
// Without the windows' hooks, messages and web addresses go to stderr, a
// confirmation is always answered "Cancel", and the file, page setup and
// printer dialogs are cancelled: nothing irreversible happens unasked.

struct MessageDialog {
    QString Message;
    QString Explanation;
    QString ActionButton = QStringLiteral("OK");
    QString CancelButton;           // empty: no cancel button
    QString AlternateActionButton;  // empty: no alternate button

    enum class Button { Action, Cancel, Alternate };
    Button ShowModal() const;
};

// What a file dialog shows: its title, prompt, the name it suggests, and the
// kinds of file it lists ("comma-separated-values (*.csv *.txt)"; empty: all).
struct FileDialogRequest {
    QString Title;
    QString PromptText;
    QString SuggestedFileName;
    QString Filter;
};

struct BlockingServiceHooks {
    std::function<void(const QString& message)> msgBox;
    std::function<MessageDialog::Button(const MessageDialog&)> messageDialog;
    std::function<QString(const FileDialogRequest&)> saveAsDialog;
    std::function<QString(const FileDialogRequest&)> openDialog;
    std::function<bool(PrinterSetup&)> pageSetupDialog;
    std::function<std::unique_ptr<Graphics>(const PrinterSetup&)> openPrinterDialog;
    std::function<void()> beep;
    std::function<void(const QString& url)> showUrl;
    std::function<void()> quit;
};

// Installs hooks (an empty function keeps the current one) and returns the
// previous set, so a caller can put it back.
BlockingServiceHooks installBlockingServices(const BlockingServiceHooks& hooks);
const BlockingServiceHooks& blockingServices();

void MsgBox(const QString& message);
// Asks before something that can't be undone: the message, the explanation
// "This action cannot be undone." and the buttons "Delete" and "Cancel". True
// when the user chose "Delete".
bool confirmDeletion(const QString& message);
// The file dialogs: the path chosen, or "" when the user cancelled.
QString SaveAsDialog(const FileDialogRequest& request);
QString OpenDialog(const FileDialogRequest& request);
// The printer dialog for a page set up so: the surface of the pages to print
// on, or null when the user cancelled.
std::unique_ptr<Graphics> OpenPrinterDialog(const PrinterSetup& setup);
void Beep();
void ShowURL(const QString& url);
void Quit();
