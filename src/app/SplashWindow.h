#pragma once

#include <QWidget>

class QLabel;
class QTimer;

// The start screen: stands for one second, then says it is done and closes.
class SplashWindow : public QWidget {
    Q_OBJECT

public:
    SplashWindow();

    QLabel* Canvas1;
    QLabel* AppNameLabel;
    QLabel* StaticText1;
    QTimer* Timer1;

    void Timer1_Action();

Q_SIGNALS:
    // The second is over: the main window takes the screen's place.
    void finished();
};
