#include "widgets/Canvas.h"

#include <QMouseEvent>
#include <QPainter>

Canvas::Canvas(QWidget* parent)
    : QWidget(parent)
{
}

void Canvas::setBackdrop(PictureRef picture)
{
    if (picture == backdrop_)
        return;
    backdrop_ = std::move(picture);
    update();
}

void Canvas::setStretchBackdrop(bool stretch)
{
    stretch_ = stretch;
    update();
}

void Canvas::coverParent()
{
    if (QWidget* parent = parentWidget()) {
        setGeometry(parent->rect());
        parent->installEventFilter(this);
    }
}

bool Canvas::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void Canvas::paintEvent(QPaintEvent*)
{
    if (!backdrop_)
        return;
    QPainter painter(this);
    if (stretch_)
        painter.drawImage(rect(), backdrop_->image());
    else
        painter.drawImage(0, 0, backdrop_->image());
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
}
