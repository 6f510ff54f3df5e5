#include "safety/Safety.h"

#include "core/RecordFiles.h"
#include "core/StateFiles.h"
#include "core/Store.h"
#include "platform/Faults.h"
#include "platform/Files.h"

#include <QThread>

#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto RunningInterval = 2s;
/// The menu is painted and ready before the first safety copy begins.
constexpr auto CopyDelay = 500ms;
constexpr int LinesOfState = 4;

const auto TakeOver = QStringLiteral("Übernehmen");
const auto LeaveAll = QStringLiteral("Alles lassen, wie es ist");
const auto GoOn = QStringLiteral("Weiter");

QString namesOf(const QList<SavedFile> &files) {
  QStringList names;
  for (const auto &file : files)
    names << file.name;
  return names.join(QStringLiteral(", "));
}

QString raceTitle(const RaceImage &image) {
  for (const auto &file : image.files)
    if (file.name == recordCopyName(image.race))
      return QStringLiteral("der Veranstaltung %1 „%2“").arg(image.race).arg(trimmedRace(file.bytes).RennenName);
  return image.race == RaceImage::NoRace ? QStringLiteral("der Veranstaltungsmappe")
                                         : QStringLiteral("der Veranstaltung %1").arg(image.race);
}

/// Whether it holds more than the counts, which the files of the folder have as well.
bool holdsWork(const RaceImage &image) {
  return image.race != RaceImage::NoRace || image.files.size() > 1;
}

// What cannot be compared counts as news.
QList<SavedFile> newsOf(const RunningCopy::Found &found, const Store &store) {
  try {
    return newsIn(found.image, found.folder, store, found.isWhole());
  } catch (const Fault &) {
    QList<SavedFile> all;
    for (const auto &file : found.image.files)
      if (file.name != noteName())
        all << file;
    return all;
  }
}

QString whatHappened(const RunningCopy::Found &found) {
  const QString when = found.time.toString(QStringLiteral("dd.MM.yyyy, HH:mm:ss"));
  QString text =
      found.rescuedTo.isEmpty()
          ? QStringLiteral("VEXT ist beim letzten Mal nicht ordentlich beendet worden (%1 Uhr).").arg(when)
          : QStringLiteral("VEXT musste beim letzten Mal wegen eines Fehlers beendet werden (%1 Uhr).").arg(when);
  if (!found.isWhole())
    text += QStringLiteral("\n\nDie laufende Sicherung von damals ist beschädigt, nicht lesbar ist: %1. Sie bleibt "
                           "liegen in\n%2")
                .arg(found.unreadable.join(QStringLiteral(", ")), found.folder);
  return text;
}

QString whatIsHalf(const RaceImage &image) {
  if (image.ofRegisters())
    return QStringLiteral(
        "Dabei wurden gerade Meldungen in die Register übernommen; deren Dateien sind jetzt halb alt, "
        "halb neu");
  return QStringLiteral("Dabei wurde gerade %1 neu geschrieben; ihre Dateien sind jetzt halb alt, halb neu")
      .arg(raceTitle(image).replace(QStringLiteral("der "), QStringLiteral("die ")));
}

QString noteText(const RaceImage &image) {
  const QString note = noteIn(image).trimmed();
  return note.isEmpty() ? QString() : QStringLiteral("\n\nNoch nicht eingetragen war:\n") + note;
}

void removeIfPossible(const QString &folder) {
  try {
    removeFolder(folder);
  } catch (const Fault &) { // half a rescue does no harm
  }
}

bool isCutOff(const QByteArray &state) {
  return state.count('\n') + (state.isEmpty() || state.endsWith('\n') ? 0 : 1) < LinesOfState;
}

QString countsText(const Zustand &counts) {
  return QStringLiteral("%1 Läufer, %2 Vereine, %3 Veranstaltungen")
      .arg(counts.LaeuferAnzahl)
      .arg(counts.VereinAnzahl)
      .arg(counts.RennenAnzahl);
}

} // namespace

void Safety::Trouble::set(const QString &now) {
  const std::scoped_lock lock(guard);
  text = now;
}

QString Safety::Trouble::get() {
  const std::scoped_lock lock(guard);
  return text;
}

Safety::Safety(Store &store, DiskWorker &worker)
    : waitAtSave([&worker] { worker.wait(); }), m_store(store), m_worker(worker), m_journal(store),
      m_folder(store.DatenOrdner), m_running(m_folder.path()),
      m_copies(store.DatenOrdner.isEmpty() ? QStringLiteral(".") : store.DatenOrdner,
               m_folder.path() + QStringLiteral("/Kopien")) {
  m_ticks.setTimerType(Qt::PreciseTimer);
  m_ticks.setInterval(RunningInterval);
  m_ticks.callOnTimeout([this] { tick(); });
  m_copySoon.setSingleShot(true);
  m_copySoon.callOnTimeout([this] { copyAll(); });
}

