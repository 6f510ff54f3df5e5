#include "exchange/TakeOver.h"

#include "core/RecordFiles.h"
#include "core/StateFiles.h"
#include "exchange/Likeness.h"
#include "platform/Files.h"
#include "raceprep/ParticipantList.h"
#include "safety/RaceImage.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

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

/// A file with records put at their places, as RecordFile::write puts them.
template <typename Satz>
SavedFile withRecords(const RecordFile &file, const QList<std::pair<int, Satz>> &records, int length) {
  QByteArray bytes = readIfThere(file.path(), LargestRecordFile).value_or(QByteArray());
  for (const auto &[n, record] : records) {
    const qsizetype at = qsizetype(n - 1) * length;
    if (bytes.size() < at + length)
      bytes.append(at + length - bytes.size(), '\0');
    bytes.replace(at, length, toBytes(record));
  }
  return {file.path().section(QLatin1Char('/'), -1), bytes};
}

/// The records that a plan makes: known before the first is written.
class NewRecords {
public:
  NewRecords(Store &store, const EntryPlan &plan)
      : m_store(store), m_plan(plan), m_before(stateOf(store)), m_counts(m_before) {
    makeClubs();
    makeAthletes();
  }

  /// The record number of each line of the plan; 0 for those that are not taken.
  const QList<int> &ofLines() const { return m_ofLines; }
  bool isEmpty() const { return m_clubs.isEmpty() && m_athletes.isEmpty(); }
  /// The files as they will be.
  QList<SavedFile> files() const {
    return {withRecords(m_store.VereinDatei, m_clubs, VereinLaenge),
            withRecords(m_store.LaeuferDatei, m_athletes, LaeuferLaenge),
            {QStringLiteral("Vext.dat"), toBytes(m_counts)}};
  }

  /// Takes all back if the disk refuses one.
  void write(const EntryProgress &progress) const {
    const QList<std::pair<int, QByteArray>> reused = reusedRecords();
    const qint64 clubs = QFileInfo(m_store.VereinDatei.path()).size(),
                 athletes = QFileInfo(m_store.LaeuferDatei.path()).size();
    try {
      for (const auto &[n, club] : m_clubs)
        VereinSchreiben(m_store, n, club);
      for (qsizetype i = 0; i < m_athletes.size(); ++i) {
        LaeuferSchreiben(m_store, m_athletes[i].first, m_athletes[i].second);
        progress(i + 1, m_athletes.size());
      }
    } catch (const Fault &) {
      const std::scoped_lock lock(m_store.umgebung.writing);
      QFile::resize(m_store.VereinDatei.path(), clubs);
      QFile::resize(m_store.LaeuferDatei.path(), athletes);
      takeBack(reused);
      throw;
    }
  }

private:
  void makeClubs() {
    for (auto club = m_plan.unknownClubs.constBegin(); club != m_plan.unknownClubs.constEnd(); ++club)
      if (club->club == ClubAnswer::MakeNew) {
        VereinSatz record = VereinLeeren(m_store);
        record.VereinName = record.VereinKurz = club->text;
        m_clubs.append({numberOfNextClub(), record});
        m_numbers.insert(club.key(), m_clubs.last().first);
      }
  }

  // The first record is counted as soon as its screen shows it, though it may never have been written.
  int numberOfNextClub() {
    const bool isUnwritten = m_counts.VereinAnzahl == 1 && m_clubs.isEmpty() && !m_store.VereinDatei.holds(1);
    return isUnwritten ? 1 : ++m_counts.VereinAnzahl;
  }

  // Those behind the last record come first: they are not to be seen before the count has risen, and a disk that is
  // full refuses them. The others take no new room.
  void makeAthletes() {
    QList<int> newLines;
    for (const PlannedEntry &line : m_plan.lines) {
      const bool isNew = m_plan.isTaken(line) && line.choice == Choice::New;
      if (isNew)
        newLines << int(m_ofLines.size());
      m_ofLines << (m_plan.isTaken(line) && !isNew ? line.record : 0);
    }
    const QList<int> free = freeRecords(newLines.size());
    for (qsizetype i = free.size(); i < newLines.size(); ++i)
      add(newLines[i], ++m_counts.LaeuferAnzahl, LaeuferLeeren(m_store));
    for (qsizetype i = 0; i < free.size(); ++i)
      add(newLines[i], free[i], LaeuferLesen(m_store, free[i]));
  }

