#include "core/ValueFormats.h"

#include "platform/Numbers.h"

#include <cmath>

namespace {

QString wertText(double value, int width) {
  QString text = (QStringLiteral("      ") + masked(value, "#.#0")).right(width);
  const auto comma = text.indexOf(QLatin1Char(','));
  if (comma > 0 && text[comma - 1] == QLatin1Char(' '))
    text[comma - 1] = QLatin1Char('0');
  return text;
}

} // namespace

ZeitTeile ZeitZerlegen(double seconds) {
  ZeitTeile parts;
  parts.ZeitStd = std::floor(seconds / 3600);
  double rest = seconds - 3600 * parts.ZeitStd;
  parts.ZeitMin = std::floor(rest / 60);
  rest -= 60 * parts.ZeitMin;
  // The small addend keeps 59.999999999 from losing a thousandth.
  parts.ZeitSek = std::floor(1000 * rest + 0.00001) / 1000;
  return parts;
}

std::optional<double> joinedTime(const QString &hours, const QString &minutes, const QString &seconds) {
  const auto h = regionalNumber(hours), m = regionalNumber(minutes), s = regionalNumber(seconds);
  return h && m && s ? std::optional(3600 * *h + 60 * *m + *s) : std::nullopt;
}

// Quirk: seconds without carry. 59,996 are shown as 60,00.
QString ZeitText(double seconds) {
  const ZeitTeile parts = ZeitZerlegen(seconds);
  QString text = spacedText(parts.ZeitStd) + QLatin1Char(':') + masked(parts.ZeitMin, "0#") + QLatin1Char(':') +
                 masked(parts.ZeitSek, "0#.00");
  qsizetype start = 0;
  while (start < text.size() && QStringLiteral(" 0:").contains(text[start]))
    ++start;
  return text.sliced(start);
}

QString KommaEingabe(const QString &text) {
  QString result = trimmedBlanks(text);
  if (result.isEmpty())
    return QStringLiteral("0");
  const auto point = result.indexOf(QLatin1Char('.'));
  if (point >= 0)
    result[point] = QLatin1Char(',');
  return result;
}

QString secondsEntry(const QString &text) {
  const bool asIs = !text.contains(QLatin1Char('.')) && !trimmedBlanks(text).isEmpty();
  return asIs ? text : KommaEingabe(text);
}

QString WertText8(double value) {
  return wertText(value, 8);
}

QString WertText10(double value) {
  return wertText(value, 10);
}
