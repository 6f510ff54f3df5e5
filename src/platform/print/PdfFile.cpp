#include "platform/print/PdfFile.h"

#include "platform/print/Player.h"
#include "platform/print/Recording.h"

#include <QBuffer>
#include <QPdfWriter>

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

Printer pdfPrinter(const QString &folder, std::function<QDateTime()> now) {
  return filePrinter(QStringLiteral("PDF-Datei"), folder, QStringLiteral("pdf"), std::move(now), pdfOf);
}
