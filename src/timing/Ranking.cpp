#include "timing/Ranking.h"

#include "core/Classes.h"
#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "core/ValueFormats.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

#include <QStringBuilder>

#include <algorithm>

namespace {

constexpr int GroupLength = 3;
constexpr auto ValueMask = "0####.#0";
constexpr double NoBestTime = 99999;
constexpr double NoBestTimeFirstRun = 999999; // Quirk: no best time of the men. One digit more than the women have.
constexpr int ReversedPlaces = 15;
constexpr double ReversalPoint = 50000; // seconds

bool anySecondTime(const Store &store) {
  for (const int row : store.Teilnehmer.rows())
    if (store.Teilnehmer[row].Zeit2 > 0)
      return true;
  return false;
}

void clearValues(TeilnehmerZeile &participant) {
  participant.KlasseKopf = 0;
  participant.WertZeit1 = participant.WertZeit2 = participant.WertSumme = 0;
}

// Quirk: one second time. As soon as one person has one, everybody without it is out; whether the race has two runs
// does not matter.
bool hasResult(const TeilnehmerZeile &participant, bool secondTimesExist) {
  return statusSum(participant) <= 0 && participant.Zeit1 != 0 && !(secondTimesExist && participant.Zeit2 == 0);
}

bool passes(std::optional<int> clubFilter, const LaeuferSatz &athlete, const TeilnehmerZeile &participant) {
  return !clubFilter || (*clubFilter >= 1 && startClub(athlete, participant) == *clubFilter);
}

// Guests and men may have a surcharge on each run; added one after the other, as ties compare the exact sum.
double withSurcharges(const RennenSatz &race, const LaeuferSatz &athlete, const TeilnehmerZeile &participant,
                      double seconds) {
  if (participant.Gast == 1)
    seconds += race.ZuschlagGast;
  if (athlete.Geschlecht == Sex::Male)
    seconds += race.ZuschlagMann;
  return seconds;
}

void setValues(const RennenSatz &race, const LaeuferSatz &athlete, TeilnehmerZeile &participant) {
  participant.WertZeit1 = withSurcharges(race, athlete, participant, participant.Zeit1);
  participant.WertZeit2 =
      participant.Zeit2 > 0 ? withSurcharges(race, athlete, participant, participant.Zeit2) : participant.Zeit2;
  participant.WertSumme = participant.WertZeit1;
  if (race.ZweiDurchgaenge == 1)
    participant.WertSumme += participant.WertZeit2;
}

// Points are single precision and round by their seven digits.
// Quirk: lowest points win. They are ranked like times.
QString valueKey(const Store &store, const TeilnehmerZeile &participant, double seconds) {
  return store.Rennen.WertZeit == 1 ? masked(seconds, ValueMask) : masked(participant.Punkte, ValueMask);
}

QString rankKey(const Store &store, int row, const QString &name, double seconds) {
  const auto &participant = store.Teilnehmer[row];
  return Reihungsschluessel(store, participant) % valueKey(store, participant, seconds) % name % QLatin1String("   ") %
         plainText(row);
}

int groupOf(const QString &key) {
  return int(wholeNumber(QStringView(key).left(GroupLength)));
}

/// Takes the sorted keys one after the other and gives places and the lines of the provisional result.
class ResultWalk {
public:
  explicit ResultWalk(Store &store) : m_store(store) {}

  void take(const QString &key) {
    const int row = numberAtEnd(key);
    auto &participant = m_store.Teilnehmer[row];
    m_store.ranking.RangListe[++m_line] = row;
    const LaeuferSatz athlete = LaeuferLesen(m_store, participant.LaeuferNr);
    if (const int group = groupOf(key); group != m_group)
      startGroup(group, participant);
    takeBestTime(athlete.Geschlecht, participant);
    setPlace(participant);
    if (participant.KlasseKopf == 1)
      m_store.ranking.ErgebnisZeilen << QString() << headLine();
    m_store.ranking.ErgebnisZeilen << resultLine(athlete.Name, participant);
  }

private:
  void startGroup(int group, TeilnehmerZeile &participant) {
    m_group = group;
    m_place = 0;
    m_lastRang = 1;
    m_lastTime = -1;
    participant.KlasseKopf = 1;
  }

  void takeBestTime(int sex, const TeilnehmerZeile &participant) {
    if (participant.KlasseNr - 1 < m_store.Rennen.BestzeitAbKlasse)
      return;
    if (sex == Sex::Female)
      m_store.ranking.BestzeitDamen = std::min(m_store.ranking.BestzeitDamen, participant.WertSumme);
    if (sex == Sex::Male)
      m_store.ranking.BestzeitHerren = std::min(m_store.ranking.BestzeitHerren, participant.WertSumme);
  }

