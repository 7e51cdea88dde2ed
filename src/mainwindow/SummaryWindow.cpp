#include "mainwindow/SummaryWindow.h"

#include "books/AppFolders.h"
#include "books/WindowMemory.h"
#include "books/rowtable/ui/ListboxView.h"
#include "books/ui/newBookWindow.h"
#include "engine/RowLayouts.h"
#include "ledger/AccountOperations.h"
#include "mainwindow/MenuBar1.h"
#include "mainwindow/SummaryColours.h"
#include "mainwindow/Toolbar1.h"
#include "platform/BlockingServices.h"
#include "platform/FileProblems.h"
#include "widgets/AutoButton.h"
#include "widgets/Canvas.h"
#include "widgets/WindowSplitter.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Height of the accounts region above the splitter when the window opens.
constexpr int kAccountsAreaHeight = 180;

AutoButton* iconButton(QWidget* parent, const QString& name, QSize size, const QString& picture,
                       const QString& tip = {})
{
    auto* button = new AutoButton(parent);
    button->setObjectName(name);
    button->setFixedSize(size);
    if (!picture.isEmpty())
        button->setBackdrop(Picture::named(picture));
    button->setToolTip(tip);
    return button;
}

QLabel* label(QWidget* parent, const QString& name, const QString& text)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    return label;
}

} // namespace

SummaryWindow::SummaryWindow(SummaryDialogs dialogs, QWidget* parent)
    : smartWindow(parent)
    , dialogs_(std::move(dialogs))
    , books_(AppFolders::existingBooks(AppFolders::applicationData()))
{
    setObjectName(u"SummaryWindow"_s);
    setWindowTitle(u"Quillmark"_s);
    resize(990, 712);
    setMinimumSize(710, 500);

    Toolbar11 = new Toolbar1(this);
    Toolbar11->setObjectName(u"Toolbar11"_s);
    addToolBar(Qt::TopToolBarArea, Toolbar11);

    auto* central = new QWidget(this);
    auto* outer = new QVBoxLayout(central);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    auto* columns = new QHBoxLayout;
    columns->setContentsMargins(8, 6, 8, 6);
    columns->addWidget(buildLedgerColumn(central));

    auto* right = new QVBoxLayout;
    WindowSplitter1 = new WindowSplitter(Qt::Vertical, central);
    WindowSplitter1->setObjectName(u"WindowSplitter1"_s);
    WindowSplitter1->setMinBeforeArea(150);
    WindowSplitter1->setMinAfterArea(150);
    // The two regions join the splitter's areas as it opens.
    buildAccountsRegion(central);
    buildTransactionsRegion(central);
    right->addWidget(WindowSplitter1, 1);
    right->addWidget(buildBottomLine(central));
    columns->addLayout(right, 1);
    outer->addLayout(columns, 1);

    Canvas10 = new Canvas(central);
    Canvas10->setObjectName(u"Canvas10"_s);
    Canvas10->setFixedHeight(29);
    Canvas10->setBackdrop(Picture::named(u"bottomLeopard2"_s));
    Canvas10->setStretchBackdrop(true);
    outer->addWidget(Canvas10);

    // Only there to learn the system's decimal mark; never seen.
    separatorFld = new QLineEdit(central);
    separatorFld->setObjectName(u"separatorFld"_s);
    separatorFld->setGeometry(-1000, -1000, 100, 22);
    // Hidden, so that neither Tab nor a screen reader finds it.
    separatorFld->hide();
    setCentralWidget(central);

    buildMenuBar();
    connect(PushButton3, &QPushButton::clicked, this, &SummaryWindow::PushButton3_Action);
    connect(PushButton4, &QPushButton::clicked, this, &SummaryWindow::PushButton4_Action);
    connect(reconcilecheckbox, &QCheckBox::toggled, &books_, &SummaryBooks::reconcilecheckbox_Action);
    connect(WindowSplitter1, &WindowSplitter::SplitterMoved, this, &SummaryWindow::WindowSplitter1_SplitterMoved);
    connect(&books_, &SummaryBooks::totalsChanged, this, &SummaryWindow::showTotals);
    connectCommands();

    // The controls open before the window.
    Toolbar11->Open();
    WindowSplitter1_Open();
    for (AutoButton* button : {addtransbtn, deltransbtn, editTransBtn, Canvas7, endSearch, Canvas71, endSearch1})
        button->Event_Open();
    Event_Open();
}


