#include "core/Safety.h"

#include "core/RecordFiles.h"
#include "platform/Faults.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto RunningInterval = 2s;
/// The menu is painted and ready before the first safety copy begins.
constexpr auto CopyDelay = 500ms;
constexpr int NameLength = 40;

QString absoluteFolder(const Store &store) {
  const QDir folder(store.DatenOrdner.isEmpty() ? QStringLiteral(".") : store.DatenOrdner);
  const QString real = folder.canonicalPath();
  return real.isEmpty() ? folder.absolutePath() : real;
}

// The name is for people, the hash of the whole path tells folders of one name apart.
QString safetyFolder(const QString &dataFolder) {
  const QByteArray hash = QCryptographicHash::hash(dataFolder.toUtf8(), QCryptographicHash::Sha1).toHex().left(12);
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/VEXT/Sicherung/") +
         QDir(dataFolder).dirName().left(NameLength) + QLatin1Char('-') + QString::fromLatin1(hash);
}

QString namesOf(const RaceImage &image) {
  QStringList names;
  for (const auto &file : image.files)
    names << file.name;
  return names.join(QStringLiteral(", "));
}

QString raceTitle(const RaceImage &image) {
  for (const auto &file : image.files)
    if (file.name == recordCopyName(image.race))
      return QStringLiteral("%1 \"%2\"").arg(image.race).arg(trimmedRace(file.bytes).RennenName);
  return QString::number(image.race);
}

QString offerText(const RunningCopy::Found &found, const QString &folder) {
  const QString reason = found.rescuedTo.isEmpty()
                             ? QStringLiteral("VEXT ist beim letzten Mal nicht ordentlich beendet worden.")
                             : QStringLiteral("VEXT musste beim letzten Mal wegen eines Fehlers beendet werden.");
  return reason +
         QStringLiteral(" In der Veranstaltung %1 gab es Eingaben, die nicht in ihren Dateien stehen. Sie sind "
                        "gesichert in dem Ordner\n\n%2\n\nin den Dateien %3.\n\n"
                        "\"Übernehmen\" kopiert sie über die Dateien der Veranstaltung; was dort stand, bleibt "
                        "in demselben Ordner mit dem Zusatz \"vorher\". Danach steht die Veranstaltung mit "
                        "allen Eingaben da.\n\n"
                        "\"Alles lassen, wie es ist\" ändert nichts. Die Dateien können auch später von Hand "
                        "in den Datenordner kopiert werden.")
             .arg(raceTitle(found.image), folder, namesOf(found.image));
}

} // namespace

Safety::Safety(Store &store)
    : m_store(store), m_dataFolder(absoluteFolder(store)), m_folder(safetyFolder(m_dataFolder)),
      m_running(m_folder + QStringLiteral("/Laufend")), m_copies(m_dataFolder, m_folder + QStringLiteral("/Kopien")),
      m_lock(m_folder + QStringLiteral("/VEXT.lock")) {
  m_lock.setStaleLockTime(0);
  m_ticks.setInterval(RunningInterval);
  m_ticks.callOnTimeout([this] { tick(); });
  m_copySoon.setSingleShot(true);
  m_copySoon.callOnTimeout([this] { copyAll(); });
}

// A folder in which VEXT runs already is none of a run that died: its running copy is left alone. Any other trouble
// with the lock shows when the first copy is written.
std::optional<Safety::Rescue> Safety::findRescue() {
  QDir().mkpath(m_folder);
  if (!m_lock.tryLock() && m_lock.error() == QLockFile::LockFailedError) {
    stopRunning(QStringLiteral("VEXT läuft in diesem Ordner schon einmal."));
    return {};
  }
  try {
    return lastRun();
  } catch (const Fault &fault) {
    stopRunning(
        QStringLiteral("Was beim letzten Mal zu retten war, liegt in \"%1\". %2").arg(m_folder, fault.report()));
    return {};
  }
}

void Safety::takeOver(const Rescue &rescue) {
  ::takeOver(rescue.image, rescue.folder, m_store);
}

void Safety::settle() {
  m_running.clear();
}

void Safety::start() {
  m_store.vorDemSpeichern = [this] { tick(); };
  m_store.nachDemSpeichern = [this] { m_copySoon.start(0ms); };
  m_ticks.start();
  m_copySoon.start(CopyDelay);
  tell();
}

