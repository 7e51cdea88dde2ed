#include "reports/LedgerReport.h"

#include "books/rowtable/Listbox.h"
#include "engine/AccountIndex.h"
#include "engine/RowLayouts.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/TextHelpers.h"

#include <QDate>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Belongs = std::function<bool(QStringView date)>;

void addRow(Listbox& report, std::initializer_list<std::pair<int, QString>> cells)
{
    report.AddRow();
    const int row = report.LastIndex();
    for (const auto& [column, text] : cells)
        report.SetCell(row, column, text);
}

// The transactions of each account row whose date belongs, in table order: a
// transaction goes under every account whose name its own equals, ignoring case.
std::vector<std::vector<int>> transactionsByAccount(const Listbox& accounts, const Listbox& transactions,
                                                    const Belongs& belongs)
{
    std::vector<std::vector<int>> byAccount(std::max(accounts.ListCount(), 1));
    AccountIndex index(accounts);
    for (int k = 0; k < transactions.ListCount(); ++k) {
        const std::span<const int> owners = index.rowsNamed(transactions.CellView(k, TransCol::Account));
        if (owners.empty() || !belongs(transactions.CellView(k, TransCol::Date)))
            continue;
        for (const int account : owners)
            byAccount[account].push_back(k);
    }
    return byAccount;
}

// Builds the report of the transactions whose date belongs; returns whether any did.
bool buildReport(Listbox& report, const Listbox& accounts, const Listbox& transactions, const Belongs& belongs)
{
    report.DeleteAllRows();
    const std::vector<std::vector<int>> byAccount = transactionsByAccount(accounts, transactions, belongs);
    bool found = false;
    if (accounts.ListCount() > 0) {
        addRow(report, {{ReportCol::Date, accounts.Cell(0, AccountCol::Number)},
                        {ReportCol::Name, accounts.Cell(0, AccountCol::Name)},
                        {ReportCol::Opening, accounts.Cell(0, AccountCol::Opening)},
                        {ReportCol::Balance, accounts.Cell(0, AccountCol::Balance)}});
        report.SetCellBold(0, ReportCol::Date, true);
        report.SetCellBold(0, ReportCol::Name, true);
        addRow(report, {{ReportCol::Date, u" "_s}});
    }
    for (int account = 1; account < accounts.ListCount(); ++account) {
        const QStringView name = accounts.CellView(account, AccountCol::Name);
        addRow(report, {{ReportCol::Date, u"   "_s},
                        {ReportCol::Name, name.toString()},
                        {ReportCol::Opening, accounts.Cell(account, AccountCol::Opening)}});
        report.SetCellBold(report.LastIndex(), ReportCol::Name, true);
        for (const int k : byAccount[account]) {
            found = true;
            const QString amount = transactions.Cell(k, TransCol::Transaction);
            addRow(report, {{ReportCol::Date, transactions.Cell(k, TransCol::Date)},
                            {ReportCol::Name, transactions.Cell(k, TransCol::Invoice)},
                            {ReportCol::Description, transactions.Cell(k, TransCol::Description)},
                            {Val(amount) < 0 ? ReportCol::Withdrawal : ReportCol::Deposit, amount}});
        }
        addRow(report, {{ReportCol::Date, u" "_s},
                        {ReportCol::Balance, accounts.Cell(account, AccountCol::Balance)},
                        {ReportCol::Type, accounts.Cell(account, AccountCol::Type)}});
    }
    if (!found) {
        report.DeleteAllRows();
        return false;
    }
    double withdrawals = 0;
    double deposits = 0;
    for (int row = 0; row < report.ListCount(); ++row) {
        withdrawals += Val(report.CellView(row, ReportCol::Withdrawal));
        deposits += Val(report.CellView(row, ReportCol::Deposit));
    }
    // Each total by its own sign: a withdrawal total shows its minus.
    const auto total = [](double sum) { return Format(sum, sum < 0 ? u"-#########0.00" : u"#########0.00"); };
    report.SetCell(0, ReportCol::Withdrawal, total(withdrawals));
    report.SetCell(0, ReportCol::Deposit, total(deposits));
    return true;
}

} // namespace

void setUpLedgerReport(Listbox& report)
{
    struct Column {
        const char16_t* heading;
        double width;
        int alignment;
    };
    static const Column columns[ReportCol::Count] = {
        {u"Date", 12, Listbox::AlignRight},       {u"Acc. Name", 14, Listbox::AlignLeft},
        {u"Description", 19, Listbox::AlignLeft}, {u"Opening", 14, Listbox::AlignRight},
        {u"Withdrawal", 14, Listbox::AlignRight}, {u"Deposit", 14, Listbox::AlignRight},
        {u"Balance", 14, Listbox::AlignRight},
    };
    report.SetHasHeading(true);
    for (int column = 0; column < ReportCol::Count; ++column) {
        report.SetHeading(column, QString::fromUtf16(columns[column].heading));
        report.setColumnWidthPercent(column, columns[column].width);
        report.SetColumnAlignment(column, columns[column].alignment);
    }
}

bool loadLedger(Listbox& report, const Listbox& accounts, const Listbox& transactions, int month)
{
    return buildReport(report, accounts, transactions, [month](QStringView date) {
        return month == 0 || Val(NthField(date, u"-", 2)) == month;
    });
}

bool loadLedgerYear(Listbox& report, const Listbox& accounts, const Listbox& transactions, const QString& yearText)
{
    return buildReport(report, accounts, transactions, [&yearText](QStringView date) {
        QDate day;
        return readStoredDate(date, day) && Str(day.year()) == yearText;
    });
}

QColor ledgerBackground(int row)
{
    return row % 2 == 0 ? QColor(217, 233, 255) : QColor(Qt::white);
}

QColor ledgerTextColour(const Listbox& report, int row)
{
    if (row == 0)
        return QColor(0, 128, 64);
    if (report.CellView(row, ReportCol::Balance).contains(u'-')
        && report.CellView(row, ReportCol::Type).compare(u"revenue", Qt::CaseInsensitive) != 0)
        return QColor(255, 0, 0);
    return QColor();
}
