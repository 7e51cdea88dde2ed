#pragma once

#include <QWidget>

class QLabel;

// The application's icon, name, version line and maker.
class AboutWindow : public QWidget {
    Q_OBJECT

public:
    AboutWindow();

    QLabel* Canvas1;
    QLabel* StaticText1;
    QLabel* StaticText2;
    QLabel* StaticText3;
};
