#include "mainwindow/Toolbar1.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

Toolbar1::Toolbar1(QWidget* parent)
    : QToolBar(u"Toolbar11"_s, parent)
{
    setMovable(false);
    setFloatable(false);
    setIconSize(QSize(32, 32));
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);

    addPushItem(u"Ledger"_s, u"Summary"_s, u"Show Ledger Summary"_s, u"page_acceptpng_32x32"_s);
    addPushItem(u"Graphs"_s, u"Charts"_s, {}, u"chartpng_32x32"_s);
    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(space)->setObjectName(u"ToolItem9"_s);
    addPushItem(u"Add"_s, u"Add"_s, u"Add account"_s, u"addpng_32x32"_s);
    addPushItem(u"Delete"_s, u"Delete"_s, u"Delete selected account"_s, u"deletepng_32x32"_s);
    addPushItem(u"Edit"_s, u"Edit"_s, u"Edit selected account"_s, u"editpng_32x32"_s);
    addPushItem(u"Transfer"_s, u"Transfer"_s, u"Tranfer funds between accounts"_s, u"nextpng_32x32"_s);
    addPushItem(u"Transactions"_s, u"Transactions"_s, u"Show selected account transactions"_s,
                u"calculatorpng_32x32"_s);
    addSeparator()->setObjectName(u"ToolItem1"_s);
}

QAction* Toolbar1::addPushItem(const QString& name, const QString& caption, const QString& helpTag,
                               const QString& icon)
{
    QAction* item = addAction(QIcon(u":/pictures/"_s + icon + u".png"_s), caption);
    item->setObjectName(name);
    item->setToolTip(helpTag.isEmpty() ? caption : helpTag);
    connect(item, &QAction::triggered, this, [this, item] { Q_EMIT Action(item); });
    return item;
}

void Toolbar1::Open()
{
    QAction* printSave = addPushItem(u"PrintSave"_s, u"Print/Save"_s, {}, u"processpng_32x32"_s);
    printSaveMenu_ = new QMenu(u"Print/Save"_s, this);
    printSaveMenu_->setObjectName(u"PrintSaveMenu"_s);
    for (const QString& text : {u"Print/Save Accounts"_s, u"Print/Save Transactions"_s, u"Print/Save Both"_s})
        printSaveMenu_->addAction(text);
    printSave->setMenu(printSaveMenu_);
    if (auto* button = qobject_cast<QToolButton*>(widgetForAction(printSave)))
        button->setPopupMode(QToolButton::MenuButtonPopup);
    connect(printSaveMenu_, &QMenu::triggered, this,
            [this, printSave](QAction* menuItem) { Q_EMIT DropDownMenuAction(printSave, menuItem); });
}

QAction* Toolbar1::item(const QString& name) const
{
    return findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
}
