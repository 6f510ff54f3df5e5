#include "evaluation/Cup.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "evaluation/CupScoring.h"
#include "evaluation/Series.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"
#include "platform/TextFile.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace {

constexpr int PlaceOfAbsent = 99;
/// A handful of second times is no race.
constexpr int SecondTimesOfARound = 5;
constexpr int NumberLength = 5; // with the leading blank
constexpr std::array<qint16, 9> UsualPoints{20, 15, 10, 8, 5, 4, 3, 2, 1};

QString cupFile(const Store &store) {
  return store.DatenOrdner + QStringLiteral("Cup.dat");
}

/// Gathers the persons of the loaded races.
class Persons {
public:
  explicit Persons(Store &store) : m_store(store) { m_store.cup.CupLaeufer.fill(0); }

  void takeRace() {
    for (const int row : m_store.Teilnehmer.rows())
      if (const auto athlete = athleteOf(m_store, m_store.Teilnehmer[row]); athlete && !m_known.contains(athlete->Name))
        add(athlete->Name, m_store.Teilnehmer[row]);
  }

  const QStringList &names() const { return m_names; }

private:
  void add(const QString &name, const TeilnehmerZeile &participant) {
    m_known.insert(name);
    m_names.append(name);
    m_store.cup.CupLaeufer[int(m_names.size())] = participant.LaeuferNr;
    m_store.cup.CupKlasse[int(m_names.size())] = participant.KlasseGenau;
  }

  Store &m_store;
  QSet<QString> m_known;
  QStringList m_names;
};

// Quirk: class as stored. The classes are not assigned anew here; an untouched copy of a race holds other numbers.
QStringList gatherPersons(Store &store, const QList<int> &races) {
  Persons persons(store);
  for (const int race : races) {
    loadRaceTables(store, race);
    readOpenRace(store);
    keepClassNames(store);
    persons.takeRace();
  }
  return persons.names();
}

int secondTimes(const Store &store) {
  int count = 0;
  for (const int row : store.Teilnehmer.rows())
    count += store.Teilnehmer[row].Zeit2 > 0;
  return count;
}

void takeRound(Store &store) {
  const QHash<int, int> rows = rowsOfAthletes(store);
  const int round = ++store.cup.CupRunden;
  for (int person = 1; person <= store.cup.CupLaeufer.last() && store.cup.CupLaeufer[person] != 0; ++person) {
    const int row = rows.value(store.cup.CupLaeufer[person]);
    const auto &participant = store.Teilnehmer[row];
    store.cup.CupStatus(person, round) = row == 0 ? Status::NaS : participant.Status1;
    store.cup.CupZeit(person, round) = row == 0 ? 0 : participant.WertZeit1;
    store.cup.CupRang(person, round) = row == 0 ? PlaceOfAbsent : participant.Rang;
  }
}

void takeRounds(Store &store, int race, const Kriterien &kriterien) {
  loadRaceTables(store, race);
  const bool twoRounds = secondTimes(store) >= SecondTimesOfARound;
  dropSecondRun(store);
  rankUnder(store, kriterien);
  takeRound(store);
  if (!twoRounds)
    return;
  loadRaceTables(store, race);
  promoteSecondRun(store);
  rankUnder(store, kriterien);
  takeRound(store);
}

} // namespace

CupResult evaluateCup(Store &store, const QList<int> &races, qint64 strikes) {
  CupResult result;
  result.names = gatherPersons(store, races);
  const Kriterien kriterien = criteriaInForce(store);
  store.cup.CupRunden = 0;
  for (qsizetype line = races.size(); line-- > 0;)
    takeRounds(store, races[line], kriterien);
  const int persons = int(result.names.size());
  result.struck = int(std::min<qint64>(std::abs(strikes), store.cup.CupRunden));
  strikeResults(store.cup, persons, result.struck);
  awardPoints(store.cup, persons);
  result.keys = cupKeys(store.cup, result.names);
  result.lines = cupLines(store.cup, result.keys, result.names);
  return result;
}

QStringList personLines(const QStringList &names) {
  SortedLines lines;
  for (const QString &name : names)
    lines.add(name);
  return lines.take();
}

QStringList pointsLines(const CupTabellen &cup, bool negativeToo) {
  QStringList lines;
  for (const int place : cup.CupPunkteTabelle.rows())
    if (const int points = cup.CupPunkteTabelle[place]; points > 0 || (negativeToo && points != 0))
      lines << QStringLiteral("Platz") + spacedText(place) + QStringLiteral(": ") + spacedText(points) +
                   QStringLiteral(" P.");
  return lines;
}

int heldPlace(const QString &typed) {
  return int(std::clamp<qint64>(wholeNumber(typed), 1, decltype(CupTabellen::CupPunkteTabelle)::last()));
}

QString pointsText(const CupTabellen &cup, int place) {
  const int points = cup.CupPunkteTabelle[place];
  return points == 0 ? QString() : plainText(points);
}

bool storePoints(CupTabellen &cup, int place, const QString &typed) {
  const auto points = shortNumber(typed);
  if (points)
    cup.CupPunkteTabelle[place] = *points;
  return points.has_value();
}

CupChoice loadCup(Store &store) {
  store.cup.CupPunkteTabelle.fill(0);
  int place = 0;
  for (const qint16 points : UsualPoints)
    store.cup.CupPunkteTabelle[++place] = points;
  CupChoice choice;
  auto file = TextReader::ifThere(cupFile(store));
  if (!file)
    return choice;
  file->lineInto(choice.name);
  for (const int row : store.cup.CupPunkteTabelle.rows())
    file->numberInto(store.cup.CupPunkteTabelle[row]);
  while (!file->atEnd())
    file->numberInto(choice.races.emplaceBack(0));
  return choice;
}

QByteArray cupBytes(const CupTabellen &cup, const CupChoice &choice) {
  TextWriter file;
  file.text(trimmedBlanks(choice.name));
  for (const int place : cup.CupPunkteTabelle.rows())
    file.number(cup.CupPunkteTabelle[place]);
  for (const int race : choice.races)
    file.number(race);
  return file.bytes();
}

void saveCup(const Store &store, const CupChoice &choice) {
  replaceFile(cupFile(store), cupBytes(store.cup, choice));
}

int cupRaceOfLine(const QString &line) {
  return int(wholeNumber(QStringView(line).left(NumberLength)));
}
