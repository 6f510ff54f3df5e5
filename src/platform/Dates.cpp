#include "platform/Dates.h"

#include <QRegularExpression>

#include <cmath>

namespace {

const QDate DayZero(1899, 12, 30);
constexpr double DayLimit = 3'000'000; // far beyond the year 9999

} // namespace

double toDays(QDate date) {
  return double(DayZero.daysTo(date));
}

QDate fromDays(double days) {
  if (!(std::fabs(days) < DayLimit))
    return {};
  return DayZero.addDays(qint64(std::floor(days)));
}

int yearOf(double days) {
  return fromDays(days).year();
}

std::optional<QDate> typedDate(QStringView text) {
  static const QRegularExpression form(QStringLiteral("\\A *([0-9]{1,2})\\.([0-9]{1,2})\\.([0-9]{4}|[0-9]{2}) *\\z"));
  const auto match = form.match(text.toString());
  if (!match.hasMatch())
    return {};
  int year = match.captured(3).toInt();
  if (match.capturedLength(3) == 2)
    year += year < 30 ? 2000 : 1900;
  const QDate date(year, match.captured(2).toInt(), match.captured(1).toInt());
  return date.isValid() ? std::optional(date) : std::nullopt;
}

QString shortDate(QDate date) {
  return date.toString(QStringLiteral("dd.MM.yyyy"));
}
