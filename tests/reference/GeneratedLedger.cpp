#include "reference/GeneratedLedger.h"

#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "engine/RowLayouts.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QDir>

#include <random>

using namespace Qt::StringLiterals;

namespace {

const QStringList kWords{u"Coffee"_s, u"Rent"_s, u"Invoice"_s, u"Paper"_s, u"Stamps"_s, u"Fuel"_s,
                         u"Lunch"_s,  u"Bank"_s, u"Repair"_s,  u"Books"_s, u"Phone"_s,  u"Taxi"_s};

QString twentyCharacters(std::mt19937& random)
{
    QString text;
    while (text.size() < 20)
        text += kWords[random() % kWords.size()] + u' ';
    return text.left(20);
}

QString amount(std::mt19937& random, bool negative)
{
    const double value = double(random() % 500000) / 100.0;
    return (negative ? u"-"_s : QString()) + QString::number(value, 'f', 2);
}

} // namespace

void generateLedger(Listbox& accounts, Listbox& transactions, const LedgerShape& shape)
{
    std::mt19937 random(shape.seed);
    accounts.DeleteAllRows();
    transactions.DeleteAllRows();
    QStringList names;
    for (int r = 0; r < shape.accounts; ++r) {
        const QString name = r == 0 ? u"Balance"_s : u"Account %1 %2"_s.arg(r).arg(kWords[r % kWords.size()]);
        names << name;
        accounts.AddRow(u"");
        accounts.SetCell(r, AccountCol::Name, name);
        accounts.SetCell(r, AccountCol::Type, r == 0 ? QString() : (r % 3 ? u"Expense"_s : u"Revenue"_s));
        accounts.SetCell(r, AccountCol::Opening, amount(random, false));
        accounts.SetCell(r, AccountCol::Notes, u"Notes of %1"_s.arg(name));
    }
    if (shape.awkward && shape.accounts > 3) {
        accounts.SetCell(0, AccountCol::Type, u"main account"_s);
        accounts.SetCell(1, AccountCol::Type, u"asset"_s);
        accounts.SetCell(2, AccountCol::Name, names[3].toUpper()); // the same name twice, in other case
        accounts.SetCell(3, AccountCol::Opening, u"12,5"_s);
        names[2] = names[3];
    }

    const QDate first(2010, 1, 1);
    for (int t = 0; t < shape.transactions; ++t) {
        transactions.AddRow(u"");
        QString account = names[1 + random() % std::max(shape.accounts - 1, 1)];
        QString total = amount(random, random() % 3 != 0);
        QString date = first.addDays(random() % 5000).toString(Qt::ISODate);
        if (shape.awkward) {
            switch (random() % 16) {
            case 0: account = account.toLower(); break;
            case 1: account = account.toUpper(); break;
            case 2: account = u"No such account"_s; break;
            case 3: account = u"GST"_s; total.clear(); break;
            case 4: total = u"n/a"_s; break;
            case 5: total.replace(u'.', u','); break;
            case 6: total = u"  "_s + total + u" "_s; break;
            case 7: date = u"someday"_s; break;
            case 8: total += u"7"_s; break; // a third decimal
            default: break;
            }
        }
        transactions.SetCell(t, TransCol::Account, account);
        transactions.SetCell(t, TransCol::Date, date);
        transactions.SetCell(t, TransCol::Description, twentyCharacters(random));
        transactions.SetCell(t, TransCol::Invoice, QString::number(1000 + t));
        transactions.SetCell(t, TransCol::Amount, total.trimmed());
        if (random() % 10 == 0)
            transactions.SetCell(t, TransCol::Tax, amount(random, false));
        transactions.SetCell(t, TransCol::Transaction, total);
        transactions.SetCell(t, TransCol::Memo, u"Memo for row %1"_s.arg(t));
        const bool reconciled = random() % 2;
        transactions.SetCell(t, TransCol::Reconciled, reconciled ? u"true"_s : u"false"_s);
        transactions.SetCellCheck(t, TransCol::Account, reconciled);
        transactions.SetCell(t, TransCol::Repeat, u"Never"_s);
    }
}

void writeGeneratedLedger(const QString& booksFolder, const QString& ledgerName, const LedgerShape& shape)
{
    Listbox accounts(u"accountsBox"_s, AccountCol::Count);
    Listbox transactions(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
    generateLedger(accounts, transactions, shape);
    ListboxManager manager;
    manager.ProgramDataFolder = booksFolder;
    manager.saveListBox(accounts, ledgerName + u"AccountData"_s);
    manager.saveListBox(transactions, ledgerName + u"TransData"_s);
    QFile list(QFileInfo(booksFolder).dir().filePath(u"BookList"_s));
    if (list.open(QIODevice::Append))
        list.write((ledgerName + u'\n').toUtf8());
}
