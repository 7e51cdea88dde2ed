#include "support/DataFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

TempDataHome::TempDataHome()
    : previous(qgetenv("XDG_DATA_HOME"))
{
    EXPECT_TRUE(dir.isValid());
    qputenv("XDG_DATA_HOME", dir.path().toLocal8Bit());
}

TempDataHome::~TempDataHome()
{
    qputenv("XDG_DATA_HOME", previous);
}

void TempDataHome::makeFolders() const
{
    EXPECT_TRUE(QDir().mkpath(books()));
}

bool TempDataHome::writeShop(const QByteArray& bookList, const QByteArray& accounts,
                             const QByteArray& transactions) const
{
    makeFolders();
    writeBytes(quillmark() + QStringLiteral("/BookList"), bookList);
    writeBytes(shop("Account"), accounts);
    writeBytes(shop("Trans"), transactions);
    return true;
}

QString TempDataHome::shop(const char* kind) const
{
    return books() + QStringLiteral("/  Shop") + QLatin1String(kind) + QStringLiteral("Data");
}

QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    file.write(bytes);
}

bool fileExists(const QString& path)
{
    return QFileInfo::exists(path);
}

QMap<QString, QByteArray> entriesUnder(const QString& folder)
{
    QMap<QString, QByteArray> entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info = it.nextFileInfo();
        entries.insert(info.filePath(), info.isSymLink() ? "-> " + info.symLinkTarget().toUtf8()
                                        : info.isFile()  ? readBytes(info.filePath())
                                                         : "(entry)");
    }
    return entries;
}
