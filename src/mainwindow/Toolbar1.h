#pragma once

#include <QToolBar>

class QMenu;

// The main window's toolbar. Its items are found by name, never by position:
// Ledger, Graphs, a flexible space, Add, Delete, Edit, Transfer, Transactions,
// a separator and the drop-down PrintSave, which Open() adds last.
class Toolbar1 : public QToolBar {
    Q_OBJECT

public:
    explicit Toolbar1(QWidget* parent = nullptr);

    // Adds the last item, PrintSave, with its menu.
    void Open();
    QAction* item(const QString& name) const;
    QMenu* printSaveMenu() const { return printSaveMenu_; }

Q_SIGNALS:
    // An item was pressed.
    void Action(QAction* item);
    // An item of a drop-down item's menu was chosen.
    void DropDownMenuAction(QAction* item, QAction* menuItem);

private:
    QAction* addPushItem(const QString& name, const QString& caption, const QString& helpTag, const QString& icon);

    QMenu* printSaveMenu_ = nullptr;
};
