#pragma once

#include "widgets/Canvas.h"

#include <QLabel>
#include <QPointer>

// A picture button drawn on a canvas: it shows Backdrop and nothing else, and
// tracks the mouse itself. Which picture Backdrop is (compared by identity with
// the stored icons) is the button's whole state: normal, pressed or disabled.
// There is no pressed flag, so with equal icons (all null, say) the states
// coincide, and the mouse rules below rely on that.
class AutoButton : public Canvas {
    Q_OBJECT

public:
    explicit AutoButton(QWidget* parent = nullptr);

    PictureRef enabledIcon;
    PictureRef pressedIcon;
    PictureRef disabledIcon;
    bool toggleOn = false;
    // Chooses a stock picture at open when no Backdrop was given: 1 add,
    // 2 remove, 3 action menu, 4 help, 5 delete; any other value none.
    int ButtonType = 0;
    // A toggle button keeps its pressed look between clicks.
    bool Toggle = false;
    // Optional label that goes bold while the button is pressed.
    QPointer<QLabel> myText;

    // Hooks for subclasses that derive the other looks from the normal picture;
    // this button derives none, so it looks empty while pressed or disabled.
    virtual PictureRef makeDisabledIcon(PictureRef picture);
    virtual PictureRef makePressedIcon(PictureRef picture);
    virtual void paintIcon();
    virtual void enableMe();
    virtual void disableMe();

    // The owning window calls this once, after it has set Backdrop and the
    // enabled state: the Backdrop of that moment becomes the normal picture for
    // good, and a Backdrop set later is replaced at the next paintIcon().
    void Event_Open();

Q_SIGNALS:
    void open();
    // A press ended inside the button.
    void Action();
    void MouseDown();
    void MouseUp();

protected:
    // Whether the button takes the mouse for the rest of this press.
    virtual bool Event_MouseDown(int x, int y);
    virtual void Event_MouseDrag(int x, int y);
    virtual void Event_MouseUp(int x, int y);
    // Keys pass on to the window.
    virtual bool Event_KeyDown(const QString& key);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool inside(int x, int y) const;
    bool hasLeft(int x, int y) const;
    void setTextBold(bool bold);

    bool dragOutside = false;
    // Qt sends the moves and the release of a press to the widget that took the
    // press, even when Event_MouseDown declined it; those must be dropped.
    bool tracking_ = false;
};
