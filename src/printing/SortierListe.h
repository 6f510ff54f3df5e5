#pragma once

#include "core/Store.h"

#include <functional>

/// The participant rows of a list in the order of a text key. `key` gives the key of a row; at its call the athlete of
/// the row has been read. Rows without an athlete or with an empty name are left out, and so are those whose key is a
/// null text. The order is that of the sorted lists: German, ignoring case, equal keys by row number at the end of the
/// line.
QStringList SortierListe(Store &store, const std::function<QString(int row)> &key);
/// The participant row at the end of a line.
int sortierReihe(const QString &line);
