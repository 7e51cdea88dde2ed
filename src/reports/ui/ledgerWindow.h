#pragma once

#include "books/rowtable/Listbox.h"
#include "reports/LedgerReport.h"

#include <QDialog>

class AutoButton;
class Canvas;
class ListboxView;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class UpDownArrows;

// "Ledger Summary": the open ledger as one report, cut down to a month of every
// year or to one year, and printed. It is built from the accounts and the
// transactions it is given each time a filter changes, and keeps nothing else.
class ledgerWindow : public QDialog {
    Q_OBJECT

public:
    ledgerWindow(const Listbox& accounts, const Listbox& transactions, QWidget* parent);

    int theYear = 0; // the working value of the arrows

    Listbox ledgerboxTable{QStringLiteral("ledgerbox"), ReportCol::Count};
    ListboxView* ledgerbox;
    Canvas* Canvas2;             // over the headings: they can't be pressed
    QLabel* StaticText1;         // "Display:"
    QComboBox* PopupMenu1;       // the month filter
    QLineEdit* TextField1;       // the year
    UpDownArrows* UpDownArrows1;
    QPushButton* PushButton2;    // "Show Year" / "Show All"
    AutoButton* Canvas1;         // prints
    QLabel* StaticText2;         // "No transactions found"
    QPushButton* PushButton1;    // "OK"
    QAction* FilePrint;          // File > Print, Ctrl+P, while the window is in front

    void loadLedger();
    void PopupMenu1_Change();
    void UpDownArrows1_Up();
    void UpDownArrows1_Down();
    void PushButton2_Action();
    void Canvas1_Action();
    void _FilePrint_Action();
    void Event_EnableMenuItems();

private:
    void showNotice(bool nothingFound);
    void stepYear(int step);

    const Listbox& accounts_;
    const Listbox& transactions_;
};
