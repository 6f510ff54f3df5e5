#include "raceprep/ClassRules.h"

#include "core/Classes.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int FirstYear = 1900;
constexpr int LowestYear = std::numeric_limits<int>::min(); // a file may hold any
constexpr int LastRow = 20;
constexpr int NameWidth = 20;

int lastNamedRow(const Store &store) {
  int row = LastRow;
  while (row > 0 && store.KlasseName[row].isEmpty())
    --row;
  return row;
}

void setOuterLimits(Store &store, int last) {
  store.KlasseBis[1] = store.umgebung.today().year();
  if (last > 0)
    store.KlasseVon[last] = FirstYear;
}

void clearBehind(Store &store, int last) {
  for (int row = last + 1; row <= LastRow; ++row) {
    store.KlasseName[row].clear();
    store.KlasseVon[row] = store.KlasseBis[row] = 0;
  }
}

// The first limits of all rows come before the second ones of any: a typed last year lives only if it lies below the
// first, and a class added behind the last one takes two runs to get its years. Both are meant.
void closeRanks(Store &store, int last) {
  for (int row = 1; row <= last; ++row)
    store.KlasseVon[row] = std::min(store.KlasseVon[row], store.KlasseBis[row]);
  for (int row = 1; row < last; ++row)
    store.KlasseBis[row + 1] = std::max(store.KlasseVon[row], LowestYear + 1) - 1;
}

QString classLine(const Store &store, int row) {
  return QStringLiteral("%1 %2  %3 - %4  (%5/%6)")
      .arg(rightAligned(plainText(row), 2), padded(store.KlasseName[row], NameWidth), plainText(store.KlasseVon[row]),
           plainText(store.KlasseBis[row]), plainText(store.KlasseAnzahlOk[row]), plainText(store.KlasseAnzahl[row]));
}

QStringList classLines(const Store &store) {
  QStringList lines;
  for (int row = 1; row <= LastRow; ++row)
    if (!store.KlasseName[row].isEmpty())
      lines << classLine(store, row);
  return lines;
}

} // namespace

QStringList KlassenAktualisieren(Store &store) {
  const int last = lastNamedRow(store);
  setOuterLimits(store, last);
  clearBehind(store, last);
  closeRanks(store, last);
  KlassenZuordnen(store);
  return classLines(store);
}

void deleteClass(Store &store, int row) {
  for (int i = row; i <= LastRow; ++i) {
    store.KlasseName[i] = store.KlasseName[i + 1];
    store.KlasseVon[i] = store.KlasseVon[i + 1];
    store.KlasseBis[i] = store.KlasseBis[i + 1];
  }
}

int heldClassNumber(const QString &text) {
  return int(std::clamp<qint64>(wholeNumber(text), 1, LastEditableClass));
}

int heldYear(const Store &store, const QString &text) {
  const qint64 year = std::min<qint64>(wholeNumber(text), store.umgebung.today().year());
  return int(std::max<qint64>(year, FirstYear));
}
