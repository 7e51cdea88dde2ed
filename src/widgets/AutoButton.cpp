#include "widgets/AutoButton.h"

#include <QKeyEvent>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

PictureRef stockPicture(int buttonType)
{
    switch (buttonType) {
    case 1: return Picture::named(u"AddButton"_s);
    case 2: return Picture::named(u"RemoveButton"_s);
    case 3: return Picture::named(u"actionMenuButton"_s);
    case 4: return Picture::named(u"HelpButton"_s);
    case 5: return Picture::named(u"DeleteButton"_s);
    default: return nullptr;
    }
}

} // namespace

AutoButton::AutoButton(QWidget* parent)
    : Canvas(parent)
{
}

PictureRef AutoButton::makeDisabledIcon(PictureRef /*picture*/)
{
    return nullptr;
}

PictureRef AutoButton::makePressedIcon(PictureRef /*picture*/)
{
    return nullptr;
}

void AutoButton::paintIcon()
{
    // A toggle button that is on keeps whatever it shows.
    if (Toggle && toggleOn)
        return;
    setBackdrop(isEnabled() ? enabledIcon : disabledIcon);
}

void AutoButton::enableMe()
{
    setBackdrop(enabledIcon);
    setEnabled(true);
    if (myText)
        myText->setEnabled(true);
}

void AutoButton::disableMe()
{
    setBackdrop(disabledIcon);
    setEnabled(false);
    if (myText)
        myText->setEnabled(false);
}

void AutoButton::Event_Open()
{
    if (!Backdrop())
        setBackdrop(stockPicture(ButtonType));
    if (Backdrop()) {
        enabledIcon = Backdrop();
        disabledIcon = makeDisabledIcon(Backdrop());
        pressedIcon = makePressedIcon(Backdrop());
        if (!isEnabled())
            setBackdrop(disabledIcon);
    }
    Q_EMIT open();
}

bool AutoButton::Event_MouseDown(int /*x*/, int /*y*/)
{
    if (Toggle)
        toggleOn = !toggleOn;
    if (!pressedIcon)
        pressedIcon = makePressedIcon(enabledIcon);
    if (Backdrop() == enabledIcon) {
        setTextBold(true);
        setBackdrop(pressedIcon);
        Q_EMIT MouseDown();
        return true;
    }
    if (Toggle) {
        // The press that switches a toggle button off is over at once.
        setTextBold(false);
        setBackdrop(enabledIcon);
        Q_EMIT MouseDown();
        Q_EMIT MouseUp();
    }
    return false;
}

void AutoButton::Event_MouseDrag(int x, int y)
{
    if (!pressedIcon)
        pressedIcon = makePressedIcon(enabledIcon);
    if (Backdrop() == pressedIcon && hasLeft(x, y)) {
        setTextBold(false);
        setBackdrop(enabledIcon);
        dragOutside = true;
        toggleOn = false;
    }
    if (Backdrop() == enabledIcon && inside(x, y)) {
        setTextBold(true);
        setBackdrop(pressedIcon);
        dragOutside = false;
        toggleOn = true;
    }
}

void AutoButton::Event_MouseUp(int x, int y)
{
    if (inside(x, y)) {
        if (isEnabled() && !Toggle) {
            setBackdrop(enabledIcon);
            setTextBold(false);
        }
        Q_EMIT Action();
    }
    // A press that was dragged away was given up, so its end is not reported.
    if (dragOutside)
        dragOutside = false;
    else
        Q_EMIT MouseUp();
    paintIcon();
}

bool AutoButton::Event_KeyDown(const QString& /*key*/)
{
    return false;
}

bool AutoButton::inside(int x, int y) const
{
    return x > 0 && x < width() && y > 0 && y < height();
}

// Leaving is tested more loosely than being inside: the edge itself keeps the press.
bool AutoButton::hasLeft(int x, int y) const
{
    return x < 0 || x > width() || y < 0 || y > height();
}

void AutoButton::setTextBold(bool bold)
{
    if (!myText)
        return;
    QFont font = myText->font();
    font.setBold(bold);
    myText->setFont(font);
    if (!bold)
        myText->update();
}

void AutoButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPoint at = event->position().toPoint();
    tracking_ = Event_MouseDown(at.x(), at.y());
}

void AutoButton::mouseMoveEvent(QMouseEvent* event)
{
    if (!tracking_)
        return;
    const QPoint at = event->position().toPoint();
    Event_MouseDrag(at.x(), at.y());
}

void AutoButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !tracking_)
        return;
    tracking_ = false;
    const QPoint at = event->position().toPoint();
    Event_MouseUp(at.x(), at.y());
}

void AutoButton::keyPressEvent(QKeyEvent* event)
{
    if (!Event_KeyDown(event->text()))
        event->ignore();
}
