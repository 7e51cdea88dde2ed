#include "app/SplashWindow.h"
#include "books/ui/PrefsWindow.h"
#include "books/ui/newBookWindow.h"
#include "charts/ui/chartingWindow.h"
#include "engine/ui/AccountWindow.h"
#include "engine/ui/TransactionWindow.h"
#include "engine/ui/transferWindow.h"
#include "exchange/ui/CustomImportWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "reports/ui/indAccWindow.h"
#include "reports/ui/ledgerWindow.h"
#include "update/StartupGlobals.h"
#include "update/ui/AboutWindow.h"
#include "update/ui/newVersionWindow.h"
#include "widgets/AutoButton.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace {

QString accessibleName(QWidget* widget)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
    return face ? face->text(QAccessible::Name).trimmed() : QString();
}

QString describe(QWidget* widget)
{
    return widget->objectName().isEmpty()
               ? QString::fromUtf8(widget->metaObject()->className()) + u" \""_s + accessibleName(widget) + u'"'
               : widget->objectName();
}

// Whether object belongs to window itself (its menus included), not to a
// dialog it owns.
bool ownedBy(const QObject* object, const QWidget* window)
{
    for (; object; object = object->parent())
        if (auto* widget = qobject_cast<const QWidget*>(object); widget && widget->isWindow()
                                                                && !qobject_cast<const QMenu*>(widget))
            return widget == window;
    return false;
}

// A control is what the user works with: what takes the keyboard focus, a
// button of any kind, a list or grid. What lies inside a control (a spin box's
// field, a list's editor) is part of it; Qt's own helpers ("qt_...") are not.
bool isControl(const QWidget* widget)
{
    return !widget->objectName().startsWith("qt_"_L1)
           && ((widget->focusPolicy() & Qt::TabFocus) || qobject_cast<const QAbstractButton*>(widget)
               || qobject_cast<const AutoButton*>(widget) || qobject_cast<const QAbstractItemView*>(widget));
}

QList<QWidget*> controlsOf(QWidget* window)
{
    QList<QWidget*> controls;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        bool inner = !widget->isVisible() || widget->window() != window || !isControl(widget);
        for (QWidget* up = widget->parentWidget(); up && up != window && !inner; up = up->parentWidget())
            inner = qobject_cast<QAbstractItemView*>(up) || qobject_cast<QAbstractSpinBox*>(up)
                    || qobject_cast<QComboBox*>(up) || (up->focusPolicy() & Qt::TabFocus && isControl(up));
        if (!inner)
            controls << widget;
    }
    return controls;
}

// Reading order: down a column, and left to right along a row. Two controls are
// in one column when their spans across overlap, in one row when their spans
// down overlap; controls that share neither (the ledger list's buttons and the
// accounts list beside it) may come in either order.
bool readBefore(const QRect& first, const QRect& second)
{
    const bool sameColumn = first.left() <= second.right() && second.left() <= first.right();
    const bool sameRow = first.top() <= second.bottom() && second.top() <= first.bottom();
    if (sameColumn != sameRow)
        return sameColumn ? first.bottom() < second.top() : first.right() < second.left();
    return true;
}

// The shortcuts of one window, each with what owns it: the actions' keys, the
// shortcuts' keys, the mnemonics of buttons, group boxes, labels with a buddy
// and the menu bar's titles.
QMultiMap<QString, QString> shortcutsOf(QWidget* window)
{
    QMultiMap<QString, QString> keys;
    const auto add = [&](const QKeySequence& key, const QString& owner) {
        if (!key.isEmpty())
            keys.insert(key.toString(), owner);
    };
    for (QAction* action : window->findChildren<QAction*>())
        for (const QKeySequence& key : ownedBy(action, window) ? action->shortcuts() : QList<QKeySequence>())
            add(key, action->objectName().isEmpty() ? action->text() : action->objectName());
    for (QShortcut* shortcut : window->findChildren<QShortcut*>())
        for (const QKeySequence& key : ownedBy(shortcut, window) ? shortcut->keys() : QList<QKeySequence>())
            add(key, u"QShortcut "_s + shortcut->objectName());
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->window() != window)
            continue;
        auto* button = qobject_cast<QAbstractButton*>(widget);
        auto* box = qobject_cast<QGroupBox*>(widget);
        auto* label = qobject_cast<QLabel*>(widget);
        add(QKeySequence::mnemonic(button ? button->text()
                                   : box  ? box->title()
                                   : label && label->buddy() ? label->text()
                                                             : QString()),
            describe(widget));
        if (auto* bar = qobject_cast<QMenuBar*>(widget))
            for (QAction* title : bar->actions())
                add(QKeySequence::mnemonic(title->text()), title->text());
    }
    return keys;
}

// What is wrong with one window, a line for each offender.
QStringList problemsOf(QWidget* window)
{
    QStringList problems;
    const QString where = describe(window) + ": "_L1;
    const QList<QWidget*> controls = controlsOf(window);
    for (QWidget* control : controls)
        if (accessibleName(control).isEmpty())
            problems << where + describe(control) + " has no accessible name"_L1;

    QList<QWidget*> chain;
    for (QWidget* next = window->nextInFocusChain(); next != window; next = next->nextInFocusChain())
        if (controls.contains(next) && (next->focusPolicy() & Qt::TabFocus))
            chain << next;
    for (qsizetype i = 0; i < chain.size(); ++i)
        for (qsizetype j = i + 1; j < chain.size(); ++j)
            if (!readBefore(QRect(chain[i]->mapTo(window, QPoint()), chain[i]->size()),
                            QRect(chain[j]->mapTo(window, QPoint()), chain[j]->size())))
                problems << where + describe(chain[j]) + " is read before "_L1 + describe(chain[i])
                                + " but tabbed to after it"_L1;

    const QMultiMap<QString, QString> keys = shortcutsOf(window);
    for (const QString& key : keys.uniqueKeys())
        if (keys.count(key) > 1)
            problems << where + key + " is shared by "_L1 + keys.values(key).join(", "_L1);
    return problems;
}

class AccessibilityTest : public SummaryWindowTest {
protected:
    AccessibilityTest() { writeLedgers(); }
    ~AccessibilityTest() override { StartupGlobals::AppStoreVersion = false; }
};

} // namespace

TEST_F(AccessibilityTest, EveryWindowNamesItsControlsTabsInReadingOrderAndHasNoSharedShortcut)
{
    SummaryWindow* summary = shownWindow();
    ListboxView* ledgers = summary->LedgerListView;
    QTest::mouseClick(ledgers->viewport(), Qt::LeftButton, {}, rowCenter(ledgers, 0)); // "Shop" opens
    ASSERT_GT(summary->accountsBox().ListCount(), 0);
    StartupGlobals::AppStoreVersion = true; // the start screen asks no server here
    auto* offer = new newVersionWindow(u"Quillmark 9 is out."_s, Windows::SummaryWindow());
    const QList<QWidget*> windows{
        Windows::SummaryWindow(), Windows::AccountWindow(),      Windows::TransactionWindow(),
        Windows::transferWindow(), Windows::indAccWindow(),      Windows::ledgerWindow(),
        Windows::chartingWindow(), Windows::newBookWindow(),     Windows::PrefsWindow(),
        Windows::AboutWindow(),    Windows::SplashWindow(),      Windows::CustomImportWindow(),
        offer};
    QStringList problems;
    for (QWidget* window : windows) {
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window)) << describe(window).toStdString();
        problems << problemsOf(window);
    }
    EXPECT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
}
