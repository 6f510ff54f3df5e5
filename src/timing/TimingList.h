#pragma once

#include "core/Store.h"

#include <QStringList>

#include <utility>

/// The orders of the participants on the timing screen, each with its option button.
enum class ListMode { Startnummer, Zeiten, KlasseStartnummer, KlasseZeit, ZweiterDurchgang };

/// Ranks the race (ZweiterDurchgang: its first run) and gives the lines of the participants' list. A participant's line
/// ends in eleven blanks and his row; where classes stand together, a head line of dashes precedes each, which ends in
/// no number. Rows without the status "ok" in the first run are left out of ZweiterDurchgang.
///
/// ZweiterDurchgang of a race by groups ends in a RangeFault if a row above 100 is listed.
QStringList ZeitlisteFuellen(Store &store, ListMode mode);

/// The line that a text typed into the list means, −1 = none, and whether it can mean no other, also when it grows.
/// Digits are a whole start number, anything else the beginning of a name; of several the next one behind line `from`.
std::pair<int, bool> lineSought(const Store &store, const QStringList &lines, const QString &typed, int from);
