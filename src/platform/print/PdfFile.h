#pragma once

#include "platform/print/Printers.h"

#include <QDateTime>

/// The document as a PDF: A4, texts as texts with their fonts embedded, each picture once.
QByteArray pdfOf(const Recording &recording);
/// Writes the document into a new file of `folder`, which is made if it is missing, and gives the file's path: race
/// number, name of the document, date and time. No file is written over; a failure is a FileFault and leaves no cut-off
/// file behind.
QString writePdf(const QString &folder, const QDateTime &when, const Recording &recording);
/// The printer "PDF-Datei", which writes such files.
Printer pdfPrinter(const QString &folder, std::function<QDateTime()> now);