void Safety::finish() {
  m_ticks.stop();
  if (m_copySoon.isActive())
    copyAll();
  if (m_active)
    m_running.clear();
  m_lock.unlock();
}

QString Safety::rescue() noexcept {
  try {
    m_ticks.stop();
    m_copySoon.stop();
    hint = [](const QString &) {};
    const auto image = raceImage(m_store);
    return image ? rescueImage(*image) : QStringLiteral("Alle Eingaben waren schon gespeichert; zu sichern war nichts.");
  } catch (const std::exception &e) {
    return QStringLiteral("Die offene Veranstaltung konnte nicht gesichert werden: ") + QString::fromUtf8(e.what());
  }
}

void Safety::tick() {
  if (!m_active)
    return;
  try {
    if (const auto image = raceImage(m_store))
      m_running.write(*image);
    m_runningTrouble.clear();
  } catch (const std::exception &e) {
    m_runningTrouble = QStringLiteral("Die laufende Sicherung ist nicht gelungen. ") + QString::fromUtf8(e.what());
  }
  tell();
}

void Safety::copyAll() {
  m_copySoon.stop();
  try {
    m_copies.make(QDateTime::currentDateTime());
    m_copyTrouble.clear();
  } catch (const std::exception &e) {
    m_copyTrouble = QStringLiteral("Die Sicherungskopie ist nicht gelungen. ") + QString::fromUtf8(e.what());
  }
  tell();
}

std::optional<Safety::Rescue> Safety::lastRun() {
  const auto found = m_running.newest();
  if (!found || !holdsNews(found->image, found->folder, m_store)) {
    m_running.clear();
    return {};
  }
  const QString folder = putIntoRescue(*found);
  return Rescue{found->image, folder, offerText(*found, folder)};
}

void Safety::stopRunning(const QString &reason) {
  m_active = false;
  m_runningTrouble = reason + QStringLiteral(" Laufend gesichert wird jetzt nicht.");
}

QString Safety::rescueFolder(const QString &parent) const {
  const QString name = parent + QStringLiteral("/Rettung ") +
                       QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss"));
  QString folder = name;
  for (int n = 2; QFile::exists(folder); ++n)
    folder = QStringLiteral("%1 (%2)").arg(name).arg(n);
  return folder;
}

// Where the data folder takes nothing, the copy stays as it is, at a place where the next one does not wipe it out.
QString Safety::putIntoRescue(const RunningCopy::Found &found) {
  if (!found.rescuedTo.isEmpty() && QFile::exists(found.rescuedTo))
    return found.rescuedTo;
  QString folder = rescueFolder(m_dataFolder);
  try {
    writeImage(found.image, folder);
    m_running.markRescued(folder);
  } catch (const Fault &) {
    QDir(folder).removeRecursively();
    folder = rescueFolder(m_folder);
    m_running.moveTo(folder);
  }
  return folder;
}

// The running copy is renewed first, so that one whole copy stands even if the data folder takes nothing.
QString Safety::rescueImage(const RaceImage &image) {
  tick();
  const bool copied = m_active && m_runningTrouble.isEmpty();
  const QString folder = rescueFolder(m_dataFolder);
  try {
    writeImage(image, folder);
  } catch (const Fault &fault) {
    QDir(folder).removeRecursively();
    if (!copied)
      throw;
    return QStringLiteral(
               "Im Datenordner ist kein Platz für die Rettung der Veranstaltung %1: %2\nAlle Eingaben liegen "
               "in\n%3\nund werden beim nächsten Start angeboten.")
        .arg(raceTitle(image), fault.report(), m_running.newest()->folder);
  }
  if (copied)
    m_running.markRescued(folder);
  else if (m_active)
    m_running.clear();
  return QStringLiteral("Alle Eingaben der Veranstaltung %1 sind gesichert in dem Ordner\n%2\nin den Dateien %3. Was "
                        "davon nicht in den Dateien der Veranstaltung steht, bietet VEXT beim nächsten Start an.")
      .arg(raceTitle(image), folder, namesOf(image));
}

void Safety::tell() {
  const QString line = QStringList{m_runningTrouble, m_copyTrouble}.join(QLatin1Char(' ')).trimmed();
  if (line == m_told)
    return;
  m_told = line;
  hint(line);
}
