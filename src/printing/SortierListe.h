#pragma once

#include "core/Store.h"

#include <functional>

/// The participant rows of a list in the order of a text key, which `key` gives for a row and its athlete. Rows without
/// an athlete or with an empty name are left out, and so are those whose key is a null text. The order is that of the
/// sorted lists: German, ignoring case, equal keys by row number at the end of the line.
QStringList SortierListe(const Store &store, const std::function<QString(int row, const LaeuferSatz &athlete)> &key);
