#include "evaluation/CupScoring.h"

#include "core/Store.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int LastPlaceWithPoints = 100;
constexpr int HeadLength = 26, NameLength = 20, RoundLength = 6;

bool isStruck(const CupTabellen &cup, int person, int round) {
  return cup.CupStreich(person, round) == 1;
}

/// The last round without a result.
std::optional<int> lastMissed(const CupTabellen &cup, int person) {
  for (int round = cup.CupRunden; round >= 1; --round)
    if (cup.CupStatus(person, round) > Status::Ok && !isStruck(cup, person, round))
      return round;
  return {};
}

int worstPlace(const CupTabellen &cup, int person) {
  int worst = 0;
  for (int round = 1; round <= cup.CupRunden; ++round)
    if (!isStruck(cup, person, round))
      worst = std::max(worst, cup.CupRang(person, round));
  return worst;
}

/// The slowest round with the worst place; a time of 0 is never the slowest.
std::optional<int> slowestOfWorst(const CupTabellen &cup, int person) {
  const int worst = worstPlace(cup, person);
  std::optional<int> found;
  double slowest = 0;
  for (int round = 1; round <= cup.CupRunden; ++round) {
    if (isStruck(cup, person, round) || cup.CupRang(person, round) != worst || cup.CupZeit(person, round) <= slowest)
      continue;
    slowest = cup.CupZeit(person, round);
    found = round;
  }
  return found;
}

void strikeOne(CupTabellen &cup, int person) {
  auto round = lastMissed(cup, person);
  if (!round)
    round = slowestOfWorst(cup, person);
  if (round)
    cup.CupStreich(person, *round) = 1;
}

int pointsOf(const CupTabellen &cup, int person, int round) {
  const int place = cup.CupRang(person, round);
  if (cup.CupStatus(person, round) != Status::Ok || isStruck(cup, person, round) || place == 0 ||
      place > LastPlaceWithPoints)
    return 0;
  return cup.CupPunkteTabelle[place];
}

QString headLine(const CupTabellen &cup, int klasse) {
  QString line = cup.CupKlasseName.valueOrEmpty(klasse).left(HeadLength).leftJustified(HeadLength, QLatin1Char('-'));
  for (int round = 1; round <= cup.CupRunden; ++round)
    line += (QStringLiteral("-----R") + plainText(round)).right(RoundLength);
  return line + QStringLiteral("-Summe");
}

QString personLine(const CupTabellen &cup, int person, int place, const QString &name) {
  QString line = rightAligned(plainText(place), 4) + QStringLiteral(". ") + padded(name, NameLength);
  for (int round = 1; round <= cup.CupRunden; ++round)
    line += rightAligned(isStruck(cup, person, round) ? QStringLiteral("X") : plainText(cup.CupPunkte(person, round)),
                         RoundLength);
  return line + rightAligned(plainText(cup.CupPunkte(person, 0)), RoundLength);
}

} // namespace

void strikeResults(CupTabellen &cup, int persons, int count) {
  cup.CupStreich.fill(0);
  for (int person = 1; person <= persons; ++person)
    for (int stroke = 0; stroke < count; ++stroke)
      strikeOne(cup, person);
}

void awardPoints(CupTabellen &cup, int persons) {
  for (int person = 1; person <= persons; ++person) {
    cup.CupPunkte(person, 0) = 0;
    for (int round = 1; round <= cup.CupRunden; ++round) {
      cup.CupPunkte(person, round) = pointsOf(cup, person, round);
      cup.CupPunkte(person, 0) += cup.CupPunkte(person, round);
    }
  }
}

QStringList cupKeys(const CupTabellen &cup, const QStringList &names) {
  SortedLines lines;
  for (int person = 1; person <= names.size(); ++person)
    lines.add(rightAligned(plainText(cup.CupKlasse[person]), 3) +
              rightAligned(plainText(9999 - cup.CupPunkte(person, 0)), 4) + QLatin1Char(' ') + names[person - 1] +
              QStringLiteral("      ") + spacedText(person));
  return lines.take();
}

int CupPlaces::next(int total) {
  ++m_running;
  if (m_running == 1 || total != m_lastTotal)
    m_shown = m_running;
  m_lastTotal = total;
  return m_shown;
}

QStringList cupLines(const CupTabellen &cup, const QStringList &keys, const QStringList &names) {
  QStringList lines;
  CupPlaces places;
  int previousClass = -1;
  for (const QString &key : keys) {
    const int person = numberAtEnd(key);
    if (const int klasse = cup.CupKlasse[person]; klasse != previousClass) {
      previousClass = klasse;
      places.beginClass();
      lines << headLine(cup, klasse);
    }
    lines << personLine(cup, person, places.next(cup.CupPunkte(person, 0)), names[person - 1]);
  }
  return lines;
}
