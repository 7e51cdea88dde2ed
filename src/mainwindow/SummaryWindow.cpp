#include "mainwindow/SummaryWindow.h"

#include "books/AppFolders.h"
#include "books/rowtable/ui/ListboxView.h"
#include "books/ui/App.h"
#include "books/ui/Windows.h"
#include "books/ui/newBookWindow.h"
#include "engine/RowLayouts.h"
#include "mainwindow/MenuBar1.h"
#include "platform/BlockingServices.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

::SummaryWindow* Windows::SummaryWindow()
{
    static QPointer<::SummaryWindow> instance;
    return accessWindow(instance);
}

SummaryWindow::SummaryWindow(QWidget* parent)
    : QMainWindow(parent)
    , books_(AppFolders::existingBooks(AppFolders::applicationData()))
{
    setObjectName(u"SummaryWindow"_s);
    setWindowTitle(u"Quillmark"_s);
    resize(990, 712);
    setMinimumSize(710, 500);

    auto* central = new QWidget(this);
    auto* columns = new QHBoxLayout(central);

    auto* left = new QVBoxLayout;
    LedgerListView = new ListboxView(books_.LedgerList, central);
    LedgerListView->setDefaultRowHeight(kLedgerListRowHeight);
    LedgerListView->setFixedWidth(200);
    left->addWidget(LedgerListView);
    auto* ledgerButtons = new QHBoxLayout;
    PushButton3 = new QPushButton(u"+"_s, central);
    PushButton3->setObjectName(u"PushButton3"_s);
    PushButton4 = new QPushButton(u"-"_s, central);
    PushButton4->setObjectName(u"PushButton4"_s);
    for (QPushButton* button : {PushButton3, PushButton4}) {
        button->setFixedWidth(32);
        ledgerButtons->addWidget(button);
    }
    ledgerButtons->addStretch();
    left->addLayout(ledgerButtons);
    columns->addLayout(left);

    auto* right = new QVBoxLayout;
    auto* splitter = new QSplitter(Qt::Vertical, central);
    // A region: its centred heading above its grid.
    auto region = [&](QGroupBox*& box, QLabel*& heading, const QString& title, Listbox& table, int rowHeight) {
        box = new QGroupBox(splitter);
        box->setMinimumHeight(150);
        auto* layout = new QVBoxLayout(box);
        heading = new QLabel(title, box);
        heading->setAlignment(Qt::AlignCenter);
        layout->addWidget(heading);
        auto* view = new ListboxView(table, box);
        view->setDefaultRowHeight(rowHeight);
        layout->addWidget(view);
        return view;
    };
    accountsBoxView = region(GroupBox1, StaticText1, u"Accounts"_s, books_.accountsBox, kAccountsRowHeight);
    transBoxView = region(GroupBox2, StaticText2, u"Transactions"_s, books_.transBox, kTransRowHeight);
    transBoxView->setSortable(true);
    transBoxView->setShowGrid(true);
    right->addWidget(splitter, 1);
    reconcilecheckbox = new QCheckBox(u"Reconcile Transactions"_s, central);
    reconcilecheckbox->setObjectName(u"reconcilecheckbox"_s);
    right->addWidget(reconcilecheckbox);
    columns->addLayout(right, 1);
    setCentralWidget(central);

    buildMenuBar();
    connect(PushButton3, &QPushButton::clicked, this, &SummaryWindow::PushButton3_Action);
    connect(PushButton4, &QPushButton::clicked, this, &SummaryWindow::PushButton4_Action);
    connect(reconcilecheckbox, &QCheckBox::toggled, &books_, &SummaryBooks::reconcilecheckbox_Action);
    Event_Open();
}

SummaryWindow::~SummaryWindow()
{
    // The grids go before the tables they show, which are members of this window.
    delete centralWidget();
}

void SummaryWindow::buildMenuBar()
{
    setMenuBar(MenuBar1::build(this));
    App::AddMenuHandlers(*menuBar());
    MenuBar1::bind(*menuBar(), u"FileQuit"_s, this, [this] { close(); });
}

void SummaryWindow::Event_Open()
{
    books_.probeSeparator();
}

void SummaryWindow::PushButton3_Action()
{
    Windows::newBookWindow()->show();
}

void SummaryWindow::PushButton4_Action()
{
    books_.deleteLedger();
}

void SummaryWindow::makeNewAccount()
{
    // The account dialog for the Base Account opens here once accounts can be made.
}

void SummaryWindow::closeEvent(QCloseEvent* event)
{
    Event_Close();
    event->accept();
}

void SummaryWindow::Event_Close()
{
    if (books_.LedgerList.ListIndex() > -1) {
        books_.listboxManager.saveListBox(books_.transBox, books_.transFileName());
        books_.listboxManager.saveListBox(books_.accountsBox, books_.accountsFileName());
    }
    Quit();
}
