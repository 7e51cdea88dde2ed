#pragma once

#include <QWidget>

class QToolButton;

// A pair of small arrow buttons, one above the other, for stepping a value in
// a field beside them. Holding an arrow repeats its step.
class UpDownArrows : public QWidget {
    Q_OBJECT

public:
    explicit UpDownArrows(QWidget* parent = nullptr);

    QToolButton* upButton() const { return up_; }
    QToolButton* downButton() const { return down_; }

Q_SIGNALS:
    void Up();
    void Down();

private:
    QToolButton* up_;
    QToolButton* down_;
};
