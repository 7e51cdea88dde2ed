#pragma once

#include <QList>
#include <QSplitter>

class QVBoxLayout;

// A bar of 7 pixels that the user drags to share a window's room between the
// area before it and the area after it (above and below when vertical). The
// controls registered with AddControl are moved and resized with the bar;
// neither area can be dragged below its minimum. It always has exactly these
// two areas: controls join one through AddControl, never by addWidget.
class WindowSplitter : public QSplitter {
    Q_OBJECT

public:
    explicit WindowSplitter(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~WindowSplitter() override;

    // Smallest size in pixels of each area along the splitter's orientation;
    // 0 leaves it to what the area's controls need.
    int MinBeforeArea() const { return minBefore_; }
    void setMinBeforeArea(int pixels);
    int MinAfterArea() const { return minAfter_; }
    void setMinAfterArea(int pixels);

    // Where the bar stands: its offset from the splitter's top (left when
    // horizontal), which is the size of the area before it.
    int Position() const;

    QWidget* beforeArea() const { return before_; }
    QWidget* afterArea() const { return after_; }

    // A control lying loose in the window (or in the other area) is taken into
    // the area's layout. A control nested in a container of its own, such as a
    // grid in its group box, stays where it is: its container's layout sizes it,
    // and the container is what gets registered into the area. Registering a
    // control again replaces its earlier registration.
    void AddControl(QWidget* ctrl, bool beforeSplitter);
    // The control keeps its place but no longer follows the bar.
    void RemoveControl(QWidget* ctrl);

    // Iteration over the registered controls in the order of registration.
    void MoveFirst() { next_ = 0; }
    bool HasNext() const { return next_ < items_.size(); }
    QWidget* GetNext();
    QWidget* PeekNext() const;
    // Whether the control PeekNext() gives is registered before the bar.
    bool NextIsBefore() const;

Q_SIGNALS:
    // The user dragged the bar.
    void SplitterMoved();

private:
    struct Item {
        QWidget* ctrl;
        bool before;
    };

    QVBoxLayout* layoutOf(QWidget* area) const;
    void applyMinimum(QWidget* area, int pixels);
    void forget(QObject* ctrl);

    QWidget* before_;
    QWidget* after_;
    int minBefore_ = 0;
    int minAfter_ = 0;
    QList<Item> items_;
    qsizetype next_ = 0;
};
