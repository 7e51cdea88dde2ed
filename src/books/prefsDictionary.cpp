#include "books/prefsDictionary.h"

#include "books/AppFolders.h"
#include "books/TextFiles.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString kAccountNumber = u"AccountNumber"_s;

QString preferencesPath()
{
    const QString folder = AppFolders::applicationData();
    return folder.isEmpty() ? QString() : folder + u"/Quillmark Preferences"_s;
}

QByteArray countedString(const QString& value)
{
    QByteArray bytes = value.toUtf8();
    if (bytes.size() > 255) {
        qsizetype cut = 255;
        while (cut > 0 && (quint8(bytes[cut]) & 0xC0) == 0x80) // not inside a character
            --cut;
        bytes.truncate(cut);
    }
    return char(bytes.size()) + bytes;
}

} // namespace

namespace prefsDictionary {

QHash<QString, QString>& prefsDict()
{
    static QHash<QString, QString> dictionary;
    return dictionary;
}

void getPreferences()
{
    prefsDict() = {};
    QFile file(preferencesPath());
    if (file.exists() && file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        const int length = bytes.isEmpty() ? 0 : quint8(bytes[0]);
        prefsDict().insert(kAccountNumber, QString::fromUtf8(bytes.mid(1, length)));
        return;
    }
    prefsDict().insert(kAccountNumber, QString());
}

void savePreferences()
{
    writeFileBytes(preferencesPath(), countedString(prefsDict().value(kAccountNumber)));
}

} // namespace prefsDictionary
