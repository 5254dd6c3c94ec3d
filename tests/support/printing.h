#pragma once

// Lets GoogleTest print Qt's strings as text.

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <ostream>

QT_BEGIN_NAMESPACE

inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << (text.isNull() ? "null " : "") << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *stream)
{
    *stream << '"' << bytes.toPercentEncoding(" <>/:=\"'").toStdString() << '"';
}

QT_END_NAMESPACE