Safety::~Safety() {
  if (m_syncSoon)
    m_store.umgebung.syncSoon = m_syncSoon;
  m_writer.wait();
  m_copier.wait();
  m_worker.wait();
}

// A lock that cannot be asked is no reason to go without a running copy.
bool Safety::claim() {
  try {
    m_folder.open();
  } catch (const Fault &fault) {
    stopRunning(fault.report());
    return true;
  }
  if (m_lock.take(m_folder.path() + QStringLiteral("/VEXT.lock")) != System::Lock::State::Taken)
    return true;
  m_alone = false;
  stopRunning(QStringLiteral("VEXT läuft in diesem Ordner schon einmal."));
  return false;
}

void Safety::offerLeftBehind(const std::function<void(const Offer &)> &ask) {
  for (const auto &found : leftBehind())
    if (const auto offer = offerFor(found))
      ask(*offer);
}

QList<RunningCopy::Found> Safety::leftBehind() {
  try {
    return m_alone ? m_running.leftBehind() : QList<RunningCopy::Found>();
  } catch (const Fault &fault) {
    stopBefore(fault);
    return {};
  }
}

std::optional<Safety::Offer> Safety::lostCounts() {
  const auto state = readIfThere(stateFilePath(m_store));
  if (!m_alone || !state || !isCutOff(*state))
    return {};
  try {
    const auto copy = m_copies.newest(QStringLiteral("Vext.dat"));
    const Zustand now = countsOnDisk(m_store);
    const Zustand counts = copy ? raisedCounts(m_store, stateFrom(*copy, stateFilePath(m_store))) : now;
    if (counts == now)
      return {};
    return Offer{
        QStringLiteral("Die Datei Vext.dat ist abgeschnitten; nach ihr gibt es: %1.\n\nDie letzte "
                       "Sicherungskopie zählt: %2. So viele stehen auch in den Dateien.\n\n„Übernehmen“ stellt "
                       "diese Zahlen wieder her.")
            .arg(countsText(now), countsText(counts)),
        TakeOver, LeaveAll, [this, counts] { replaceFile(stateFilePath(m_store), toBytes(counts)); }, [] {}};
  } catch (const Fault &) {
    return {};
  }
}

void Safety::start() {
  if (m_alone) {
    m_store.beforeSaving = [this] { copyBeforeSave(); };
    m_store.afterSaving = [this] { m_copySoon.start(0ms); };
    m_store.beforeReplacing = [this](const RaceImage &image) { beginReplacing(image); };
    m_store.afterReplacing = [this] { endReplacing(); };
    listenToWrites();
    addToJournal();
    m_ticks.start();
    m_copySoon.start(CopyDelay);
  }
  tell();
}

void Safety::listenToWrites() {
  m_syncSoon = m_store.umgebung.syncSoon;
  m_store.umgebung.syncSoon = [this](const QStringList &paths) {
    m_journal.written(paths);
    m_syncSoon(paths);
  };
}

void Safety::finish() {
  m_ticks.stop();
  finishJournal();
  m_worker.wait();
  m_copier.wait();
  if (m_alone)
    copyAll();
  m_copier.wait();
  m_worker.rethrow();
  if (m_active)
    clearRunning();
  m_lock.release();
}

QString Safety::rescue() noexcept {
  if (QThread::currentThread() != m_ticks.thread()) // the worker itself is dying and cannot be waited for
    return QStringLiteral("Was zu retten war, bietet VEXT beim nächsten Start an.");
  try {
    m_ticks.stop();
    m_copySoon.stop();
    hint = journalHint = [](const QString &) {};
    m_worker.wait();
    forgetFailures();
    const QString told = rescueWork();
    finishJournal();
    return told;
  } catch (const std::exception &e) {
    return QStringLiteral("Die offene Veranstaltung konnte nicht gesichert werden: ") + QString::fromUtf8(e.what());
  }
}

// One that stays is found to hold no news.
void Safety::clearRunning() {
  try {
    m_running.clear();
  } catch (const Fault &) {
  }
}

// What failed beside would only end the report with a report of its own.
void Safety::forgetFailures() {
  try {
    m_worker.rethrow();
  } catch (const std::exception &) {
  }
}

