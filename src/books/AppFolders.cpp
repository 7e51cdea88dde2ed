#include "books/AppFolders.h"

#include "books/FileStore.h"
#include "platform/TextHelpers.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace AppFolders {

QString applicationData()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString quillmark(const QString& applicationData)
{
    return applicationData + u"/Quillmark"_s;
}

QString books(const QString& applicationData)
{
    return quillmark(applicationData) + u"/Books"_s;
}

QString existingBooks(const QString& applicationData)
{
    const QString folder = books(applicationData);
    return !applicationData.isEmpty() && QDir(folder).exists() ? folder : QString();
}

QString makeFolders(const QString& applicationData)
{
    if (applicationData.isEmpty())
        return {};
    QDir().mkpath(applicationData);
    QDir().mkdir(quillmark(applicationData));
    QDir().mkdir(books(applicationData));
    return existingBooks(applicationData);
}

void removeSaveLeftovers(const QString& applicationData)
{
    if (applicationData.isEmpty())
        return;
    ::removeSaveLeftovers(books(applicationData), [](QStringView name) {
        return name.endsWith(u"AccountData") || name.endsWith(u"TransData") || name == u"WindowData";
    });
    ::removeSaveLeftovers(quillmark(applicationData), [](QStringView name) { return name == u"BookList"; });
    ::removeSaveLeftovers(applicationData, [](QStringView name) {
        return name == u"Quillmark Preferences" || name == u"Quillmark_WindowData";
    });
}

void renameOldLedgerFiles(const QString& booksFolder)
{
    QDir folder(booksFolder);
    const QStringList names = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        const bool ledgerFile = InStr(name, u"AccountData") > 0 || InStr(name, u"TransData") > 0;
        if (ledgerFile && !name.startsWith(u"  "))
            folder.rename(name, u"  "_s + name);
    }
}

} // namespace AppFolders
