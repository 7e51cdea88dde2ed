#include "platform/ui/DesktopServices.h"

#include "platform/BlockingServices.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QUrl>

namespace {

QWidget* dialogParent()
{
    return QApplication::activeWindow();
}

MessageDialog::Button showMessageDialog(const MessageDialog& dialog)
{
    QMessageBox box(dialogParent());
    box.setIcon(QMessageBox::Warning);
    box.setText(dialog.Message);
    box.setInformativeText(dialog.Explanation);
    QPushButton* action = box.addButton(dialog.ActionButton, QMessageBox::AcceptRole);
    QPushButton* cancel = nullptr;
    QPushButton* alternate = nullptr;
    if (!dialog.CancelButton.isEmpty())
        cancel = box.addButton(dialog.CancelButton, QMessageBox::RejectRole);
    if (!dialog.AlternateActionButton.isEmpty())
        alternate = box.addButton(dialog.AlternateActionButton, QMessageBox::DestructiveRole);
    // The safe answer is the one Return gives.
    box.setDefaultButton(cancel ? cancel : action);
    box.setEscapeButton(cancel ? cancel : action);
    box.exec();
    if (box.clickedButton() == action)
        return MessageDialog::Button::Action;
    if (alternate && box.clickedButton() == alternate)
        return MessageDialog::Button::Alternate;
    return MessageDialog::Button::Cancel;
}

QString showSaveAsDialog(const FileDialogRequest& request)
{
    QFileDialog dialog(dialogParent(), request.Title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(request.SuggestedFileName);
    if (!request.Filter.isEmpty())
        dialog.setNameFilter(request.Filter);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString showOpenDialog(const FileDialogRequest& request)
{
    return QFileDialog::getOpenFileName(dialogParent(), request.Title, QString(), request.Filter);
}

bool showPageSetupDialog(PrinterSetup& setup)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(setup.pageLayout());
    QPageSetupDialog dialog(&printer, dialogParent());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    setup.SetupString = PrinterSetup::setupStringOf(printer.pageLayout());
    return true;
}

// The system's printer dialog; accepted, the printer it was set to becomes the
// surface of the pages, on the page set up.
std::unique_ptr<Graphics> showPrinterDialog(const PrinterSetup& setup)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout(setup.pageLayout());
    QPrintDialog dialog(printer.get(), dialogParent());
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
    return std::make_unique<Graphics>(std::move(printer));
}

} // namespace

void installDesktopServices()
{
    BlockingServiceHooks hooks;
    hooks.msgBox = [](const QString& message) {
        QMessageBox box(dialogParent());
        box.setText(message);
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
    };
    hooks.messageDialog = showMessageDialog;
    hooks.saveAsDialog = showSaveAsDialog;
    hooks.openDialog = showOpenDialog;
    hooks.pageSetupDialog = showPageSetupDialog;
    hooks.openPrinterDialog = showPrinterDialog;
    hooks.beep = [] { QApplication::beep(); };
    hooks.showUrl = [](const QString& url) { QDesktopServices::openUrl(QUrl(url)); };
    installBlockingServices(hooks);
}