  QList<int> freeRecords(qsizetype most) const {
    QList<int> free;
    for (int n = 1; n <= m_store.LaeuferAnzahl && free.size() < most; ++n)
      if (LaeuferLesen(m_store, n).Name.isEmpty())
        free << n;
    return free;
  }

  void add(int line, int n, const LaeuferSatz &before) {
    const Entry &entry = m_plan.lines[line].entry;
    LaeuferSatz athlete = entry.athlete;
    athlete.LaeuferReserve = before.LaeuferReserve;
    athlete.Verein1 = clubOf(entry.clubs[0]);
    athlete.Verein2 = clubOf(entry.clubs[1]);
    athlete.Verein3 = clubOf(entry.clubs[2]);
    m_athletes.append({n, athlete});
    m_ofLines[line] = n;
  }

  qint16 clubOf(const QString &text) const {
    const int club = m_plan.club(text);
    return qint16(club == ClubAnswer::MakeNew ? m_numbers.value(foldedClub(text)) : club);
  }

  QList<std::pair<int, QByteArray>> reusedRecords() const {
    QList<std::pair<int, QByteArray>> reused;
    for (const auto &[n, athlete] : m_athletes)
      if (n <= m_before.LaeuferAnzahl)
        reused.append({n, m_store.LaeuferDatei.holds(n) ? m_store.LaeuferDatei.read(n) : toBytes(LaeuferSatz())});
    return reused;
  }

  // What lies behind the counts is never looked at; it went only to give the room back.
  void takeBack(const QList<std::pair<int, QByteArray>> &reused) const noexcept {
    m_store.LaeuferAnzahl = m_before.LaeuferAnzahl;
    m_store.VereinAnzahl = m_before.VereinAnzahl;
    for (const auto &[n, record] : reused)
      try {
        m_store.LaeuferDatei.write(n, record);
      } catch (const Fault &) { // the disk takes nothing any more
      }
  }

  Store &m_store;
  const EntryPlan &m_plan;
  const Zustand m_before;
  Zustand m_counts;
  QList<std::pair<int, VereinSatz>> m_clubs;
  QList<std::pair<int, LaeuferSatz>> m_athletes;
  QList<int> m_ofLines;
  /// Of the new clubs, by their folded names.
  QHash<QString, int> m_numbers;
};

int freeRows(const Store &store) {
  int free = 0;
  for (const int row : store.Teilnehmer.rows())
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
        QStringLiteral("In das Rennen passen noch %1 Teilnehmer, es sollen aber %2 hinein.").arg(free).arg(wanted));
}

/// The slot of an athlete's club, from 1; 0 if it is none of his.
int slotOf(const LaeuferSatz &athlete, int club) {
  const qint16 clubs[] = {athlete.Verein1, athlete.Verein2, athlete.Verein3};
  const auto *const found = std::find(std::begin(clubs), std::end(clubs), club);
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

void enterAll(Store &store, const EntryPlan &plan, const QList<int> &records) {
  for (qsizetype i = 0; i < records.size(); ++i) {
    const LaeuferSatz athlete = records[i] > 0 ? LaeuferLesen(store, records[i]) : LaeuferSatz();
    const int club = plan.club(plan.lines[i].entry.clubs[0]);
    enter(store, records[i], club == ClubAnswer::MakeNew ? athlete.Verein1 : club);
  }
}

// From now to `afterReplacing` a death leaves what the next start can finish or take back.
void writeRecords(Store &store, const NewRecords &records, const EntryProgress &progress) {
  store.beforeReplacing(replacingRegisters(store, records.files()));
  Batch batch(store.umgebung);
  try {
    records.write(progress);
  } catch (const Fault &) {
    store.afterReplacing();
    throw;
  }
  batch.finish();
}

} // namespace

void takeOver(Store &store, const EntryPlan &plan, bool race, const EntryProgress &progress) {
  if (race)
    requireRoom(store, plan);
  const NewRecords records(store, plan);
  if (!records.isEmpty())
    writeRecords(store, records, progress);
  if (race)
    enterAll(store, plan, records.ofLines());
  if (!records.isEmpty())
    store.afterReplacing();
}
