#pragma once

#include "printing/Column.h"
#include "printing/ListLines.h"

// The columns of the lists of participants, in their order.

using ListColumns = QList<Column<ListLine>>;

/// Of the result list; after the ranking. The remark stands beside the best times alone, see bestTimeRemark.
ListColumns resultColumns(const Store &store);
/// Of the combined result list: the single times of the first two races must be loaded.
ListColumns combinedColumns(const Store &store);
ListColumns participantColumns(const Store &store);
ListColumns alphabeticColumns(const Store &store);
/// Of the start list of the second run.
ListColumns secondRunColumns(const Store &store);
ListColumns unrankedColumns(const Store &store);

/// The remark for the best time by the choice of the print screen (1 to 4) and the sex; a null text if none fits.
QString bestTimeRemark(int choice, int sex);
