#pragma once

#include "core/Store.h"

// The Z file of a generated time-sum race: the short names of its races and the single times of each row.

/// Whether the open race has a Z file, and so is a combined one.
bool hasSingleTimes(const Store &store);
/// All 1000 blocks from `ZeitsummeRennenKurz`, `CupLaeufer` and `CupZeit`.
QByteArray singleTimesBytes(const CupTabellen &cup);
/// Replaces the Z file of the open race whole.
void saveSingleTimes(const Store &store);
/// Reads the Z file of the open race into these tables; a file that ends early leaves the rest as it was.
void loadSingleTimes(Store &store);
