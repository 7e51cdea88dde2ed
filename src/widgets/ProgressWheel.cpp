#include "widgets/ProgressWheel.h"

#include <QPainter>

namespace {
constexpr int spokes = 8;
}

ProgressWheel::ProgressWheel(QWidget* parent)
    : QWidget(parent)
{
    setFixedSize(16, 16);
    turn.setInterval(100);
    connect(&turn, &QTimer::timeout, this, [this] {
        step = (step + 1) % spokes;
        update();
    });
}

void ProgressWheel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const qreal radius = std::min(width(), height()) / 2.0;
    QColor colour = palette().color(QPalette::WindowText);
    for (int spoke = 0; spoke < spokes; ++spoke) {
        // The spoke at the current step is darkest; the ones behind it fade.
        colour.setAlphaF(1.0 - qreal((step - spoke + spokes) % spokes) / spokes);
        painter.setPen(QPen(colour, radius / 4, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -radius * 0.45), QPointF(0, -radius * 0.85));
        painter.rotate(360.0 / spokes);
    }
}

void ProgressWheel::showEvent(QShowEvent*)
{
    turn.start();
}

void ProgressWheel::hideEvent(QHideEvent*)
{
    turn.stop();
}
