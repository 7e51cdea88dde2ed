#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <gtest/gtest.h>

#include <ostream>

// What every test shares: GoogleTest, Qt's string literals, and failures that
// print Qt's texts as text.
using namespace Qt::StringLiterals;

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
