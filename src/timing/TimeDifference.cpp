#include "timing/TimeDifference.h"

#include "platform/Numbers.h"

#include <cmath>

std::optional<double> timeDifference(const QString &start, const QString &finish) {
  const auto from = regionalNumber(start), to = regionalNumber(finish);
  return from && to ? std::optional(std::fabs(*from - *to)) : std::nullopt;
}

bool isTimeToTake(const QString &difference) {
  return leadingNumber(difference) != 0;
}
