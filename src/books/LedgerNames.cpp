#include "books/LedgerNames.h"

#include "books/rowtable/Listbox.h"

using namespace Qt::StringLiterals;

namespace {

// The longest file name most file systems take, in bytes.
constexpr qsizetype kMaxFileNameBytes = 255;

bool refusedByFileSystem(QChar c)
{
    return c == u'/' || c.category() == QChar::Other_Control;
}

} // namespace

QString ledgerNameInUseMessage()
{
    return u"That ledger name is already in use. Please enter a different name."_s;
}

QString withLedgerPrefix(const QString& name)
{
    return name.startsWith(kLedgerPrefix) ? name : kLedgerPrefix + name;
}

QString ledgerNameProblem(const QString& name, const Listbox& ledgerList, int ownRow)
{
    if (name.trimmed().isEmpty())
        return u"Please enter a name for the ledger."_s;
    if (std::any_of(name.begin(), name.end(), refusedByFileSystem))
        return u"A ledger name can't contain \"/\" or control characters. Please enter a different name."_s;
    if ((name + u"AccountData"_s).toUtf8().size() > kMaxFileNameBytes)
        return u"That ledger name is too long. Please enter a shorter name."_s;
    for (int row = 0; row < ledgerList.ListCount(); ++row) {
        if (row != ownRow && ledgerList.CellView(row, 0).compare(name, Qt::CaseInsensitive) == 0)
            return ledgerNameInUseMessage();
    }
    return {};
}
