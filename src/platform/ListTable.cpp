#include "platform/ListTable.h"

#include "platform/Csv.h"

#include <QRegularExpression>

QStringList columnsOf(const QString &line) {
  static const QRegularExpression gap(QStringLiteral(" {2,}"));
  return line.split(gap, Qt::SkipEmptyParts);
}

QString clipboardText(const QStringList &lines) {
  QStringList texts;
  for (const QString &line : lines)
    texts << columnsOf(line).join(QLatin1Char('\t'));
  return texts.join(QLatin1Char('\n'));
}

QByteArray csvOf(const QStringList &lines) {
  QByteArray csv = Utf8Mark;
  for (const QString &line : lines)
    csv += csvLine(columnsOf(line));
  return csv;
}
