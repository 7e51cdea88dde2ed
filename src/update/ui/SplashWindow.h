#pragma once

#include <QWidget>

class QLabel;
class QTimer;

// The start screen: stands for one second, then gives way to the main window.
class SplashWindow : public QWidget {
    Q_OBJECT

public:
    SplashWindow();

    QLabel* Canvas1;
    QLabel* AppNameLabel;
    QLabel* StaticText1;
    QTimer* Timer1;

    void Timer1_Action();
};
