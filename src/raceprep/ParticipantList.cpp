#include "raceprep/ParticipantList.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "masterdata/ClubRegister.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

#include <array>
#include <tuple>

namespace {

constexpr int LastRow = decltype(Store::Teilnehmer)::last();
constexpr int ClubTextLength = 20;
constexpr int RecordDigits = 6, RowDigits = 4;

QString clubText(const Store &store, const LaeuferSatz &athlete, const TeilnehmerZeile &participant) {
  const auto club = clubOf(store, athlete, participant);
  return club ? QStringLiteral(" --- ") + trimmedBlanks(club->VereinKurz).left(ClubTextLength) : QString();
}

QString sortPrefix(int row, int order) {
  if (order != ByEntry && order != LatestFirst)
    return {};
  return plainText(order == ByEntry ? row : LastRow - row) + QStringLiteral("  ");
}

QString participantLine(const Store &store, int row, const LaeuferSatz &athlete, int order) {
  const auto &participant = store.Teilnehmer[row];
  return sortPrefix(row, order) + athlete.Name + QStringLiteral("   ") + clubText(store, athlete, participant) +
         QString(50, QLatin1Char(' ')) + masked(row, "0###") + masked(participant.LaeuferNr, "0#####");
}

// The columns that belong to the participant and move with him.
template <typename Row> auto ownColumns(Row &row) {
  return std::tie(row.LaeuferNr, row.StartNr, row.KlasseNr, row.Punkte, row.Zeit1, row.Zeit2, row.Status1, row.Status2,
                  row.VereinNr, row.GruppeNr, row.MannschaftNr, row.Gast, row.Bezahlt, row.Boarder);
}

} // namespace

QString athleteSearch(const QString &typed) {
  return upperCase(trimmedBlanks(typed));
}

QString athleteSearchShown(const QString &typed) {
  const QString text = trimmedBlanks(typed);
  return upperCase(text.left(1)) + text.mid(1);
}

QString participantSearch(const QString &typed) {
  return trimmedBlanks(upperCase(typed));
}

QStringList athleteLines(const Store &store, const QString &beginning) {
  SortedLines lines;
  for (int n = 1; n <= store.LaeuferAnzahl; ++n) {
    const QString name = LaeuferLesen(store, n).Name;
    if (!name.isEmpty() && upperCase(name.left(beginning.size())) == beginning)
      lines.add(name + QString(20, QLatin1Char(' ')) + plainText(n));
  }
  return lines.take();
}

QStringList TeilnehmerlisteFuellen(const Store &store, const QString &beginning, int order) {
  SortedLines lines;
  for (const int row : store.Teilnehmer.rows()) {
    const int record = store.Teilnehmer[row].LaeuferNr;
    if (record == 0)
      continue;
    const LaeuferSatz athlete = LaeuferLesen(store, record);
    if (upperCase(athlete.Name.left(beginning.size())) == beginning)
      lines.add(participantLine(store, row, athlete, order));
  }
  return lines.take();
}

int rowOfLine(QStringView line) {
  return int(wholeNumber(line.chopped(std::min<qsizetype>(RecordDigits, line.size())).right(RowDigits)));
}

AthleteClubs clubsOfAthlete(const Store &store, const LaeuferSatz &athlete) {
  AthleteClubs clubs;
  const std::array<int, 3> slots{athlete.Verein1, athlete.Verein2, athlete.Verein3};
  for (int slot = 1; slot <= 3; ++slot) {
    const int club = slots[std::size_t(slot - 1)];
    if (!isClub(store, club))
      continue;
    // Quirk: dash before a lone club. It stands before the only one too if that is in a later slot.
    clubs.text += (slot > 1 ? QStringLiteral(" - ") : QString()) + shortNameOfClub(store, club);
    clubs.lastSlot = slot;
    ++clubs.count;
  }
  return clubs;
}

bool isParticipant(const Store &store, int athlete) {
  for (const int row : store.Teilnehmer.rows())
    if (store.Teilnehmer[row].LaeuferNr == athlete)
      return true;
  return false;
}

void addParticipant(Store &store, int athlete, int clubCount, int lastSlot) {
  int row = 1;
  while (row <= LastRow && store.Teilnehmer[row].LaeuferNr != 0)
    ++row;
  if (row > LastRow)
    return store.umgebung.beep();
  store.Teilnehmer[row].LaeuferNr = athlete;
  if (clubCount == 1)
    store.Teilnehmer[row].VereinNr = lastSlot;
}

void removeParticipant(Store &store, int row) {
  for (int i = row; i < LastRow; ++i)
    ownColumns(store.Teilnehmer[i]) = ownColumns(store.Teilnehmer[i + 1]);
}
