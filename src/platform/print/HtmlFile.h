#pragma once

#include "platform/print/PrintFile.h"

/// The document as one web page that needs nothing else: a list as a real table with its pictures above, any other
/// document page by page as it is on paper. `when` is told below the title.
QByteArray htmlOf(const Recording &recording, const QDateTime &when);
/// A page that leads to others: what each is called, and its file beside this one.
QByteArray htmlIndex(const QString &title, const QList<std::pair<QString, QString>> &pages, const QDateTime &when);
/// A printer that writes such a page, whatever the pages of the document.
Printer htmlIndexPrinter(const QString &folder, const std::function<QDateTime()> &now,
                         const QList<std::pair<QString, QString>> &pages);
/// The printer "Webseite (HTML)", which writes such files.
Printer htmlPrinter(const QString &folder, const std::function<QDateTime()> &now);
