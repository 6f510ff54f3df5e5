#pragma once

#include "core/Store.h"
#include "platform/print/Printers.h"

#include <QDateTime>

/// All lists of the open race: the results, both start lists, who is not ranked, and clubs, teams and groups by their
/// best times if there are any. What the evaluations leave behind is afterwards as it was.
QList<Recording> allLists(Store &store);
/// Writes them into `folder` as web pages, and one that leads to all of them last.
void printAllLists(Store &store, Printers &printers, const QString &folder, const std::function<QDateTime()> &now);