QWidget* SummaryWindow::buildLedgerColumn(QWidget* parent)
{
    auto* column = new QWidget(parent);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    LedgerListView = new ListboxView(books_.LedgerList, column);
    LedgerListView->setDefaultRowHeight(kLedgerListRowHeight);
    LedgerListView->setIconSize(QSize(32, 32));
    LedgerListView->setCellLook([](int, int, bool selected) { return SummaryColours::ledgerCell(selected); });
    LedgerListView->setAccessibleName(u"Ledgers"_s);
    layout->addWidget(LedgerListView, 1);

    auto* buttons = new QHBoxLayout;
    PushButton3 = new QPushButton(u"+"_s, column);
    PushButton3->setObjectName(u"PushButton3"_s);
    PushButton4 = new QPushButton(u"-"_s, column);
    PushButton4->setObjectName(u"PushButton4"_s);
    // "+" and "-" say little when read aloud.
    PushButton3->setAccessibleName(u"New ledger"_s);
    PushButton4->setAccessibleName(u"Delete ledger"_s);
    for (QPushButton* button : {PushButton3, PushButton4}) {
        button->setFixedWidth(32);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
    column->setFixedWidth(200);
    return column;
}

void SummaryWindow::buildAccountsRegion(QWidget* parent)
{
    GroupBox1 = new QGroupBox(parent);
    GroupBox1->setObjectName(u"GroupBox1"_s);
    auto* layout = new QVBoxLayout(GroupBox1);
    layout->setContentsMargins(6, 4, 6, 6);
    StaticText1 = label(GroupBox1, u"StaticText1"_s, u"Accounts"_s);
    StaticText1->setAlignment(Qt::AlignCenter);
    QFont headingFont = StaticText1->font();
    headingFont.setBold(true);
    StaticText1->setFont(headingFont);
    layout->addWidget(StaticText1);

    accountsBoxView = new ListboxView(books_.accountsBox, GroupBox1);
    accountsBoxView->setDefaultRowHeight(kAccountsRowHeight);
    accountsBoxView->setRowsReorderable(true);
    accountsBoxView->DragReorderRows = [this](int newPosition, int parentRow) {
        return accountsBox_DragReorderRows(newPosition, parentRow);
    };
    accountsBoxView->setCellLook([this](int row, int, bool selected) {
        return SummaryColours::accountsCell(books_.accountsBox, row, selected);
    });
    accountsBoxView->setAccessibleName(StaticText1->text());
    layout->addWidget(accountsBoxView, 1);

    // The headings can't be pressed: the accounts keep the order the user gave them.
    QHeaderView* headings = accountsBoxView->horizontalHeader();
    Canvas5 = new Canvas(headings);
    Canvas5->setObjectName(u"Canvas5"_s);
    Canvas5->coverParent();
}

void SummaryWindow::buildTransactionsRegion(QWidget* parent)
{
    GroupBox2 = new QGroupBox(parent);
    GroupBox2->setObjectName(u"GroupBox2"_s);
    auto* layout = new QVBoxLayout(GroupBox2);
    layout->setContentsMargins(6, 4, 6, 6);

    // One line: the buttons at the left, the heading centred, the search at the right.
    auto* top = new QGridLayout;
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(2);
    addtransbtn = iconButton(GroupBox2, u"addtransbtn"_s, QSize(39, 36), u"addpng_32x32"_s,
                             u"Add transaction (Command +2)"_s);
    deltransbtn = iconButton(GroupBox2, u"deltransbtn"_s, QSize(36, 36), u"deletepng_32x32"_s,
                             u"Delete selected transaction"_s);
    editTransBtn = iconButton(GroupBox2, u"editTransBtn"_s, QSize(36, 36), u"editpng_32x32"_s,
                              u"Edit selected transaction"_s);
    addtransbtn->setAccessibleName(u"Add transaction"_s);
    deltransbtn->setAccessibleName(deltransbtn->toolTip());
    editTransBtn->setAccessibleName(editTransBtn->toolTip());
    for (AutoButton* button : {addtransbtn, deltransbtn, editTransBtn})
        buttons->addWidget(button);
    top->addLayout(buttons, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    StaticText2 = label(GroupBox2, u"StaticText2"_s, u"Transactions"_s);
    QFont headingFont = StaticText2->font();
    headingFont.setBold(true);
    StaticText2->setFont(headingFont);
    top->addWidget(StaticText2, 0, 0, Qt::AlignCenter);
    top->addWidget(buildSearchField(GroupBox2), 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    layout->addLayout(top);

    transBoxView = new ListboxView(books_.transBox, GroupBox2);
    transBoxView->setDefaultRowHeight(kTransRowHeight);
    transBoxView->setSortable(true);
    transBoxView->setRowsReorderable(true);
    transBoxView->setCellLook([](int row, int, bool) { return SummaryColours::transCell(row); });
    transBoxView->setAccessibleName(StaticText2->text());
    layout->addWidget(transBoxView, 1);
}

QWidget* SummaryWindow::buildSearchField(QWidget* parent)
{
    // Two search fields lie on the same spot; the frame Canvas13 covers the
    // first, and the user types in the one on the frame.
    auto* spot = new QWidget(parent);
    spot->setFixedSize(180, 24);
    auto field = [](QWidget* owner, const QString& name) {
        auto* edit = new QLineEdit(owner);
        edit->setObjectName(name);
        edit->setFrame(false);
        edit->setGeometry(24, 3, 132, 18);
        edit->setAttribute(Qt::WA_MacShowFocusRect, false);
        return edit;
    };
    EditField1 = field(spot, u"EditField1"_s);
    Canvas7 = iconButton(spot, u"Canvas7"_s, QSize(16, 15), {});
    Canvas7->move(6, 5);

    Canvas13 = new Canvas(spot);
    Canvas13->setObjectName(u"Canvas13"_s);
    Canvas13->setGeometry(0, 0, 180, 24);
    Canvas13->setBackdrop(Picture::named(u"searchMe5"_s));
    EditField11 = field(Canvas13, u"EditField11"_s);
    EditField11->setStyleSheet(u"background: transparent"_s);
    EditField11->setPlaceholderText(u"Search"_s);
    Canvas71 = iconButton(Canvas13, u"Canvas71"_s, QSize(16, 15), {});
    Canvas71->move(6, 5);
    endSearch1 = iconButton(Canvas13, u"endSearch1"_s, QSize(17, 15), u"stopSearch"_s);
    endSearch1->move(158, 5);
    endSearch1->hide();

    endSearch = iconButton(spot, u"endSearch"_s, QSize(17, 15), u"stopSearch"_s);
    endSearch->move(158, 5);
    endSearch->hide();
    endSearch->raise();
    for (QWidget* search : {static_cast<QWidget*>(EditField1), static_cast<QWidget*>(EditField11),
                            static_cast<QWidget*>(Canvas7), static_cast<QWidget*>(Canvas71)})
        search->setAccessibleName(u"Search"_s);
    endSearch->setAccessibleName(u"End search"_s);
    endSearch1->setAccessibleName(u"End search"_s);
    return spot;
}

QWidget* SummaryWindow::buildBottomLine(QWidget* parent)
{
    auto* line = new QWidget(parent);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 2, 0, 0);
    reconcilecheckbox = new QCheckBox(u"Reconcile Transactions"_s, line);
    reconcilecheckbox->setObjectName(u"reconcilecheckbox"_s);
    layout->addWidget(reconcilecheckbox);
    layout->addStretch();
    // The totals of the last calculation are kept here; nothing shows them.
    StaticText4 = label(line, u"StaticText4"_s, u"Total Tax:"_s);
    taxText = label(line, u"taxText"_s, u"00.00"_s);
    StaticText3 = label(line, u"StaticText3"_s, u"Total Transactions:"_s);
    balText = label(line, u"balText"_s, u"00.00"_s);
    for (QLabel* hidden : {StaticText4, taxText, StaticText3, balText}) {
        layout->addWidget(hidden);
        hidden->hide();
    }
    return line;
}

void SummaryWindow::WindowSplitter1_Open()
{
    WindowSplitter1->AddControl(accountsBoxView, true);
    WindowSplitter1->AddControl(GroupBox1, true);
    WindowSplitter1->AddControl(GroupBox2, false);
}

void SummaryWindow::Open()
{
    separatorFld->setText(SummaryBooks::separatorProbe());
    books_.separatorType = SummaryBooks::separatorTypeOf(separatorFld->text());
}

void SummaryWindow::PushButton3_Action()
{
    dialogs_.newBookWindow()->show();
}

void SummaryWindow::PushButton4_Action()
{
    books_.shelf.deleteLedger();
}

void SummaryWindow::showEvent(QShowEvent* event)
{
    smartWindow::showEvent(event);
    // The bar stands at its design place at every start; the regions have their
    // sizes only once the window is laid out for showing.
    if (!splitterPlaced_) {
        splitterPlaced_ = true;
        const int room = WindowSplitter1->height() - WindowSplitter1->handleWidth();
        WindowSplitter1->setSizes({kAccountsAreaHeight, room - kAccountsAreaHeight});
    }
}

bool SummaryWindow::accountsBox_DragReorderRows(int newPosition, int parentRow)
{
    return AccountOperations(books_).accountsBox_DragReorderRows(newPosition, parentRow);
}

void SummaryWindow::showTotals()
{
    taxText->setText(books_.taxText);
    balText->setText(books_.balText);
}

void SummaryWindow::saveWindowData()
{
    writeWindowData(books_.files.manager.ProgramDataFolder, geometry());
}

void SummaryWindow::Close()
{
    books_.storeBoth();
    saveWindowData();
}

void SummaryWindow::closeEvent(QCloseEvent* event)
{
    {
        // What couldn't be stored on the way out is told once, before the end.
        const FileProblemGathering oneMessage;
        smartWindow::closeEvent(event);
    }
    Quit();
}
