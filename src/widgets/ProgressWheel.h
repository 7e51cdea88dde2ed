#pragma once

#include <QTimer>
#include <QWidget>

// A small spinning wheel that says "busy" while it is shown; it turns only
// while visible.
class ProgressWheel : public QWidget {
    Q_OBJECT

public:
    explicit ProgressWheel(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QTimer turn;
    int step = 0;
};
