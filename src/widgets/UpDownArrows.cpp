#include "widgets/UpDownArrows.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace {

QToolButton* arrow(Qt::ArrowType direction, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setArrowType(direction);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    return button;
}

} // namespace

UpDownArrows::UpDownArrows(QWidget* parent)
    : QWidget(parent)
    , up_(arrow(Qt::UpArrow, this))
    , down_(arrow(Qt::DownArrow, this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(up_);
    layout->addWidget(down_);
    connect(up_, &QToolButton::clicked, this, &UpDownArrows::Up);
    connect(down_, &QToolButton::clicked, this, &UpDownArrows::Down);
}
