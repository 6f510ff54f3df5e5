#include "raceprep/NameLists.h"

#include "platform/Numbers.h"

#include <algorithm>

int nameNumber(const QString &text) {
  return int(std::clamp<qint64>(wholeNumber(text), 1, 100));
}

QStringList nameLines(const Tabelle<QString, 0, 100> &names) {
  QStringList lines;
  for (const int number : names.rows())
    if (!names[number].isEmpty())
      lines.append(plainText(number) + QLatin1Char(' ') + names[number]);
  return lines;
}
