#include "mainwindow/MenuBar1.h"

#include "platform/ui/TextCommands.h"

#include <QAction>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

struct MenuItemLayout {
    QString name;
    QString text;
    QString shortcut;
    bool autoEnable;
};

QAction* addItem(QMenu* menu, const MenuItemLayout& item)
{
    QAction* action = item.text == u"-" ? menu->addSeparator() : menu->addAction(item.text);
    action->setObjectName(item.name);
    if (!item.shortcut.isEmpty())
        action->setShortcut(QKeySequence(item.shortcut));
    if (!item.autoEnable)
        action->setEnabled(false);
    return action;
}

} // namespace

namespace MenuBar1 {

QMenuBar* build(QWidget* window)
{
    auto* bar = new QMenuBar(window);
    bar->setObjectName(u"MenuBar1"_s);

    QMenu* file = bar->addMenu(u"&File"_s);
    file->setObjectName(u"FileMenu"_s);
    addItem(file, {u"FileQuit"_s, u"&Quit"_s, u"Ctrl+Q"_s, true})->setMenuRole(QAction::QuitRole);
    addItem(file, {u"FileNewAccount"_s, u"New Account..."_s, u"Ctrl+1"_s, false});
    addItem(file, {u"FileNewTransaction"_s, u"New Transaction..."_s, u"Ctrl+2"_s, false});
    addItem(file, {u"UntitledSeparator0"_s, u"-"_s, {}, true});
    addItem(file, {u"FileImportData"_s, u"Import Transactions..."_s, {}, false});
    addItem(file, {u"FileExportData"_s, u"Export Transactions (CSV)..."_s, {}, false});
    addItem(file, {u"UntitledSeparator1"_s, u"-"_s, {}, true});
    addItem(file, {u"FilePageSetup"_s, u"Page Setup..."_s, u"Ctrl+Shift+P"_s, true});
    addItem(file, {u"FilePrint"_s, u"Print..."_s, u"Ctrl+P"_s, false});
    addItem(file, {u"FileAboutQuillmark"_s, u"About Quillmark"_s, {}, true})->setMenuRole(QAction::AboutRole);

    // The edit items work on the text field that has the focus.
    QMenu* edit = bar->addMenu(u"&Edit"_s);
    edit->setObjectName(u"EditMenu"_s);
    const auto editItem = [edit](const MenuItemLayout& layout, TextCommand command) {
        QAction* action = addItem(edit, layout);
        QObject::connect(action, &QAction::triggered, action, [command] { runOnFocusedText(command); });
    };
    editItem({u"EditUndo"_s, u"&Undo"_s, u"Ctrl+Z"_s, true}, TextCommand::Undo);
    addItem(edit, {u"UntitledMenu1"_s, u"-"_s, {}, true});
    editItem({u"EditCut"_s, u"Cu&t"_s, u"Ctrl+X"_s, true}, TextCommand::Cut);
    editItem({u"EditCopy"_s, u"&Copy"_s, u"Ctrl+C"_s, true}, TextCommand::Copy);
    editItem({u"EditPaste"_s, u"&Paste"_s, u"Ctrl+V"_s, true}, TextCommand::Paste);
    editItem({u"EditClear"_s, u"&Delete"_s, {}, true}, TextCommand::Clear);
    addItem(edit, {u"UntitledMenu0"_s, u"-"_s, {}, true});
    editItem({u"EditSelectAll"_s, u"Select &All"_s, u"Ctrl+A"_s, true}, TextCommand::SelectAll);

    QMenu* help = bar->addMenu(u"Help"_s);
    help->setObjectName(u"HelpMenu"_s);
    addItem(help, {u"HelpUsersGuide"_s, u"User's Guide"_s, {}, true});
    addItem(help, {u"HelpSupport"_s, u"Support"_s, {}, true});
    return bar;
}

QAction* item(const QMenuBar& menuBar, const QString& name)
{
    return menuBar.findChild<QAction*>(name);
}

void bind(const QMenuBar& menuBar, const QString& name, QObject* receiver, std::function<void()> handler)
{
    if (QAction* action = item(menuBar, name))
        QObject::connect(action, &QAction::triggered, receiver, [handler = std::move(handler)] { handler(); });
}

} // namespace MenuBar1
