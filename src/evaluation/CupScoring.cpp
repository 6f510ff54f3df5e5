#include "evaluation/CupScoring.h"

#include "platform/Numbers.h"
#include "platform/SortedLines.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int LastPlaceWithPoints = 100;
constexpr int PersonLength = 5, HeadLength = 26, NameLength = 20, RoundLength = 6;

bool isStruck(const Store &store, int person, int round) {
  return store.CupStreich(person, round) == 1;
}

/// The last round without a result.
std::optional<int> lastMissed(const Store &store, int person) {
  for (int round = store.CupRunden; round >= 1; --round)
    if (store.CupStatus(person, round) > 0 && !isStruck(store, person, round))
      return round;
  return {};
}

int worstPlace(const Store &store, int person) {
  int worst = 0;
  for (int round = 1; round <= store.CupRunden; ++round)
    if (!isStruck(store, person, round))
      worst = std::max(worst, store.CupRang(person, round));
  return worst;
}

/// The slowest round with the worst place; a time of 0 is never the slowest.
std::optional<int> slowestOfWorst(const Store &store, int person) {
  const int worst = worstPlace(store, person);
  std::optional<int> found;
  double slowest = 0;
  for (int round = 1; round <= store.CupRunden; ++round) {
    if (isStruck(store, person, round) || store.CupRang(person, round) != worst ||
        store.CupZeit(person, round) <= slowest)
      continue;
    slowest = store.CupZeit(person, round);
    found = round;
  }
  return found;
}

void strikeOne(Store &store, int person) {
  auto round = lastMissed(store, person);
  if (!round)
    round = slowestOfWorst(store, person);
  if (round)
    store.CupStreich(person, *round) = 1;
}

int pointsOf(const Store &store, int person, int round) {
  const int place = store.CupRang(person, round);
  if (store.CupStatus(person, round) != 0 || isStruck(store, person, round) || place == 0 ||
      place > LastPlaceWithPoints)
    return 0;
  return store.CupPunkteTabelle[place];
}

QString headLine(const Store &store, int klasse) {
  QString line = store.CupKlasseName.valueOrEmpty(klasse).left(HeadLength).leftJustified(HeadLength, QLatin1Char('-'));
  for (int round = 1; round <= store.CupRunden; ++round)
    line += (QStringLiteral("-----R") + plainText(round)).right(RoundLength);
  return line + QStringLiteral("-Summe");
}

QString personLine(const Store &store, int person, int place, const QString &name) {
  QString line = rightAligned(plainText(place), 4) + QStringLiteral(". ") + padded(name, NameLength);
  for (int round = 1; round <= store.CupRunden; ++round)
    line += rightAligned(
        isStruck(store, person, round) ? QStringLiteral("X") : plainText(store.CupPunkte(person, round)), RoundLength);
  return line + rightAligned(plainText(store.CupPunkte(person, 0)), RoundLength);
}

} // namespace

void resultateStreichen(Store &store, int persons, int count) {
  store.CupStreich.fill(0);
  for (int person = 1; person <= persons; ++person)
    for (int stroke = 0; stroke < count; ++stroke)
      strikeOne(store, person);
}

void punkteVergeben(Store &store, int persons) {
  for (int person = 1; person <= persons; ++person) {
    store.CupPunkte(person, 0) = 0;
    for (int round = 1; round <= store.CupRunden; ++round) {
      store.CupPunkte(person, round) = pointsOf(store, person, round);
      store.CupPunkte(person, 0) += store.CupPunkte(person, round);
    }
  }
}

QStringList cupSchluessel(const Store &store, const QStringList &names) {
  SortedLines lines;
  for (int person = 1; person <= names.size(); ++person)
    lines.add(rightAligned(plainText(store.CupKlasse[person]), 3) +
              rightAligned(plainText(9999 - store.CupPunkte(person, 0)), 4) + QLatin1Char(' ') + names[person - 1] +
              QStringLiteral("      ") + spacedText(person));
  return lines.take();
}

int cupPerson(const QString &key) {
  return rowAtEnd(key, PersonLength);
}

int CupPlatz::naechster(int total) {
  ++m_running;
  if (m_running == 1 || total != m_lastTotal)
    m_shown = m_running;
  m_lastTotal = total;
  return m_shown;
}

QStringList cupZeilen(const Store &store, const QStringList &keys, const QStringList &names) {
  QStringList lines;
  CupPlatz places;
  int lastKlasse = -1;
  for (const QString &key : keys) {
    const int person = cupPerson(key);
    if (const int klasse = store.CupKlasse[person]; klasse != lastKlasse) {
      lastKlasse = klasse;
      places.neueKlasse();
      lines << headLine(store, klasse);
    }
    lines << personLine(store, person, places.naechster(store.CupPunkte(person, 0)), names[person - 1]);
  }
  return lines;
}
