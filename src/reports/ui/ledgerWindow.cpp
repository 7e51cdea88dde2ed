#include "reports/ui/ledgerWindow.h"

#include "books/rowtable/ui/ListboxView.h"
#include "platform/Clock.h"
#include "platform/Numbers.h"
#include "platform/ui/DialogLayout.h"
#include "reports/ListboxPrinter.h"
#include "widgets/AutoButton.h"
#include "widgets/Canvas.h"
#include "widgets/UpDownArrows.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString kShowYear = u"Show Year"_s;
const QString kShowAll = u"Show All"_s;

} // namespace

ledgerWindow::ledgerWindow(const Listbox& accounts, const Listbox& transactions, QWidget* parent)
    : QDialog(parent)
    , accounts_(accounts)
    , transactions_(transactions)
{
    setObjectName(u"ledgerWindow"_s);
    setWindowTitle(u"Ledger Summary"_s);
    setWindowModality(Qt::WindowModal);
    resize(723, 507);

    StaticText1 = named(new QLabel(u"Display:"_s, this), u"StaticText1"_s);
    PopupMenu1 = named(new QComboBox(this), u"PopupMenu1"_s);
    PopupMenu1->addItem(u"All Transactions"_s);
    for (int month = 1; month <= 12; ++month)
        PopupMenu1->addItem(QLocale(QLocale::English).standaloneMonthName(month));
    TextField1 = named(new QLineEdit(Str(Clock::today().year()), this), u"TextField1"_s);
    TextField1->setFixedWidth(60);
    UpDownArrows1 = named(new UpDownArrows(this), u"UpDownArrows1"_s);
    UpDownArrows1->setFixedSize(16, 26);
    PushButton2 = named(new QPushButton(kShowYear, this), u"PushButton2"_s);
    Canvas1 = named(new AutoButton(this), u"Canvas1"_s);
    Canvas1->setFixedSize(40, 40);
    Canvas1->setBackdrop(Picture::named(u"printer"_s));
    Canvas1->setToolTip(u"Print"_s);
    Canvas1->setAccessibleName(u"Print"_s);
    StaticText1->setBuddy(PopupMenu1);
    TextField1->setAccessibleName(u"Year"_s);
    UpDownArrows1->upButton()->setAccessibleName(u"Next year"_s);
    UpDownArrows1->downButton()->setAccessibleName(u"Previous year"_s);

    setUpLedgerReport(ledgerboxTable);
    ledgerbox = named(new ListboxView(ledgerboxTable, this), u"ledgerbox"_s);
    ledgerbox->applyColumnSettings();
    ledgerbox->setAccessibleName(u"Ledger"_s);
    ledgerbox->setDefaultRowHeight(20);
    ledgerbox->setCellLook([this](int row, int, bool) {
        CellLook look;
        look.background = ledgerBackground(row);
        look.text = ledgerTextColour(ledgerboxTable, row);
        return look;
    });
    // The report keeps its order: a press on a heading sorts nothing.
    Canvas2 = named(new Canvas(ledgerbox->horizontalHeader()), u"Canvas2"_s);
    Canvas2->coverParent();
    StaticText2 = named(new QLabel(u"No transactions found"_s, this), u"StaticText2"_s);
    StaticText2->hide();
    PushButton1 = named(new QPushButton(u"OK"_s, this), u"PushButton1"_s);
    PushButton1->setDefault(true);

    auto* filters = new QHBoxLayout;
    filters->addWidget(StaticText1);
    filters->addWidget(PopupMenu1);
    filters->addSpacing(16);
    filters->addWidget(TextField1);
    filters->addWidget(UpDownArrows1);
    filters->addWidget(PushButton2);
    filters->addStretch();
    filters->addWidget(Canvas1);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(20, 10, 19, 12);
    layout->addLayout(filters, 0, 0);
    layout->addWidget(ledgerbox, 1, 0);
    layout->addWidget(StaticText2, 1, 0, Qt::AlignCenter);
    layout->addWidget(PushButton1, 2, 0, Qt::AlignRight);
    layout->setRowStretch(1, 1);

    FilePrint = named(new QAction(u"Print..."_s, this), u"FilePrint"_s);
    FilePrint->setShortcut(QKeySequence(u"Ctrl+P"_s));
    addAction(FilePrint);

    connect(PopupMenu1, &QComboBox::currentIndexChanged, this, &ledgerWindow::PopupMenu1_Change);
    connect(UpDownArrows1, &UpDownArrows::Up, this, &ledgerWindow::UpDownArrows1_Up);
    connect(UpDownArrows1, &UpDownArrows::Down, this, &ledgerWindow::UpDownArrows1_Down);
    connect(PushButton2, &QPushButton::clicked, this, &ledgerWindow::PushButton2_Action);
    connect(Canvas1, &AutoButton::Action, this, &ledgerWindow::Canvas1_Action);
    connect(FilePrint, &QAction::triggered, this, &ledgerWindow::_FilePrint_Action);
    connect(PushButton1, &QPushButton::clicked, this, &QDialog::close);

    Canvas1->Event_Open();
    Event_EnableMenuItems();
    loadLedger();
}


void ledgerWindow::loadLedger()
{
    showNotice(!::loadLedger(ledgerboxTable, accounts_, transactions_, PopupMenu1->currentIndex()));
}

void ledgerWindow::PopupMenu1_Change()
{
    loadLedger();
}

void ledgerWindow::UpDownArrows1_Up()
{
    stepYear(1);
}

void ledgerWindow::UpDownArrows1_Down()
{
    stepYear(-1);
}

void ledgerWindow::stepYear(int step)
{
    // From the text as it stands; text that isn't a number starts from 0.
    theYear = truncated(std::trunc(Val(TextField1->text())) + step);
    TextField1->setText(Str(theYear));
}

void ledgerWindow::PushButton2_Action()
{
    if (PushButton2->text() == kShowAll) {
        PushButton2->setText(kShowYear);
        loadLedger();
        TextField1->setEnabled(true);
        UpDownArrows1->setEnabled(true);
        return;
    }
    const bool found = loadLedgerYear(ledgerboxTable, accounts_, transactions_, TextField1->text());
    showNotice(!found);
    // With nothing found another year can be tried.
    if (!found)
        return;
    PushButton2->setText(kShowAll);
    TextField1->setEnabled(false);
    UpDownArrows1->setEnabled(false);
}

void ledgerWindow::Canvas1_Action()
{
    ListboxPrinter().print(ledgerboxTable, true);
}

void ledgerWindow::_FilePrint_Action()
{
    Canvas1_Action();
}

void ledgerWindow::Event_EnableMenuItems()
{
    FilePrint->setEnabled(true);
}

void ledgerWindow::showNotice(bool nothingFound)
{
    StaticText2->setVisible(nothingFound);
    if (nothingFound)
        StaticText2->raise();
}
