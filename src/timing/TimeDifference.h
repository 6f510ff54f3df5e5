#pragma once

#include <QString>

#include <optional>

// The auxiliary timing: two readings of a running clock.

/// The difference of two readings in seconds, whichever is the earlier; nothing if one of them is no number. Both are
/// texts as KommaEingabe leaves them.
std::optional<double> timeDifference(const QString &start, const QString &finish);
/// Whether the text of a difference is a time to be taken.
/// Quirk: difference below a second. It is tested up to its decimal comma and not taken.
bool isTimeToTake(const QString &difference);