void Safety::tick() {
  if (!m_journalInWork)
    addToJournal();
  if (!m_active || m_replacing || m_runningInWork)
    return;
  try {
    write(workImage(m_store, screens()));
  } catch (const std::exception &e) {
    m_runningTrouble.set(QStringLiteral("Die laufende Sicherung ist nicht gelungen. ") + QString::fromUtf8(e.what()));
  }
  tell();
}

void Safety::addToJournal() {
  if (!m_alone)
    return;
  auto job = m_journal.look(QDateTime::currentDateTime());
  m_journalInWork = true;
  keepCopying(m_writer, m_journalInWork, m_journalTrouble, QStringLiteral("Der Eintrag ins Protokoll"), std::move(job));
}

void Safety::finishJournal() noexcept {
  try {
    addToJournal();
    m_writer.wait();
  } catch (const std::exception &) { // a day without its last lines
  }
}

void Safety::copyAll() {
  m_copySoon.stop();
  if (m_copyInWork.exchange(true))
    return m_copySoon.start(CopyDelay);
  keepCopying(m_copier, m_copyInWork, m_copyTrouble, QStringLiteral("Die Sicherungskopie"),
              [this] { m_copies.make(QDateTime::currentDateTime(), m_store.umgebung.writing); });
}

void Safety::wait() {
  m_writer.wait();
  m_copier.wait();
  m_worker.wait();
  tell();
}

void Safety::copyBeforeSave() {
  addToJournal();
  if (m_runningInWork)
    waitAtSave();
  tell(); // one that has failed is tried again
  tick();
  if (m_runningInWork)
    waitAtSave();
}

// What is replaced must be in a safety copy, and what takes its place in a running copy, before the first byte is
// written.
void Safety::beginReplacing(const RaceImage &image) {
  waitAtSave();
  m_copier.wait();
  copyAll();
  m_copier.wait();
  if (!m_active)
    return;
  write(image);
  waitAtSave();
  m_replacing = m_runningTrouble.get().isEmpty();
}

// The next copy takes the place of that one at once: what is typed from now on must not look like half of it.
void Safety::endReplacing() {
  m_replacing = false;
  tick();
  m_copySoon.start(0ms);
}

void Safety::write(const RaceImage &image) {
  if (m_handed == image)
    return;
  m_handed = image;
  m_runningInWork = true;
  keepCopying(m_worker, m_runningInWork, m_runningTrouble, QStringLiteral("Die laufende Sicherung"),
              [this, image] { m_running.write(image); });
}

// In the thread of the worker; what came of it is told in the thread of the screens.
void Safety::keepCopying(DiskWorker &worker, std::atomic<bool> &inWork, Trouble &trouble, const QString &what,
                         std::function<void()> copy) {
  worker.run([this, &inWork, &trouble, what, copy = std::move(copy)] {
    try {
      copy();
      trouble.set({});
    } catch (const std::exception &e) {
      trouble.set(what + QStringLiteral(" ist nicht gelungen. ") + QString::fromUtf8(e.what()));
    }
    inWork = false;
    QMetaObject::invokeMethod(
        &m_ticks, [this] { tell(); }, Qt::QueuedConnection);
  });
}

std::optional<Safety::Offer> Safety::offerFor(const RunningCopy::Found &found) {
  try {
    if (found.image.before && found.isWhole() && progressOf(found.image, m_store) == Progress::Half)
      return offerReplaced(found);
    const auto news = found.image.before && found.isWhole() ? QList<SavedFile>() : newsOf(found, m_store);
    if (!news.isEmpty() || !noteIn(found.image).isEmpty() || !found.isWhole())
      return offerWork(found, news);
    settle(found);
  } catch (const Fault &fault) {
    stopBefore(fault);
  }
  return {};
}

Safety::Offer Safety::offerReplaced(const RunningCopy::Found &found) {
  const auto answer = [this, found](void (*act)(const RaceImage &, const Store &)) {
    return [this, found, act] {
      act(found.image, m_store);
      settle(found);
    };
  };
  return {whatHappened(found) +
              QStringLiteral("\n\n%1: %2.\n\n„Fertigstellen“ schreibt den Rest. „Zurücknehmen“ stellt her, was vorher "
                             "da war.")
                  .arg(whatIsHalf(found.image), namesOf(found.image.files)),
          QStringLiteral("Fertigstellen"), QStringLiteral("Zurücknehmen"), answer(finishReplacing),
          answer(takeBackReplacing)};
}

