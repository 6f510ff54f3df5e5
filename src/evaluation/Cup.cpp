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

// The class is the one stored with the race; that of an untouched copy of a race may be wrong. Meant.
QStringList gatherPersons(Store &store, const QList<int> &races) {
  Persons persons(store);
  for (const int race : races) {
    rennenLaden(store, race);
    rennsatzLesen(store);
    klassenNamenMerken(store);
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
  const QHash<int, int> rows = zeilenDerLaeufer(store);
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
  rennenLaden(store, race);
  const bool twoRounds = secondTimes(store) >= SecondTimesOfARound;
  zweitenLaufStreichen(store);
  werten(store, kriterien);
  takeRound(store);
  if (!twoRounds)
    return;
  rennenLaden(store, race);
  zweitenLaufVorziehen(store);
  werten(store, kriterien);
  takeRound(store);
}

} // namespace

CupErgebnis cupAuswerten(Store &store, const QList<int> &races, qint64 streichresultate) {
  CupErgebnis result;
  result.namen = gatherPersons(store, races);
  const Kriterien kriterien = kriterienMerken(store);
  store.cup.CupRunden = 0;
  for (qsizetype line = races.size(); line-- > 0;)
    takeRounds(store, races[line], kriterien);
  const int persons = int(result.namen.size());
  result.gestrichen = int(std::min<qint64>(std::abs(streichresultate), store.cup.CupRunden));
  resultateStreichen(store.cup, persons, result.gestrichen);
  punkteVergeben(store.cup, persons);
  result.schluessel = cupSchluessel(store.cup, result.namen);
  result.zeilen = cupZeilen(store.cup, result.schluessel, result.namen);
  return result;
}

QStringList teilnehmerZeilen(const QStringList &names) {
  SortedLines lines;
  for (const QString &name : names)
    lines.add(name);
  return lines.take();
}

QStringList punkteZeilen(const CupTabellen &cup, bool auchNegative) {
  QStringList lines;
  for (const int place : cup.CupPunkteTabelle.rows())
    if (const int points = cup.CupPunkteTabelle[place]; points > 0 || (auchNegative && points != 0))
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

CupAuswahl cupLaden(Store &store) {
  store.cup.CupPunkteTabelle.fill(0);
  int place = 0;
  for (const qint16 points : UsualPoints)
    store.cup.CupPunkteTabelle[++place] = points;
  CupAuswahl auswahl;
  auto file = TextReader::ifThere(cupFile(store));
  if (!file)
    return auswahl;
  file->lineInto(auswahl.bezeichnung);
  for (const int row : store.cup.CupPunkteTabelle.rows())
    file->numberInto(store.cup.CupPunkteTabelle[row]);
  while (!file->atEnd())
    file->numberInto(auswahl.rennen.emplaceBack(0));
  return auswahl;
}

QByteArray cupBytes(const CupTabellen &cup, const CupAuswahl &auswahl) {
  TextWriter file;
  file.text(trimmedBlanks(auswahl.bezeichnung));
  for (const int place : cup.CupPunkteTabelle.rows())
    file.number(cup.CupPunkteTabelle[place]);
  for (const int race : auswahl.rennen)
    file.number(race);
  return file.bytes();
}

void cupSpeichern(const Store &store, const CupAuswahl &auswahl) {
  replaceFile(cupFile(store), cupBytes(store.cup, auswahl));
}

int rennenDesCups(const QString &line) {
  return int(wholeNumber(QStringView(line).left(NumberLength)));
}
