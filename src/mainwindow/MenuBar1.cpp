#include "mainwindow/MenuBar1.h"

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
    addItem(file, {u"UntitledSeparator1"_s, u"-"_s, {}, true});
    addItem(file, {u"FileAboutQuillmark"_s, u"About Quillmark"_s, {}, true})->setMenuRole(QAction::AboutRole);

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
