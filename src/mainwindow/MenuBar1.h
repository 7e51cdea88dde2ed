#pragma once

#include <QString>

#include <functional>

class QAction;
class QMenuBar;
class QObject;
class QWidget;

// The menu bar. Items are found by their names, never by position, and each
// command's handler is bound to its item by that name.
namespace MenuBar1 {

QMenuBar* build(QWidget* window);
QAction* item(const QMenuBar& menuBar, const QString& name);
void bind(const QMenuBar& menuBar, const QString& name, QObject* receiver, std::function<void()> handler);

} // namespace MenuBar1
