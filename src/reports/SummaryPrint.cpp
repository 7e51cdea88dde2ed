#include "reports/SummaryPrint.h"

#include "books/Globals.h"
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/BlockingServices.h"
#include "platform/Graphics.h"
#include "platform/PrinterSetup.h"
#include "platform/TextHelpers.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QColor kTitleBlue(0, 0, 255);
const QColor kBand(209, 229, 255);
const QColor kFirstRowGreen(0, 128, 64);
const QColor kNegativeRed(255, 0, 0);

// The page and its line counter, as the common start leaves them.
class FixedLayout {
public:
    explicit FixedLayout(std::unique_ptr<Graphics> pages)
        : g(std::move(pages))
    {
        g->TextFont = u"Geneva"_s;
        g->TextSize = 9;
        lineLimit = int(g->Height() / double(g->TextHeight() + 4) + 5.0);
    }

    // The y of a row at this line, lines counting from base.
    int y(int base) const { return base + g->TextHeight() * line; }
    // The next line; past the limit, a new page from its top.
    void nextLine()
    {
        ++line;
        if (line > lineLimit)
            newPage();
    }
    void newPage()
    {
        g->NextPage();
        line = 0;
    }
    void title(const QString& text, int base)
    {
        g->Bold = true;
        g->ForeColor = kTitleBlue;
        g->DrawString(text, 50, y(base));
        g->Bold = false;
        g->ForeColor = Qt::black;
    }
    void headings(std::initializer_list<std::pair<QString, int>> texts)
    {
        g->Bold = true;
        for (const auto& [text, x] : texts)
            g->DrawString(text, x, y(60));
        g->Bold = false;
    }
    void band(int row)
    {
        if (row % 2 != 0)
            return;
        const QColor text = g->ForeColor;
        g->ForeColor = kBand;
        g->FillRect(50, y(80) - 10, 480, 12);
        g->ForeColor = text;
    }
    void rightAligned(const QString& text, int right) { g->DrawString(text, right - g->StringWidth(text), y(80)); }

    std::unique_ptr<Graphics> g;
    int lineLimit = 0;
    int line = 0;
};

std::optional<FixedLayout> startPrint()
{
    PrinterSetup setup;
    if (!Globals::ps.isEmpty())
        setup.SetupString = Globals::ps;
    std::unique_ptr<Graphics> pages = OpenPrinterDialog(setup);
    if (!pages)
        return std::nullopt;
    return FixedLayout(std::move(pages));
}

QString cut(QStringView text, int length)
{
    return text.size() > length ? Left(text, length) + u"..."_s : text.toString();
}

void printAccounts(FixedLayout& page, const QString& title, const Listbox& accounts)
{
    Graphics& g = *page.g;
    page.title(title + u": Accounts"_s, 44);
    page.headings({{u"Acc #"_s, 50},
                   {u"Account"_s, 115},
                   {u"Type"_s, 240},
                   {u"Opening"_s, 315},
                   {u"Transactions"_s, 380},
                   {u"Balance"_s, 475}});
    for (int row = 0; row < accounts.ListCount(); ++row) {
        page.band(row);
        g.ForeColor = row == 0 ? kFirstRowGreen : QColor(Qt::black);
        const int y = page.y(80);
        g.DrawString(accounts.Cell(row, AccountCol::Number), 50, y);
        g.DrawString(cut(accounts.CellView(row, AccountCol::Name), 23), 115, y);
        const QString type = accounts.Cell(row, AccountCol::Type);
        g.DrawString(row == 0 ? NthField(type, u" ", 1) : type, 240, y);
        page.rightAligned(accounts.Cell(row, AccountCol::Opening), 370);
        page.rightAligned(accounts.Cell(row, AccountCol::Transactions), 450);
        const QString balance = accounts.Cell(row, AccountCol::Balance);
        if (balance.startsWith(u'-'))
            g.ForeColor = kNegativeRed;
        page.rightAligned(balance, 530);
        g.ForeColor = Qt::black;
        page.nextLine();
    }
    if (page.line + 3 > page.lineLimit)
        page.newPage();
    ++page.line;
}

void printTransactions(FixedLayout& page, const QString& request, const QString& title, const Listbox& transactions)
{
    Graphics& g = *page.g;
    ++page.line;
    if (page.line > page.lineLimit) {
        page.newPage();
    } else if (request == u"all") {
        const int y = page.y(80);
        g.DrawLine(50, y, 530, y);
    }
    if (request == u"transactions")
        page.line = 0;
    else
        page.line += 3;
    page.title(title + u": Transactions"_s, 60);
    ++page.line;
    page.headings({{u"Acc #"_s, 50},
                   {u"Account"_s, 115},
                   {transactions.Heading(TransCol::Date), 210},
                   {transactions.Heading(TransCol::Description), 285},
                   {transactions.Heading(TransCol::Invoice), 385},
                   {transactions.Heading(TransCol::Transaction), 460}});
    for (int row = 0; row < transactions.ListCount(); ++row) {
        page.band(row);
        const int y = page.y(80);
        g.DrawString(transactions.Cell(row, TransCol::Number), 50, y);
        g.DrawString(cut(transactions.CellView(row, TransCol::Account), 18), 115, y);
        g.DrawString(transactions.Cell(row, TransCol::Date), 210, y);
        g.DrawString(cut(transactions.CellView(row, TransCol::Description), 18), 285, y);
        g.DrawString(transactions.Cell(row, TransCol::Invoice), 385, y);
        page.rightAligned(transactions.Cell(row, TransCol::Transaction), 530);
        page.nextLine();
    }
    if (page.line + 1 > page.lineLimit)
        page.g->NextPage();
}

} // namespace

void printAll(const QString& printRequest, const QString& windowTitle, const Listbox& accounts,
              const Listbox& transactions)
{
    std::optional<FixedLayout> page = startPrint();
    if (!page)
        return;
    if (printRequest == u"all" || printRequest == u"accounts")
        printAccounts(*page, windowTitle, accounts);
    if (printRequest == u"all" || printRequest == u"transactions")
        printTransactions(*page, printRequest, windowTitle, transactions);
}

void printAccountTransactions(const Listbox& list, const QString& accountName, const QString& balanceText)
{
    std::optional<FixedLayout> page = startPrint();
    if (!page)
        return;
    Graphics& g = *page->g;
    page->title(u"Account Transactions: "_s + accountName, 44);
    page->headings({{u"Date"_s, 50}, {u"Description"_s, 120}, {u"Inv #"_s, 400}, {u"Amount"_s, 450}});
    for (int row = 0; row < list.ListCount(); ++row) {
        const int y = page->y(80);
        page->band(row);
        g.ForeColor = row == 0 ? kFirstRowGreen : QColor(Qt::black);
        g.DrawString(list.Cell(row, TransCol::Date), 50, y);
        g.DrawString(list.Cell(row, TransCol::Description), 120, y);
        g.DrawString(list.Cell(row, TransCol::Invoice), 400, y);
        g.DrawString(list.Cell(row, TransCol::Transaction), 450, y);
        page->nextLine();
    }
    if (page->line + 3 > page->lineLimit)
        page->newPage();
    g.ForeColor = Qt::black;
    const int y = 80 + g.TextHeight() * (page->line + 1);
    g.DrawString(u"Total: "_s, 400, y);
    g.DrawString(balanceText, 450, y);
}
