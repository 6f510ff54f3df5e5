#include "raceprep/ClassRules.h"

#include "core/Classes.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int FirstYear = 1900;
constexpr int LowestYear = std::numeric_limits<int>::min(); // a file may hold any
constexpr int LastClass = 20;
constexpr int NameWidth = 20;

int lastNamedRow(const Store &store) {
  int klasse = LastClass;
  while (klasse > 0 && store.KlasseName[klasse].isEmpty())
    --klasse;
  return klasse;
}

void setOuterLimits(Store &store, int last) {
  store.KlasseBis[1] = store.umgebung.today().year();
  if (last > 0)
    store.KlasseVon[last] = FirstYear;
}

void clearBehind(Store &store, int last) {
  for (int klasse = last + 1; klasse <= LastClass; ++klasse) {
    store.KlasseName[klasse].clear();
    store.KlasseVon[klasse] = store.KlasseBis[klasse] = 0;
  }
}

// Quirk: years in one pass. The first limits of all rows come before the second ones of any: a typed last year lives
// only if it lies below the first, and a class added behind the last one takes two runs to get its years.
void closeRanks(Store &store, int last) {
  for (int klasse = 1; klasse <= last; ++klasse)
    store.KlasseVon[klasse] = std::min(store.KlasseVon[klasse], store.KlasseBis[klasse]);
  for (int klasse = 1; klasse < last; ++klasse)
    store.KlasseBis[klasse + 1] = std::max(store.KlasseVon[klasse], LowestYear + 1) - 1;
}

QString classLine(const Store &store, int klasse) {
  return QStringLiteral("%1 %2  %3 - %4  (%5/%6)")
      .arg(rightAligned(plainText(klasse), 2), padded(store.KlasseName[klasse], NameWidth),
           plainText(store.KlasseVon[klasse]), plainText(store.KlasseBis[klasse]),
           plainText(store.KlasseAnzahlOk[klasse]), plainText(store.KlasseAnzahl[klasse]));
}

QStringList classLines(const Store &store) {
  QStringList lines;
  for (int klasse = 1; klasse <= LastClass; ++klasse)
    if (!store.KlasseName[klasse].isEmpty())
      lines << classLine(store, klasse);
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

void deleteClass(Store &store, int klasse) {
  for (int i = klasse; i <= LastClass; ++i) {
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
