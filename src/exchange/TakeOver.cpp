#include "exchange/TakeOver.h"

#include "core/RecordFiles.h"
#include "core/StateFiles.h"
#include "exchange/Likeness.h"
#include "masterdata/AthleteRegister.h"
#include "masterdata/ClubRegister.h"
#include "platform/CodePage.h"
#include "platform/Numbers.h"
#include "raceprep/ParticipantList.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int LastRow = 1000;

/// While it lives, what follows the writing of a record is kept back: state files and syncs come once, at the end.
class Batch {
public:
  explicit Batch(Umgebung &outside)
      : m_outside(outside),
        m_replace(
            std::exchange(outside.replaceSoon, [this](const auto &path, const auto &bytes) { m_files[path] = bytes; })),
        m_sync(std::exchange(outside.syncSoon, [this](const QStringList &paths) { m_written << paths; })) {}
  ~Batch() {
    m_outside.replaceSoon = m_replace;
    m_outside.syncSoon = m_sync;
  }
  Q_DISABLE_COPY_MOVE(Batch)

  void finish() {
    m_written.removeDuplicates();
    if (!m_written.isEmpty())
      m_sync(m_written);
    for (auto file = m_files.constBegin(); file != m_files.constEnd(); ++file)
      m_replace(file.key(), file.value());
  }

private:
  Umgebung &m_outside;
  std::function<void(const QString &, const QByteArray &)> m_replace;
  std::function<void(const QStringList &)> m_sync;
  QMap<QString, QByteArray> m_files;
  QStringList m_written;
};

/// Writes the records of a plan and takes them back if the disk refuses one.
class Writer {
public:
  Writer(Store &store, const EntryPlan &plan) : m_store(store), m_plan(plan), m_before(zustand(store)) {}

  /// The record number of each line of the plan; 0 for those that are not taken.
  QList<int> write() {
    try {
      makeClubs();
      return makeAthletes();
    } catch (const Fault &) {
      takeBack();
      throw;
    }
  }

private:
  void makeClubs() {
    for (auto club = m_plan.unknownClubs.constBegin(); club != m_plan.unknownClubs.constEnd(); ++club)
      if (club->club == ClubAnswer::MakeNew)
        m_clubs.insert(club.key(), makeClub(club->text));
  }

  int makeClub(const QString &name) {
    const int n = nextClub(m_store, m_store.VereinAnzahl, name).value_or(0);
    storeClubField(m_store, n, &VereinSatz::VereinName, name);
    storeClubField(m_store, n, &VereinSatz::VereinKurz, name);
    return n;
  }

  // Those behind the last record come first: they are not to be seen before the count has risen, and a disk that is
  // full refuses them. The others take no new room.
  QList<int> makeAthletes() {
    QList<int> numbers, newLines;
    for (const PlannedEntry &line : m_plan.lines) {
      const bool isNew = m_plan.isTaken(line) && line.choice == Choice::New;
      if (isNew)
        newLines << int(numbers.size());
      numbers << (m_plan.isTaken(line) && !isNew ? line.record : 0);
    }
    const QList<int> free = freeRecords(newLines.size());
    for (qsizetype i = free.size(); i < newLines.size(); ++i)
      fill(numbers[newLines[i]] = append(), m_plan.lines[newLines[i]].entry);
    for (qsizetype i = 0; i < free.size(); ++i) {
      m_taken.append({free[i], m_store.LaeuferDatei.read(free[i])});
      fill(numbers[newLines[i]] = free[i], m_plan.lines[newLines[i]].entry);
    }
    return numbers;
  }

  QList<int> freeRecords(qsizetype most) const {
    QList<int> free;
    for (int n = 1; n <= m_store.LaeuferAnzahl && free.size() < most; ++n)
      if (m_store.LaeuferDatei.holds(n) && LaeuferLesen(m_store, n).Name.isEmpty())
        free << n;
    return free;
  }

