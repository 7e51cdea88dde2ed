#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

// The offer of a newer version: "Download Now" hands the download's address to
// the browser, "Download Later" closes. Nothing is downloaded here.
class newVersionWindow : public QDialog {
    Q_OBJECT

public:
    // offer: the sentence to show, as VersionCheck composed it.
    explicit newVersionWindow(const QString& offer, QWidget* parent = nullptr);

    QLabel* Canvas1;
    QLabel* StaticText1;
    QPushButton* PushButton1;
    QPushButton* PushButton2;

    void PushButton1_Action();
    void PushButton2_Action();
};
