#include "safety/SafetyFolder.h"

#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/System.h"
#include "safety/SafetyCopies.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QStandardPaths>

namespace {

constexpr int NameLength = 40, HashLength = 12;
const auto OwnerNote = QStringLiteral("/Ordner.txt");

QString absoluteFolder(const QString &folder) {
  const QDir dir(folder.isEmpty() ? QStringLiteral(".") : folder);
  const QString real = dir.canonicalPath();
  return real.isEmpty() ? dir.absolutePath() : real;
}

QString allFolders() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/VEXT/Sicherung");
}

// The name is for people, the hash of the whole path tells folders of one name apart.
QString placeFor(const QString &dataFolder) {
  const QByteArray hash = QCryptographicHash::hash(dataFolder.toUtf8(), QCryptographicHash::Sha1).toHex();
  return QStringLiteral("%1/%2-%3")
      .arg(allFolders(), QDir(dataFolder).dirName().left(NameLength), QString::fromLatin1(hash.left(HashLength)));
}

bool isHeld(const QString &safetyFolder) {
  return System::Lock().take(safetyFolder + QStringLiteral("/VEXT.lock")) == System::Lock::State::Taken;
}

/// Path and identity of a data folder, a line each.
QStringList ownerOf(const QString &safetyFolder) {
  return QString::fromUtf8(readIfThere(safetyFolder + OwnerNote).value_or(QByteArray())).split(QLatin1Char('\n'));
}

// On another disk a folder has another identity; then the files themselves, with their times, must be those of the
// newest copy.
bool belongsTo(const QString &safetyFolder, const QString &dataFolder) {
  const QStringList owner = ownerOf(safetyFolder);
  if (owner.size() < 2 || owner[0] == dataFolder || System::identityOf(owner[0]) == owner[1])
    return false;
  const QString identity = System::identityOf(dataFolder);
  return (!identity.isEmpty() && owner[1] == identity) ||
         SafetyCopies(dataFolder, safetyFolder + QStringLiteral("/Kopien")).isOf(dataFolder);
}

} // namespace

SafetyFolder::SafetyFolder(const QString &dataFolder)
    : m_given(dataFolder), m_path(placeFor(absoluteFolder(dataFolder))) {}

QString SafetyFolder::dataFolder() const {
  return absoluteFolder(m_given);
}

bool SafetyFolder::isInUse() const {
  return isHeld(m_path);
}

void SafetyFolder::open() {
  const QString owner = dataFolder();
  makeFolder(allFolders(), Access::Private);
  if (!fileExists(m_path))
    if (const QString former = formerFolder(owner); !former.isEmpty()) {
      if (isHeld(former)) {
        m_path = former;
        return;
      }
      moveFolder(former, m_path);
    }
  makeFolder(m_path, Access::Private);
  const QByteArray note = (owner + QLatin1Char('\n') + System::identityOf(owner)).toUtf8();
  if (readIfThere(m_path + OwnerNote) != note)
    replaceFile(m_path + OwnerNote, note, Access::Private);
}

QString SafetyFolder::formerFolder(const QString &dataFolder) const {
  for (const auto &name : foldersIn(allFolders())) {
    const QString folder = allFolders() + QLatin1Char('/') + name;
    try {
      if (belongsTo(folder, dataFolder))
        return folder;
    } catch (const Fault &) { // one that cannot be read is nobody's
    }
  }
  return {};
}

QString newRescueFolder(const QString &parent) {
  const QString name = parent + QStringLiteral("/Rettung ") +
                       QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss"));
  QString folder = name;
  for (int n = 2; fileExists(folder); ++n)
    folder = QStringLiteral("%1 (%2)").arg(name).arg(n);
  return folder;
}
