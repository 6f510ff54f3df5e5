#include "platform/print/PrintFile.h"

#include "platform/Faults.h"
#include "platform/Files.h"

#include <QDir>
#include <QRegularExpression>

namespace {

QString baseName(const Recording &recording, const QDateTime &when) {
  static const QRegularExpression unfit(QStringLiteral("[^\\w .,()+-]"),
                                        QRegularExpression::UseUnicodePropertiesOption);
  QString name = recording.name;
  name.replace(unfit, QStringLiteral("-"));
  if (recording.race > 0)
    name.prepend(QStringLiteral("%1 ").arg(recording.race));
  return name + when.toString(QStringLiteral(" yyyy-MM-dd hh-mm-ss"));
}

QString freePath(const QString &base, const QString &extension) {
  QString path = base + QLatin1Char('.') + extension;
  for (int copy = 2; fileExists(path); ++copy)
    path = base + QStringLiteral(" (%1).%2").arg(copy).arg(extension);
  return path;
}

} // namespace

QString writePrintFile(const QString &folder, const QDateTime &when, const Recording &recording,
                       const QString &extension, const QByteArray &bytes) {
  if (!QDir().mkpath(folder))
    throw FileFault(folder, QStringLiteral("angelegt"));
  QString path = freePath(QDir(folder).filePath(baseName(recording, when)), extension);
  try {
    writeFile(path, bytes);
  } catch (const FileFault &) {
    QFile::remove(path);
    throw;
  }
  return path;
}

Printer filePrinter(const QString &name, const QString &folder, const QString &extension,
                    std::function<QDateTime()> now, std::function<QByteArray(const Recording &)> bytesOf) {
  return {name, [=](const Recording &recording) {
            return writePrintFile(folder, now(), recording, extension, bytesOf(recording));
          }};
}