  // Quirk: tie by the first run. It alone decides on a shared place, also with two runs and with points.
  void setPlace(TeilnehmerZeile &participant) {
    ++m_place;
    participant.Rang = qint16(participant.WertZeit1 == m_lastTime ? m_lastRang : m_place);
    m_lastTime = participant.WertZeit1;
    m_lastRang = participant.Rang;
    if (m_place == 1)
      m_bestOfGroup = participant.WertSumme;
  }

  QString headLine() const {
    return m_store.Rennen.ZweiDurchgaenge == 1
               ? QStringLiteral("Rang--Name------------------Startnr.-Klasse----------Zeit1----Zeit2----Summe----Diff.")
               : QStringLiteral("Rang--Name------------------Startnr.-Klasse-----------Zeit----Diff.");
  }

  // Quirk: running count in the listing. It stands here and not the shared place.
  QString resultLine(const QString &name, const TeilnehmerZeile &participant) const {
    const QString klasse = m_store.Rennen.WertKlassen == 1
                               ? m_store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau)
                               : m_store.GruppeName[participant.GruppeNr];
    const QLatin1Char gap(' ');
    return rightAligned(plainText(m_place), 4) % QLatin1String(". ") % padded(name, 25) %
           rightAligned(plainText(participant.StartNr), 5) % gap % padded(klasse, 12) % gap % values(participant);
  }

  QString values(const TeilnehmerZeile &participant) const {
    if (m_store.Rennen.WertZeit != 1)
      return masked(participant.Punkte, ValueMask);
    const QLatin1Char gap(' ');
    QString runs;
    if (m_store.Rennen.ZweiDurchgaenge == 1)
      runs = WertText8(participant.WertZeit1) % gap % WertText8(participant.WertZeit2) % gap;
    return runs % WertText8(participant.WertSumme) % gap % WertText8(participant.WertSumme - m_bestOfGroup);
  }

  Store &m_store;
  int m_line = 0, m_group = -1, m_place = 0, m_lastRang = -1;
  double m_lastTime = -1, m_bestOfGroup = 0;
};

void resetPlaces(Store &store) {
  store.ranking.RangListe.fill(0);
  for (const int row : store.Teilnehmer.rows())
    store.Teilnehmer[row].Rang = 0;
  store.ranking.BestzeitDamen = store.ranking.BestzeitHerren = NoBestTime;
}

// Quirk: last time of the group before. It is not reset at a new group, and a group that begins with it begins with
// place 1 all the same.
void walkFirstRun(Store &store, const QStringList &keys) {
  int line = 0, lastGroup = -1, place = 0;
  double lastTime = 0;
  for (const QString &key : keys) {
    const int row = numberAtEnd(key);
    auto &participant = store.Teilnehmer[row];
    store.ranking.RangListe[++line] = row;
    if (const int group = groupOf(key); group != lastGroup) {
      lastGroup = group;
      place = 0;
    }
    if (participant.WertZeit1 != lastTime)
      ++place;
    lastTime = participant.WertZeit1;
    place = std::max(place, 1);
    participant.Rang = qint16(place);
  }
}

} // namespace

void ErgebnisRechnen(Store &store, std::optional<int> clubFilter) {
  store.ranking.ErgebnisZeilen.clear();
  SortedLines keys;
  const bool secondTimesExist = anySecondTime(store);
  for (const int row : store.Teilnehmer.rows()) {
    auto &participant = store.Teilnehmer[row];
    clearValues(participant);
    if (!hasResult(participant, secondTimesExist))
      continue;
    const auto athlete = athleteOf(store, participant);
    if (!athlete || !passes(clubFilter, *athlete, participant))
      continue;
    setValues(store.Rennen, *athlete, participant);
    keys.add(rankKey(store, row, athlete->Name, participant.WertSumme));
  }
  resetPlaces(store);
  ResultWalk walk(store);
  for (const QString &key : keys.take())
    walk.take(key);
}

void Rangfolge1(Store &store) {
  SortedLines keys;
  for (const int row : store.Teilnehmer.rows()) {
    auto &participant = store.Teilnehmer[row];
    participant.WertZeit1 = 0;
    if (participant.Status1 > Status::Ok)
      continue;
    if (const auto athlete = athleteOf(store, participant)) {
      participant.WertZeit1 = withSurcharges(store.Rennen, *athlete, participant, participant.Zeit1);
      keys.add(rankKey(store, row, athlete->Name, participant.WertZeit1));
    }
  }
  store.ranking.ErgebnisZeilen.clear();
  store.ranking.BestzeitDamen = NoBestTime;
  store.ranking.BestzeitHerren = NoBestTimeFirstRun;
  walkFirstRun(store, keys.take());
}

QString secondRunKey(const TeilnehmerZeile &participant) {
  const double time = participant.WertZeit1;
  return masked(participant.Rang <= ReversedPlaces ? ReversalPoint - time : ReversalPoint + time, ValueMask);
}
