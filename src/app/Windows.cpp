#include "app/Windows.h"

#include "app/App.h"
#include "app/SplashWindow.h"
#include "books/ui/PrefsWindow.h"
#include "books/ui/newBookWindow.h"
#include "charts/ui/chartingWindow.h"
#include "engine/ui/AccountWindow.h"
#include "engine/ui/TransactionWindow.h"
#include "engine/ui/transferWindow.h"
#include "exchange/TransactionImport.h"
#include "exchange/ui/CustomImportWindow.h"
#include "ledger/TransactionOperations.h"
#include "mainwindow/SummaryWindow.h"
#include "reports/ui/indAccWindow.h"
#include "reports/ui/ledgerWindow.h"
#include "update/ui/AboutWindow.h"

#include <QEvent>
#include <QMenuBar>

namespace {

class CloseWatcher : public QObject {
public:
    CloseWatcher(QWidget* window, std::function<void()> forget)
        : QObject(window)
        , forget_(std::move(forget))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Close && forget_)
            std::exchange(forget_, nullptr)();
        return false;
    }

private:
    std::function<void()> forget_;
};

} // namespace

void forgetOnClose(QWidget* window, std::function<void()> forget)
{
    new CloseWatcher(window, std::move(forget));
}

::SummaryWindow* Windows::SummaryWindow()
{
    static QPointer<::SummaryWindow> instance;
    return accessWindow(instance, [] {
        auto* window = new ::SummaryWindow(SummaryDialogs{
            .AccountWindow = &Windows::AccountWindow,
            .TransactionWindow = &Windows::TransactionWindow,
            .transferWindow = &Windows::transferWindow,
            .newBookWindow = &Windows::newBookWindow,
            .chartingWindow = &Windows::chartingWindow,
            .ledgerWindow = &Windows::ledgerWindow,
            .indAccWindow = &Windows::indAccWindow,
            .CustomImportWindow = &Windows::CustomImportWindow,
        });
        App::AddMenuHandlers(*window->menuBar());
        return window;
    });
}

::AccountWindow* Windows::AccountWindow()
{
    static QPointer<::AccountWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        return new ::AccountWindow(summary->books(), summary);
    });
}

::TransactionWindow* Windows::TransactionWindow()
{
    static QPointer<::TransactionWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        return new ::TransactionWindow(summary->books(), summary);
    });
}

::transferWindow* Windows::transferWindow()
{
    static QPointer<::transferWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        return new ::transferWindow(summary->books(), summary);
    });
}

::chartingWindow* Windows::chartingWindow()
{
    static QPointer<::chartingWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        return new ::chartingWindow(summary->books().accountsBox, summary);
    });
}

::ledgerWindow* Windows::ledgerWindow()
{
    static QPointer<::ledgerWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        return new ::ledgerWindow(summary->books().accountsBox, summary->books().transBox, summary);
    });
}

::indAccWindow* Windows::indAccWindow()
{
    static QPointer<::indAccWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        return new ::indAccWindow(summary->books(), &Windows::TransactionWindow, summary);
    });
}

::CustomImportWindow* Windows::CustomImportWindow()
{
    static QPointer<::CustomImportWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        SummaryBooks& books = summary->books();
        return new ::CustomImportWindow(
            books.accountsBox, books.transBox,
            [&books](const std::vector<ImportedRow>& rows, bool skipDuplicates) {
                return TransactionOperations(books).appendTransactions(transactionRows(rows, skipDuplicates));
            },
            summary);
    });
}

::newBookWindow* Windows::newBookWindow()
{
    static QPointer<::newBookWindow> instance;
    return accessWindow(instance, [] {
        ::SummaryWindow* summary = Windows::SummaryWindow();
        auto* dialog = new ::newBookWindow(summary->books(), summary);
        QObject::connect(dialog, &::newBookWindow::ledgerAdded, summary, &::SummaryWindow::makeNewAccount);
        return dialog;
    });
}

::SplashWindow* Windows::SplashWindow()
{
    static QPointer<::SplashWindow> instance;
    return accessWindow(instance, [] {
        auto* splash = new ::SplashWindow();
        QObject::connect(splash, &::SplashWindow::finished, splash, [] {
            ::SummaryWindow* summary = Windows::SummaryWindow();
            summary->setVisible(true);
            summary->show();
        });
        return splash;
    });
}

::AboutWindow* Windows::AboutWindow()
{
    static QPointer<::AboutWindow> instance;
    return accessWindow(instance, [] { return new ::AboutWindow(); });
}

::PrefsWindow* Windows::PrefsWindow()
{
    static QPointer<::PrefsWindow> instance;
    return accessWindow(instance, [] { return new ::PrefsWindow(); });
}