  int append() {
    const int n = ++m_store.LaeuferAnzahl;
    LaeuferSchreiben(m_store, n, LaeuferLeeren(m_store));
    return n;
  }

  void fill(int n, const Entry &entry) {
    changeAthlete(m_store, n, [&](LaeuferSatz &athlete) {
      const QByteArray reserve = athlete.LaeuferReserve;
      athlete = entry.athlete;
      athlete.LaeuferReserve = reserve;
      athlete.Verein1 = clubOf(entry.clubs[0]);
      athlete.Verein2 = clubOf(entry.clubs[1]);
      athlete.Verein3 = clubOf(entry.clubs[2]);
    });
  }

  qint16 clubOf(const QString &text) const {
    const int club = m_plan.club(text);
    return qint16(club == ClubAnswer::MakeNew ? m_clubs.value(foldedClub(text)) : club);
  }

  // What lies behind the counts is never looked at.
  void takeBack() noexcept {
    m_store.LaeuferAnzahl = m_before.LaeuferAnzahl;
    m_store.VereinAnzahl = m_before.VereinAnzahl;
    const std::scoped_lock lock(m_store.umgebung.writing);
    for (const auto &[n, record] : std::as_const(m_taken))
      try {
        m_store.LaeuferDatei.write(n, record);
      } catch (const Fault &) { // the disk takes nothing any more
      }
  }

  Store &m_store;
  const EntryPlan &m_plan;
  const Zustand m_before;
  QHash<QString, int> m_clubs;
  QList<std::pair<int, QByteArray>> m_taken;
};

int freeRows(const Store &store) {
  int free = 0;
  for (int row = 1; row <= LastRow; ++row)
    free += store.Teilnehmer[row].LaeuferNr == 0;
  return free;
}

bool isToBeEntered(const Store &store, const EntryPlan &plan, const PlannedEntry &line) {
  return plan.isTaken(line) && (line.choice == Choice::New || !isParticipant(store, line.record));
}

void requireRoom(const Store &store, const EntryPlan &plan) {
  const auto wanted = std::count_if(plan.lines.begin(), plan.lines.end(),
                                    [&](const PlannedEntry &line) { return isToBeEntered(store, plan, line); });
  if (const int free = freeRows(store); wanted > free)
    throw TableFault(
        QStringLiteral("In das Rennen passen noch %1 Teilnehmer, es sollen aber %2 hinein. Übernommen wurde "
                       "nichts.")
            .arg(free)
            .arg(wanted));
}

/// The slot of an athlete's club, from 1; 0 if it is none of his.
int slotOf(const LaeuferSatz &athlete, int club) {
  const qint16 clubs[] = {athlete.Verein1, athlete.Verein2, athlete.Verein3};
  const auto found = std::find(std::begin(clubs), std::end(clubs), club);
  return club < 1 || found == std::end(clubs) ? 0 : int(found - std::begin(clubs)) + 1;
}

void enter(Store &store, int record, int club) {
  if (record == 0 || isParticipant(store, record))
    return;
  const LaeuferSatz athlete = LaeuferLesen(store, record);
  const AthleteClubs clubs = clubsOfAthlete(store, athlete);
  const int slot = slotOf(athlete, club);
  if (slot > 0)
    addParticipant(store, record, 1, slot);
  else
    addParticipant(store, record, clubs.count, clubs.lastSlot);
}

} // namespace

void takeOver(Store &store, const EntryPlan &plan, bool race) {
  if (race)
    requireRoom(store, plan);
  Batch batch(store.umgebung);
  const QList<int> records = Writer(store, plan).write();
  batch.finish();
  if (!race)
    return;
  for (qsizetype i = 0; i < records.size(); ++i) {
    const LaeuferSatz athlete = records[i] > 0 ? LaeuferLesen(store, records[i]) : LaeuferSatz();
    const int club = plan.club(plan.lines[i].entry.clubs[0]);
    enter(store, records[i], club == ClubAnswer::MakeNew ? athlete.Verein1 : club);
  }
}
