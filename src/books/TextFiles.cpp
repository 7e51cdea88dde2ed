#include "books/TextFiles.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

std::optional<QString> readTextFile(const QString& path)
{
    if (path.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return QString::fromLatin1(bytes);
    return text;
}

bool writeTextFile(const QString& path, QStringView text)
{
    return writeFileBytes(path, text.toUtf8());
}

bool writeFileBytes(const QString& path, const QByteArray& bytes)
{
    if (path.isEmpty())
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(bytes) != bytes.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}
