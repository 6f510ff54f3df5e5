#pragma once

#include <QByteArray>
#include <QFile>
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

/// The lines of a printed document as they were worked out by hand, from the folder of test data.
inline QStringList expectedPrint(const char *name) {
  QFile file(QString(VEXT_TEST_DATA "/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly))
    return {};
  return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}
