#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <ostream>

// How GoogleTest shows Qt's texts; found by argument-dependent lookup.
inline void PrintTo(const QString &text, std::ostream *out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray &bytes, std::ostream *out) {
  *out << '"' << bytes.toPercentEncoding(" ,.:\r\n").toStdString() << '"';
}
