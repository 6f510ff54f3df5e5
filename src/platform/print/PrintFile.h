#pragma once

#include "platform/print/Printers.h"

#include <QDateTime>

/// Writes a document into a new file of `folder`, which is made if it is missing, and gives the file's path: race
/// number, name of the document, date and time. No file is written over; a failure is a FileFault and leaves no cut-off
/// file behind.
QString writePrintFile(const QString &folder, const QDateTime &when, const Recording &recording,
                       const QString &extension, const QByteArray &bytes);
/// A printer that writes such files.
Printer filePrinter(const QString &name, const QString &folder, const QString &extension,
                    std::function<QDateTime()> now, std::function<QByteArray(const Recording &)> bytesOf);
