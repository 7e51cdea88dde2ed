#include "books/LedgerNames.h"

#include "books/rowtable/Listbox.h"

using namespace Qt::StringLiterals;

namespace {

// The longest file name most file systems take, in bytes, less the mark that
// a save adds to the temporary file it writes beside the file (".saving-" and
// six letters).
constexpr qsizetype kMaxFileNameBytes = 255 - 14;

enum class NameFault { None, Empty, Character, DotName, TooLong };

bool refusedByFileSystem(QChar c)
{
    return c == u'/' || c.category() == QChar::Other_Control; // NUL is a control character too
}

NameFault fileNameFault(QStringView fileName)
{
    if (fileName.isEmpty())
        return NameFault::Empty;
    if (std::any_of(fileName.begin(), fileName.end(), refusedByFileSystem))
        return NameFault::Character;
    if (fileName == u"." || fileName == u"..")
        return NameFault::DotName;
    if (fileName.toUtf8().size() > kMaxFileNameBytes)
        return NameFault::TooLong;
    return NameFault::None;
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
    // The longer of the ledger's two file names decides.
    switch (fileNameFault(QString(name + u"AccountData"_s))) {
    case NameFault::Character:
        return u"A ledger name can't contain \"/\" or control characters. Please enter a different name."_s;
    case NameFault::TooLong:
        return u"That ledger name is too long. Please enter a shorter name."_s;
    default:
        break;
    }
    for (int row = 0; row < ledgerList.ListCount(); ++row) {
        if (row != ownRow && ledgerList.CellView(row, 0).compare(name, Qt::CaseInsensitive) == 0)
            return ledgerNameInUseMessage();
    }
    return {};
}

BookFilePath bookFilePath(const QString& booksFolder, const QString& fileName)
{
    if (booksFolder.isEmpty())
        return {{}, u"there is no folder \"Books\" to keep it in"_s};
    switch (fileNameFault(fileName)) {
    case NameFault::None:
        return {booksFolder + u'/' + fileName, {}};
    case NameFault::Empty:
    case NameFault::DotName:
        return {{}, u"\"%1\" can't name a file"_s.arg(fileName)};
    case NameFault::Character:
        return {{}, u"a ledger's name can't hold \"/\" or a control character"_s};
    case NameFault::TooLong:
        return {{}, u"its name is too long for a file name"_s};
    }
    return {};
}
