#include "safety/Journal.h"

#include "core/RaceFiles.h"
#include "platform/Csv.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

#include <memory>
#include <utility>

namespace {

const QStringList Head{QStringLiteral("Uhrzeit"), QStringLiteral("Veranstaltung"), QStringLiteral("Startnummer"),
                       QStringLiteral("Name"),    QStringLiteral("Was"),           QStringLiteral("vorher"),
                       QStringLiteral("nachher")};

QString numberOrNothing(int number) {
  return number == 0 ? QString() : plainText(number);
}

QByteArray lineOf(const Change &change, const QDateTime &when) {
  return csvLine({when.toString(QStringLiteral("HH:mm:ss")), numberOrNothing(change.race),
                  numberOrNothing(change.startNr), change.name, change.what, change.before, change.after});
}

// A file that was cut off in the middle of a line goes on in a new one.
QByteArray beginningOf(const QString &path) {
  const auto old = readIfThere(path, LargestRecordFile);
  if (!old || old->isEmpty())
    return Utf8Mark + csvLine(Head);
  return old->endsWith('\n') ? QByteArray() : QByteArray("\r\n");
}

} // namespace

Journal::Journal(const Store &store) : m_store(store), m_folder(store.DatenOrdner + QStringLiteral("Protokoll")) {}

void Journal::written(const QStringList &paths) {
  for (const QString &path : paths)
    if (path.endsWith(QStringLiteral(".rec")))
      m_registersChanged = true;
}

std::function<void()> Journal::look(const QDateTime &now) {
  std::optional<RaceTables> base, tables;
  if (m_store.TabellenRennen == m_store.AktRennen) {
    tables = tablesOf(m_store);
    if (m_store.AktRennen != m_lookedAt)
      base = tablesOnDisk();
    m_lookedAt = m_store.AktRennen;
  }
  return [this, base, tables, now] { write(base, tables, now); };
}

// What a load leaves alone is as it stands now, so that it is no difference. Files that cannot be read are none either.
RaceTables Journal::tablesOnDisk() const {
  const auto scratch = std::make_unique<Store>(m_store.umgebung);
  scratch->DatenOrdner = m_store.DatenOrdner;
  scratch->AktRennen = m_store.AktRennen;
  scratch->StdKlasse = m_store.StdKlasse;
  scratch->KlasseReihenfolge = m_store.KlasseReihenfolge;
  try {
    RennDatenLaden(*scratch);
  } catch (const Fault &) {
    return tablesOf(m_store);
  }
  return tablesOf(*scratch);
}

void Journal::write(const std::optional<RaceTables> &base, const std::optional<RaceTables> &now,
                    const QDateTime &when) {
  if (base)
    m_tables = base;
  if (m_registersChanged.exchange(false))
    readRegisters(when);
  if (now && m_tables)
    note(changesOf(*m_tables, *now, m_registers.value_or(Registers())), when);
  if (now)
    m_tables = now;
  flush();
}

// The first reading only tells what there is.
void Journal::readRegisters(const QDateTime &when) {
  const auto bytesOf = [this](const char *name) {
    return readIfThere(m_store.DatenOrdner + QLatin1String(name), LargestRecordFile).value_or(QByteArray());
  };
  Registers now;
  try {
    const std::scoped_lock lock(m_store.umgebung.writing);
    now = {bytesOf("Laeufer.rec"), bytesOf("Verein.rec"), bytesOf("Rennen.rec")};
  } catch (const Fault &) {
    m_registersChanged = true;
    throw;
  }
  if (m_registers)
    note(changesOf(*m_registers, now), when);
  m_registers = now;
}

void Journal::note(const QList<Change> &changes, const QDateTime &when) {
  if (changes.isEmpty())
    return;
  const QString path = m_folder + when.toString(QStringLiteral("'/'yyyy-MM-dd'.csv'"));
  if (path != std::exchange(m_path, path))
    m_atLineEnd = false;
  for (const Change &change : changes)
    m_lines += lineOf(change, when);
}

void Journal::flush() {
  if (m_lines.isEmpty())
    return;
  const bool atLineEnd = std::exchange(m_atLineEnd, false);
  makeFolder(m_folder);
  appendToFile(m_path, (atLineEnd ? QByteArray() : beginningOf(m_path)) + m_lines);
  m_atLineEnd = true;
  m_lines.clear();
}
