#pragma once

#include "printing/ListRows.h"
#include "printing/Spalten.h"

// The columns of the lists of participants, in their order.

using ListColumns = QList<Spalte<ListRow>>;

/// Of the result list; after the ranking. The remark stands beside the best times alone, see Bestzeittext.
ListColumns ergebnisSpalten(const Store &store);
/// Of the combined result list: the single times of the first two races must be loaded.
ListColumns kombinationSpalten(const Store &store);
ListColumns teilnehmerSpalten(const Store &store);
ListColumns alphabetischeSpalten(const Store &store);
/// Of the start list of the second run.
ListColumns startlistenSpalten(const Store &store);
ListColumns nichtGewertetSpalten(const Store &store);

/// The remark for the best time by the choice of the print screen (1 to 4) and the sex; a null text if none fits.
QString Bestzeittext(int choice, int sex);