Safety::Offer Safety::offerWork(const RunningCopy::Found &found, const QList<SavedFile> &news) {
  const auto settled = [this, found] { settle(found); };
  if (news.isEmpty())
    return {whatHappened(found) + noteText(found.image), GoOn, {}, settled, settled};
  const QString folder = putIntoRescue(found);
  return {whatHappened(found) +
              QStringLiteral("\n\nIn %1 gab es Eingaben, die nicht in ihren Dateien stehen (%2). Sie sind gesichert in "
                             "dem Ordner\n%3\n\n„Übernehmen“ kopiert sie über die vorhandenen Dateien; was dort stand, "
                             "bleibt in demselben Ordner mit dem Zusatz „vorher“. Danach ist alles da.\n\n„Alles "
                             "lassen, wie es ist“ ändert nichts. Die Dateien können auch später von Hand in den "
                             "Datenordner kopiert werden.")
                  .arg(raceTitle(found.image), namesOf(news), folder) +
              noteText(found.image),
          TakeOver, LeaveAll,
          [this, found, news, folder] {
            ::takeOver(found.image, news, folder, m_store);
            settle(found);
          },
          settled};
}

// An answer that cannot be noted is asked for again at the next start; until then no copy may take this one's place.
void Safety::settle(const RunningCopy::Found &found) {
  try {
    m_running.settle(found);
  } catch (const Fault &fault) {
    stopRunning(fault.report());
  }
}

void Safety::stopBefore(const Fault &fault) {
  stopRunning(
      QStringLiteral("Was beim letzten Mal zu retten war, liegt in „%1“. %2").arg(m_folder.path(), fault.report()));
}

void Safety::stopRunning(const QString &reason) {
  m_active = false;
  m_refusal = reason + QStringLiteral(" Laufend gesichert wird jetzt nicht.");
}

// Where the data folder takes nothing, the work lies in the safety folder, at a place that no later copy wipes out.
QString Safety::putIntoRescue(const RunningCopy::Found &found) {
  if (!found.rescuedTo.isEmpty() && fileExists(found.rescuedTo))
    return found.rescuedTo;
  QString folder = newRescueFolder(m_folder.dataFolder());
  try {
    writeImage(found.image, folder);
  } catch (const Fault &) {
    removeIfPossible(folder);
    folder = newRescueFolder(m_folder.path());
    writeImage(found.image, folder);
  }
  RunningCopy::markRescued(found.folder, folder);
  return folder;
}

QString Safety::rescueWork() {
  if (m_replacing)
    return QStringLiteral("Eine Veranstaltung wurde gerade neu geschrieben; beim nächsten Start bietet VEXT an, das "
                          "fertigzustellen oder zurückzunehmen.");
  QList<SavedFile> ofScreens;
  try {
    ofScreens = screens();
  } catch (const std::exception &) { // a broken screen has nothing to say
  }
  const RaceImage image = workImage(m_store, ofScreens);
  return holdsWork(image) ? rescueImage(image)
                          : QStringLiteral("Alle Eingaben waren schon gespeichert; zu sichern war nichts.");
}

// The running copy is renewed first, so that one whole copy stands even if the data folder takes nothing.
QString Safety::rescueImage(const RaceImage &image) {
  bool copied = false;
  if (m_active) {
    write(image);
    m_worker.wait();
    copied = m_runningTrouble.get().isEmpty();
  }
  const QString folder = newRescueFolder(m_folder.dataFolder());
  try {
    writeImage(image, folder);
  } catch (const Fault &fault) {
    removeIfPossible(folder);
    if (!copied)
      throw;
    return QStringLiteral("Im Datenordner ist kein Platz für die Rettung %1: %2\nAlle Eingaben liegen in\n%3\nund "
                          "werden beim nächsten Start angeboten.")
        .arg(raceTitle(image), fault.report(), m_running.last());
  }
  if (copied)
    RunningCopy::markRescued(m_running.last(), folder);
  return QStringLiteral("Alle Eingaben %1 sind gesichert in dem Ordner\n%2\nin den Dateien %3. Was davon nicht in den "
                        "Dateien der Veranstaltung steht, bietet VEXT beim nächsten Start an.")
      .arg(raceTitle(image), folder, namesOf(image.files));
}

void Safety::tell() {
  const QString running = m_runningTrouble.get();
  if (!running.isEmpty() && !m_runningInWork)
    m_handed.reset(); // to be tried again
  const QString line = QStringList{m_refusal, running, m_copyTrouble.get()}.join(QLatin1Char(' ')).trimmed();
  tellOnce(line, m_told, hint);
  tellOnce(m_journalTrouble.get(), m_journalTold, journalHint);
}

void Safety::tellOnce(const QString &line, QString &told, const std::function<void(const QString &)> &hint) {
  if (line == std::exchange(told, line))
    return;
  hint(line);
}
