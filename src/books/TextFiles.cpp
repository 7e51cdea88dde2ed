#include "books/TextFiles.h"

#include <QStringDecoder>

QString decodeText(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return QString::fromLatin1(bytes);
    return text;
}

TextContent readTextFile(const QString& path)
{
    if (path.isEmpty())
        return {};
    FileContent content = readPlainFile(path);
    if (!content.bytes)
        return {std::nullopt, content.problem};
    return {decodeText(*content.bytes), {}};
}

FileProblem writeTextFile(const QString& path, QStringView text)
{
    return replaceFile(path, text.toUtf8());
}
