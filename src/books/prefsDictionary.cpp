#include "books/prefsDictionary.h"

#include "books/AppFolders.h"
#include "books/FileStore.h"
#include "platform/FileProblems.h"

using namespace Qt::StringLiterals;

namespace {

const QString kAccountNumber = u"AccountNumber"_s;

QString preferencesPath()
{
    const QString folder = AppFolders::applicationData();
    return folder.isEmpty() ? QString() : folder + u"/Quillmark Preferences"_s;
}

// The file was there at start but couldn't be read: it isn't written over.
bool& preferencesUnread()
{
    static bool unread = false;
    return unread;
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
    const QString path = preferencesPath();
    const FileContent content = path.isEmpty() ? FileContent{} : readPlainFile(path);
    preferencesUnread() = !content.problem.isEmpty();
    if (preferencesUnread())
        tellFileProblem(u"Quillmark couldn't read its preferences: %1."_s.arg(content.problem));
    if (content.bytes) {
        const QByteArray& bytes = *content.bytes;
        const int length = bytes.isEmpty() ? 0 : quint8(bytes[0]);
        prefsDict().insert(kAccountNumber, QString::fromUtf8(bytes.mid(1, length)));
        return;
    }
    prefsDict().insert(kAccountNumber, QString());
}

void savePreferences()
{
    const QString path = preferencesPath();
    if (path.isEmpty())
        return;
    const FileProblem problem = preferencesUnread()
        ? FileProblem{u"the file couldn't be read when Quillmark started, so it isn't written over"_s}
        : replaceFile(path, countedString(prefsDict().value(kAccountNumber)));
    if (problem.failed())
        tellFileProblem(u"Quillmark couldn't save its preferences: %1.%2"_s.arg(
            problem.reason, problem.oldFileKept ? u" They stay as they were before."_s : QString()));
}

} // namespace prefsDictionary
