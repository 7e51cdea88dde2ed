#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <ostream>

// GoogleTest prints Qt's texts as text, not as arrays of code units, when a
// comparison fails.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(QStringView text, std::ostream* out)
{
    *out << '"' << text.toString().toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}
