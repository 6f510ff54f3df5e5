#include "evaluation/TeamEvaluation.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "core/ValueFormats.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"
#include "timing/Ranking.h"

#include <algorithm>

namespace {

constexpr int Units = 100;
constexpr int NameLength = 20, TimeLength = 10;
constexpr double NoTime = 99999999;

QString blanks(int count) {
  return QString(count, QLatin1Char(' '));
}

// Quirk: club from before. A row without a club of its own keeps the one found in an earlier evaluation.
void findClubs(Store &store) {
  for (const int row : store.Teilnehmer.rows()) {
    const auto &participant = store.Teilnehmer[row];
    if (participant.LaeuferNr == 0)
      continue;
    const LaeuferSatz athlete = LaeuferLesen(store, participant.LaeuferNr);
    if (participant.VereinNr < 1 || participant.VereinNr > 3)
      continue;
    const int club = startClub(athlete, participant);
    store.mannschaften.VereinRecNr[row] = club >= 1 && club <= store.VereinAnzahl ? club : 0;
  }
}

/// Number of the unit that is this club; 0 if it has none.
int unitOfClub(const MannschaftsTabellen &tables, int club) {
  for (int k = 1; k <= Units; ++k)
    if (tables.WertVerein[k] == club)
      return k;
  return 0;
}

void numberClubs(MannschaftsTabellen &tables) {
  tables.WertVerein.fill(0);
  int last = 0;
  for (const int row : tables.VereinRecNr.rows()) {
    const int club = tables.VereinRecNr[row];
    if (club <= 0 || unitOfClub(tables, club) != 0)
      continue;
    last = std::min(last + 1, Units);
    tables.WertVerein[last] = club;
  }
}

void assignUnits(Store &store) {
  auto &tables = store.mannschaften;
  tables.WertVereinIdx.fill(0);
  for (const int row : store.Teilnehmer.rows()) {
    const auto &participant = store.Teilnehmer[row];
    if (participant.LaeuferNr != 0 && participant.VereinNr != 0 && tables.VereinRecNr[row] != 0)
      tables.WertVereinIdx[row] = unitOfClub(tables, tables.VereinRecNr[row]);
  }
}

bool isRanked(const TeilnehmerZeile &participant) {
  return participant.WertSumme != 0 && participant.LaeuferNr != 0 && statusSum(participant) <= 0;
}

bool passes(const MannschaftsTabellen &tables, int row, WertungsFilter filter) {
  switch (filter) {
  case WertungsFilter::NurMaennlich:
    return tables.TnGeschlecht[row] != Sex::Female;
  case WertungsFilter::NurWeiblich:
    return tables.TnGeschlecht[row] != Sex::Male;
  default:
    return true;
  }
}

QList<int> countingRows(const Store &store, WertungsFilter filter) {
  QList<int> rows;
  for (const int row : store.Teilnehmer.rows())
    if (isRanked(store.Teilnehmer[row]) && passes(store.mannschaften, row, filter))
      rows.append(row);
  return rows;
}

int unitOfRow(const Store &store, Einheit einheit, int row) {
  switch (einheit) {
  case Einheit::Verein:
    return store.mannschaften.WertVereinIdx[row];
  case Einheit::Mannschaft:
    return store.Teilnehmer[row].MannschaftNr;
  case Einheit::Gruppe:
    return store.Teilnehmer[row].GruppeNr;
  default:
    return 0;
  }
}

// Quirk: no kind of unit chosen. Then every row counts for every unit.
bool countsFor(const Store &store, Einheit einheit, int row, int unit) {
  return einheit == Einheit::Keine || unitOfRow(store, einheit, row) == unit;
}

bool exists(const Store &store, Einheit einheit, int unit) {
  switch (einheit) {
  case Einheit::Verein:
    return store.mannschaften.WertVerein[unit] != 0;
  case Einheit::Mannschaft:
    return !store.MannschaftName[unit].isEmpty();
  case Einheit::Gruppe:
    return !store.GruppeName[unit].isEmpty();
  default:
    return true;
  }
}

// Quirk: bold from an earlier sum. Only a filter takes the marks of an earlier sum away.
void prepareFilter(Store &store, WertungsFilter filter) {
  if (filter == WertungsFilter::Gemischt)
    return;
  store.mannschaften.WertGezaehlt.fill(0);
  for (const int row : store.Teilnehmer.rows()) {
    const auto &participant = store.Teilnehmer[row];
    if (isRanked(participant))
      store.mannschaften.TnGeschlecht[row] = LaeuferLesen(store, participant.LaeuferNr).Geschlecht;
  }
}

void takeBestTimes(Store &store, const Wertung &wertung) {
  store.mannschaften.WertErgebnis.fill(NoTime);
  for (const int row : countingRows(store, wertung.filter))
    if (const int unit = unitOfRow(store, wertung.einheit, row); unit != 0)
      store.mannschaften.WertErgebnis[unit] =
          std::min(store.mannschaften.WertErgebnis[unit], store.Teilnehmer[row].WertSumme);
}

void takeAverages(Store &store, const Wertung &wertung) {
  store.mannschaften.WertErgebnis.fill(0);
  Tabelle<int, 1, Units> counted("WertAnzahl");
  for (const int row : countingRows(store, wertung.filter)) {
    if (const int unit = unitOfRow(store, wertung.einheit, row); unit != 0) {
      store.mannschaften.WertErgebnis[unit] += store.Teilnehmer[row].WertSumme;
      ++counted[unit];
    }
  }
  for (int k = 1; k <= Units; ++k)
    if (counted[k] > 0)
      store.mannschaften.WertErgebnis[k] /= counted[k];
}

// The times are added as they are listed, rounded to hundredths.
double sumOfBest(Store &store, const QStringList &times, int wanted) {
  const auto best = times.first(std::min<qsizetype>(times.size(), wanted));
  double sum = 0;
  for (const QString &line : best) {
    sum += regionalNumber(QStringView(line).left(TimeLength)).value_or(0);
    store.mannschaften.WertGezaehlt[numberAtEnd(line)] = 1;
  }
  return sum + double(wanted - best.size()) * MissingMember;
}

void takeSumsOfBest(Store &store, const Wertung &wertung, const std::function<void(const QStringList &)> &workList) {
  store.mannschaften.WertErgebnis.fill(0);
  const QList<int> rows = countingRows(store, wertung.filter);
  for (int k = 1; k <= Units; ++k) {
    if (!exists(store, wertung.einheit, k))
      continue;
    SortedLines lines;
    for (const int row : rows)
      if (countsFor(store, wertung.einheit, row, k))
        lines.add(WertText10(store.Teilnehmer[row].WertSumme) + blanks(10) + plainText(row));
    const QStringList times = lines.take();
    store.mannschaften.WertErgebnis[k] = sumOfBest(store, times, wertung.bestCount);
    workList(times);
  }
}

QStringList unitLines(const Store &store, Einheit einheit) {
  SortedLines lines;
  for (int k = 1; k <= Units; ++k) {
    const double value = store.mannschaften.WertErgebnis[k];
    if (value != NoTime && value != 0)
      lines.add(WertText10(value) + QLatin1Char(' ') + unitName(store, einheit, k).left(NameLength) + blanks(5) +
                spacedText(k));
  }
  return lines.take();
}

// A club has those members too that only an earlier race put there.
bool isMember(const Store &store, Einheit einheit, int row, int unit) {
  return einheit == Einheit::Verein ? store.mannschaften.VereinRecNr[row] == store.mannschaften.WertVerein[unit]
                                    : countsFor(store, einheit, row, unit);
}

QString memberPrefix(const TeilnehmerZeile &participant, MemberOrder order) {
  switch (order) {
  case MemberOrder::ByTime:
    return WertText8(participant.WertSumme);
  case MemberOrder::ByClass:
    return rightAligned(plainText(participant.KlasseReihe), 3);
  default:
    return {};
  }
}

} // namespace

