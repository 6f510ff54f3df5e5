#pragma once

#include "platform/print/PrintFile.h"

/// The document as a table: of a list one line of heads, then one line a person, with what its heading says in front;
/// of any other document its lines of text.
QByteArray csvOf(const Recording &recording);
/// The printer "Tabelle (CSV)", which writes such files.
Printer csvPrinter(const QString &folder, std::function<QDateTime()> now);
