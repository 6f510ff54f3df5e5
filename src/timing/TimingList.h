#pragma once

#include "core/Store.h"

#include <QStringList>

/// The orders of the participants on the timing screen, each with its option button.
enum class ListMode { Startnummer, Zeiten, KlasseStartnummer, KlasseZeit, ZweiterDurchgang };

/// Ranks the race (ZweiterDurchgang: its first run) and gives the lines of the participants' list. A participant's line
/// ends in eleven blanks and his row; where classes stand together, a head line of dashes precedes each, which ends in
/// no number. Rows without the status "ok" in the first run are left out of ZweiterDurchgang.
///
/// ZweiterDurchgang of a race by groups ends in a RangeFault if a row above 100 is listed.
QStringList ZeitlisteFuellen(Store &store, ListMode mode);
