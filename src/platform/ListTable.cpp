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

QList<QStringList> tableOf(const QStringList &lines) {
  QList<QStringList> table;
  for (const QString &line : lines)
    table << columnsOf(line);
  return table;
}

QByteArray csvOf(const QList<QStringList> &table) {
  QByteArray csv = Utf8Mark;
  for (const QStringList &line : table)
    csv += csvLine(line);
  return csv;
}
