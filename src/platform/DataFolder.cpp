#include "platform/DataFolder.h"

#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/System.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// What the system could not say is no answer; what is read from the folder then tells the fault.
bool isMissing(const QString &folder) {
  try {
    return !fileExists(folder);
  } catch (const Fault &) {
    return false;
  }
}

// A call may fail once.
bool mayWrite(const QString &folder) {
  for (int tries = 0; tries < 2; ++tries)
    if (const QFileInfo info(folder); info.isReadable() && info.isExecutable() && info.isWritable())
      return true;
  return false;
}

} // namespace

bool DataFolder::holdsData(const QString &folder) {
  return !QDir(folder).entryList({QStringLiteral("Vext.dat"), QStringLiteral("*.rec")}, QDir::Files).isEmpty();
}

bool DataFolder::isAccidental(const QString &folder) {
  const QDir dir(folder);
  return (dir == QDir::home() || dir.isRoot()) && !holdsData(folder);
}

QString DataFolder::troubleWith(const QString &folder) {
  const QString path = QDir::toNativeSeparators(QFileInfo(folder).absoluteFilePath());
  if (isMissing(folder))
    return QStringLiteral("Den Ordner „%1“ gibt es nicht.").arg(path);
  if (!mayWrite(folder))
    return QStringLiteral("Im Ordner „%1“ darf nicht geschrieben werden.").arg(path);
  return {};
}

// Where the system knows no folder of documents by a name of its own, a German one is made.
QString DataFolder::proposal() {
  QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  if (!documents.exists())
    documents.setPath(QDir::home().filePath(QStringLiteral("Dokumente")));
  QString folder = documents.filePath(QStringLiteral("VEXT"));
  for (int n = 2; QFileInfo::exists(folder); ++n)
    folder = documents.filePath(QStringLiteral("VEXT %1").arg(n));
  return folder;
}

QString DataFolder::examplePlace() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/VEXT/Beispiel");
}

QString DataFolder::exampleOrganisation() {
  return QStringLiteral("Schiclub Tannberg");
}

void DataFolder::copyExample() {
  const QString from = System::sharedPath(QStringLiteral("beispiel/")), to = examplePlace() + QLatin1Char('/');
  if (fileExists(to))
    removeFolder(examplePlace());
  makeFolder(examplePlace());
  for (const auto &name : filesIn(from))
    writeFile(to + name, readFile(from + name));
}
