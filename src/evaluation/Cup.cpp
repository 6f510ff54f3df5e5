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

constexpr int Absent = 1, PlaceOfAbsent = 99;
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
  explicit Persons(Store &store) : m_store(store) { m_store.CupLaeufer.fill(0); }

  void takeRace() {
    for (int row = 1; row <= 1000; ++row)
      if (const auto athlete = athleteOf(m_store, m_store.Teilnehmer[row]); athlete && !m_known.contains(athlete->Name))
        add(athlete->Name, m_store.Teilnehmer[row]);
  }

  const QStringList &names() const { return m_names; }

private:
  void add(const QString &name, const TeilnehmerZeile &participant) {
    m_known.insert(name);
    m_names.append(name);
    m_store.CupLaeufer[int(m_names.size())] = participant.LaeuferNr;
    m_store.CupKlasse[int(m_names.size())] = participant.KlasseGenau;
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
  for (int row = 1; row <= 1000; ++row)
    count += store.Teilnehmer[row].Zeit2 > 0;
  return count;
}

void takeRound(Store &store) {
  const QHash<int, int> rows = zeilenDerLaeufer(store);
  const int round = ++store.CupRunden;
  for (int person = 1; person <= 1000 && store.CupLaeufer[person] != 0; ++person) {
    const int row = rows.value(store.CupLaeufer[person]);
    const auto &participant = store.Teilnehmer[row];
    store.CupStatus(person, round) = row == 0 ? Absent : participant.Status1;
    store.CupZeit(person, round) = row == 0 ? 0 : participant.WertZeit1;
    store.CupRang(person, round) = row == 0 ? PlaceOfAbsent : participant.Rang;
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
  store.CupRunden = 0;
  for (qsizetype line = races.size(); line-- > 0;)
    takeRounds(store, races[line], kriterien);
  const int persons = int(result.namen.size());
  result.gestrichen = int(std::min<qint64>(std::abs(streichresultate), store.CupRunden));
  resultateStreichen(store, persons, result.gestrichen);
  punkteVergeben(store, persons);
  result.schluessel = cupSchluessel(store, result.namen);
  result.zeilen = cupZeilen(store, result.schluessel, result.namen);
  return result;
}

QStringList teilnehmerZeilen(const QStringList &names) {
  SortedLines lines;
  for (const QString &name : names)
    lines.add(name);
  return lines.take();
}

QStringList punkteZeilen(const Store &store, bool auchNegative) {
  QStringList lines;
  for (int place = 1; place <= 100; ++place)
    if (const int points = store.CupPunkteTabelle[place]; points > 0 || (auchNegative && points != 0))
      lines << QStringLiteral("Platz") + spacedText(place) + QStringLiteral(": ") + spacedText(points) +
                   QStringLiteral(" P.");
  return lines;
}

CupAuswahl cupLaden(Store &store) {
  store.CupPunkteTabelle.fill(0);
  int place = 0;
  for (const qint16 points : UsualPoints)
    store.CupPunkteTabelle[++place] = points;
  CupAuswahl auswahl;
  auto file = TextReader::ifThere(cupFile(store));
  if (!file)
    return auswahl;
  file->lineInto(auswahl.bezeichnung);
  for (place = 1; place <= 100; ++place)
    file->numberInto(store.CupPunkteTabelle[place]);
  while (!file->atEnd())
    file->numberInto(auswahl.rennen.emplaceBack(0));
  return auswahl;
}

QByteArray cupBytes(const Store &store, const CupAuswahl &auswahl) {
  TextWriter file;
  file.text(trimmedBlanks(auswahl.bezeichnung));
  for (int place = 1; place <= 100; ++place)
    file.number(store.CupPunkteTabelle[place]);
  for (const int race : auswahl.rennen)
    file.number(race);
  return file.bytes();
}

void cupSpeichern(const Store &store, const CupAuswahl &auswahl) {
  replaceFile(cupFile(store), cupBytes(store, auswahl));
}

int rennenDesCups(const QString &line) {
  return int(wholeNumber(QStringView(line).left(NumberLength)));
}
