#include "platform/Csv.h"

#include <QRegularExpression>

namespace {

bool beginsFormula(QStringView text) {
  static const QRegularExpression number(QStringLiteral("\\A[+-]?[0-9.,:]*\\z"));
  return !text.isEmpty() && QStringLiteral("=+-@\t\r").contains(text.front()) &&
         !number.match(text.toString()).hasMatch();
}

QString guarded(const QString &text) {
  return beginsFormula(text) ? QLatin1Char('\'') + text : text;
}

QString quoted(QString field) {
  static const QRegularExpression special(QStringLiteral("[;\"\\r\\n]|\\A\\s|\\s\\z"));
  if (!special.match(field).hasMatch())
    return field;
  return QLatin1Char('"') + field.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

} // namespace

QByteArray csvLine(const QStringList &fields) {
  QStringList line;
  for (const QString &field : fields)
    line << quoted(guarded(field));
  return line.join(QLatin1Char(';')).toUtf8() + "\r\n";
}

QString withoutGuard(const QString &field) {
  return field.startsWith(QLatin1Char('\'')) && beginsFormula(QStringView(field).sliced(1)) ? field.mid(1) : field;
}
