#pragma once

#include "platform/Picture.h"

#include <QWidget>

// A plain drawing area that shows its backdrop picture and takes the clicks
// made on it, so nothing beneath it sees them.
class Canvas : public QWidget {
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent = nullptr);

    const PictureRef& Backdrop() const { return backdrop_; }
    void setBackdrop(PictureRef picture);
    // A strip stretches its backdrop over its whole size; otherwise the picture
    // stands at its natural size in the top left corner.
    void setStretchBackdrop(bool stretch);
    // The canvas lies over the whole of its parent and follows its size.
    void coverParent();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    PictureRef backdrop_;
    bool stretch_ = false;
};