void prepareUnits(Store &store) {
  store.mannschaften.WertGezaehlt.fill(0);
  findClubs(store);
  ErgebnisRechnen(store);
  numberClubs(store.mannschaften);
  assignUnits(store);
}

QStringList clubLines(const Store &store) {
  QStringList lines;
  for (int k = 1; k <= Units; ++k)
    if (store.mannschaften.WertVerein[k] != 0)
      lines << trimmedBlanks(unitName(store, Einheit::Verein, k));
  return lines;
}

QStringList teamLines(const Store &store) {
  QStringList lines;
  for (int k = 1; k <= Units; ++k) {
    int members = 0;
    for (const int row : store.Teilnehmer.rows())
      members += store.Teilnehmer[row].MannschaftNr == k;
    if (members != 0 && exists(store, Einheit::Mannschaft, k))
      lines << rightAligned(plainText(members), 3) + QLatin1Char(' ') + store.MannschaftName[k] + blanks(12) +
                   spacedText(k);
  }
  return lines;
}

QStringList groupLines(const Store &store) {
  QStringList lines;
  for (int k = 1; k <= Units; ++k)
    if (exists(store, Einheit::Gruppe, k))
      lines << store.GruppeName[k];
  return lines;
}

QStringList evaluateUnits(Store &store, const Wertung &wertung,
                          const std::function<void(const QStringList &)> &workList) {
  ErgebnisRechnen(store);
  prepareFilter(store, wertung.filter);
  switch (wertung.art) {
  case WertungsArt::Bestzeit:
    takeBestTimes(store, wertung);
    break;
  case WertungsArt::Durchschnitt:
    takeAverages(store, wertung);
    break;
  case WertungsArt::ZeitsummeDerBesten:
    takeSumsOfBest(store, wertung, workList);
    break;
  }
  return unitLines(store, wertung.einheit);
}

QString unitName(const Store &store, Einheit einheit, int unit) {
  switch (einheit) {
  case Einheit::Verein:
    return VereinLesen(store, store.mannschaften.WertVerein[unit]).VereinKurz;
  case Einheit::Mannschaft:
    return store.MannschaftName[unit];
  case Einheit::Gruppe:
    return store.GruppeName[unit];
  default:
    return {};
  }
}

QStringList memberLines(const Store &store, const Wertung &wertung, int unit, MemberOrder order) {
  SortedLines lines;
  for (const int row : countingRows(store, wertung.filter)) {
    if (!isMember(store, wertung.einheit, row, unit))
      continue;
    const auto &participant = store.Teilnehmer[row];
    const QString name = LaeuferLesen(store, participant.LaeuferNr).Name;
    lines.add(memberPrefix(participant, order) + blanks(3) + trimmedBlanks(name) + blanks(7) + spacedText(row));
  }
  return lines.take();
}
