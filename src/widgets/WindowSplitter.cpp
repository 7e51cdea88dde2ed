#include "widgets/WindowSplitter.h"

#include <QVBoxLayout>

#include <algorithm>

WindowSplitter::WindowSplitter(Qt::Orientation orientation, QWidget* parent)
    : QSplitter(orientation, parent)
    , before_(new QWidget)
    , after_(new QWidget)
{
    setHandleWidth(7);
    // Collapsing an area would undercut its minimum.
    setChildrenCollapsible(false);
    for (QWidget* area : {before_, after_}) {
        auto* layout = new QVBoxLayout(area);
        layout->setContentsMargins(0, 0, 0, 0);
        addWidget(area);
    }
    connect(this, &QSplitter::splitterMoved, this, &WindowSplitter::SplitterMoved);
}

// The areas and the controls in them are destroyed only after this, by
// ~QWidget; their destroyed signals must not reach the registrations then.
WindowSplitter::~WindowSplitter()
{
    for (const Item& item : std::as_const(items_))
        disconnect(item.ctrl, &QObject::destroyed, this, &WindowSplitter::forget);
}

void WindowSplitter::setMinBeforeArea(int pixels)
{
    minBefore_ = pixels;
    applyMinimum(before_, pixels);
}

void WindowSplitter::setMinAfterArea(int pixels)
{
    minAfter_ = pixels;
    applyMinimum(after_, pixels);
}

// QSplitter keeps each widget at its minimum size while the bar is dragged.
void WindowSplitter::applyMinimum(QWidget* area, int pixels)
{
    if (orientation() == Qt::Vertical)
        area->setMinimumHeight(pixels);
    else
        area->setMinimumWidth(pixels);
}

int WindowSplitter::Position() const
{
    const QSplitterHandle* bar = handle(1);
    return orientation() == Qt::Vertical ? bar->y() : bar->x();
}

QVBoxLayout* WindowSplitter::layoutOf(QWidget* area) const
{
    return static_cast<QVBoxLayout*>(area->layout());
}

void WindowSplitter::AddControl(QWidget* ctrl, bool beforeSplitter)
{
    if (!ctrl || ctrl->isAncestorOf(this))
        return;
    RemoveControl(ctrl);
    items_.append({ctrl, beforeSplitter});
    connect(ctrl, &QObject::destroyed, this, &WindowSplitter::forget);

    QWidget* target = beforeSplitter ? before_ : after_;
    QWidget* other = beforeSplitter ? after_ : before_;
    QWidget* holder = ctrl->parentWidget();
    // isAncestorOf(this) holds for the splitter itself and the containers it lies
    // in: a control there lies beside the bar, not inside a container of its own.
    const bool loose = !holder || holder == target || holder == other || holder->isAncestorOf(this);
    if (!loose)
        return;
    layoutOf(other)->removeWidget(ctrl);
    // addWidget also takes the control out of the window's layout it was in.
    if (layoutOf(target)->indexOf(ctrl) < 0)
        layoutOf(target)->addWidget(ctrl);
}

void WindowSplitter::RemoveControl(QWidget* ctrl)
{
    const auto at = std::find_if(items_.begin(), items_.end(), [ctrl](const Item& item) { return item.ctrl == ctrl; });
    if (at == items_.end())
        return;
    disconnect(ctrl, &QObject::destroyed, this, &WindowSplitter::forget);
    forget(ctrl);
    for (QWidget* area : {before_, after_})
        layoutOf(area)->removeWidget(ctrl);
}

// Drops a registration without touching the control, which may be half destroyed.
void WindowSplitter::forget(QObject* ctrl)
{
    for (qsizetype i = items_.size() - 1; i >= 0; --i) {
        if (static_cast<QObject*>(items_[i].ctrl) != ctrl)
            continue;
        items_.removeAt(i);
        if (i < next_)
            --next_;
    }
}

QWidget* WindowSplitter::GetNext()
{
    QWidget* ctrl = PeekNext();
    if (ctrl)
        ++next_;
    return ctrl;
}

QWidget* WindowSplitter::PeekNext() const
{
    return HasNext() ? items_[next_].ctrl : nullptr;
}

bool WindowSplitter::NextIsBefore() const
{
    return HasNext() && items_[next_].before;
}
