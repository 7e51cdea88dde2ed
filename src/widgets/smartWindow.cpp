#include "widgets/smartWindow.h"

#include "books/WindowMemory.h"

#include <QCloseEvent>

smartWindow::smartWindow(QWidget* parent)
    : QMainWindow(parent)
{
}

void smartWindow::getMySpecs()
{
    // A window met for the first time keeps the place the system gives it.
    const QRect remembered = smartWindowsGlobals::getMySpecs(windowTitle(), geometry());
    if (remembered != geometry())
        setGeometry(remembered);
}

void smartWindow::saveMySpecs()
{
    smartWindowsGlobals::saveMySpecs(windowTitle(), geometry());
}

void smartWindow::Event_Open()
{
    if (!windowTitle().isEmpty())
        getMySpecs();
    Open();
}

void smartWindow::Event_Close()
{
    if (!windowTitle().isEmpty())
        saveMySpecs();
    Close();
}

void smartWindow::closeEvent(QCloseEvent* event)
{
    Event_Close();
    event->accept();
}
