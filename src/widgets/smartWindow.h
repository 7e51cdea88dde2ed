#pragma once

#include <QMainWindow>

// A window that takes back, within one run, the place it had when a window of
// the same title last closed. A subclass calls Event_Open() last in its
// constructor, once its title is set; its own Open and Close steps run after
// the memory's.
class smartWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit smartWindow(QWidget* parent = nullptr);

    void getMySpecs();
    void saveMySpecs();

protected:
    void Event_Open();
    void Event_Close();
    virtual void Open() {}
    virtual void Close() {}

    void closeEvent(QCloseEvent* event) override;
};
