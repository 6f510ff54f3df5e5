#pragma once

#include "platform/print/PrintFile.h"

/// The document as a PDF: A4, texts as texts with their fonts embedded, each picture once.
QByteArray pdfOf(const Recording &recording);
/// The printer "PDF-Datei", which writes such files.
Printer pdfPrinter(const QString &folder, std::function<QDateTime()> now);
