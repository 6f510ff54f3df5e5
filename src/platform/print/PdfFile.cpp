#include "platform/print/PdfFile.h"

#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/print/Player.h"
#include "platform/print/Recording.h"

#include <QBuffer>
#include <QDir>
#include <QPdfWriter>
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

QString freePath(const QString &base) {
  QString path = base + QStringLiteral(".pdf");
  for (int copy = 2; fileExists(path); ++copy)
    path = base + QStringLiteral(" (%1).pdf").arg(copy);
  return path;
}

} // namespace

// Written into memory: the writer itself does not notice a full disk.
QByteArray pdfOf(const Recording &recording) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter writer(&bytes);
  writer.setResolution(1440);
  writer.setCreator(QStringLiteral("VEXT"));
  writer.setTitle(recording.title);
  writer.setPageLayout(pageLayout(recording));
  play(recording, writer);
  return bytes.data();
}

QString writePdf(const QString &folder, const QDateTime &when, const Recording &recording) {
  if (!QDir().mkpath(folder))
    throw FileFault(folder, QStringLiteral("angelegt"));
  QString path = freePath(QDir(folder).filePath(baseName(recording, when)));
  try {
    writeFile(path, pdfOf(recording));
  } catch (const FileFault &) {
    QFile::remove(path);
    throw;
  }
  return path;
}

Printer pdfPrinter(const QString &folder, std::function<QDateTime()> now) {
  return {QStringLiteral("PDF-Datei"),
          [folder, now = std::move(now)](const Recording &recording) { return writePdf(folder, now(), recording); }};
}
