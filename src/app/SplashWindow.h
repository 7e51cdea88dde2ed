#pragma once

#include <QPointer>
#include <QWidget>

class ProgressWheel;
class QLabel;
class QTimer;
class VersionCheckSocket;

// The start screen: asks the update server for its version file as it opens,
// stands for one second whatever the answer, then says it is done and closes. A
// newer version that is offered while it stands is offered at once; a request
// still running when it closes goes with it.
class SplashWindow : public QWidget {
    Q_OBJECT

public:
    SplashWindow();

    QLabel* Canvas1;
    QLabel* AppNameLabel;
    QLabel* StaticText1;
    QLabel* StaticText11;
    ProgressWheel* ProgressWheel1;
    QTimer* Timer1;
    VersionCheckSocket* VersionCheckSocket1;

    void Event_Open();
    void Timer1_Action();

private:
    // The offer made while the screen stood: it stays above the main window.
    QPointer<QWidget> offerWindow;

Q_SIGNALS:
    // The second is over: the main window takes the screen's place.
    void finished();
};
