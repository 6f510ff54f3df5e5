#pragma once

#include "exchange/EntryPlan.h"

/// Takes over what a plan says: writes new clubs and athletes as the registers do, records without a name first, and
/// with `race` enters all into the open race as its screen does, with their club of the table where it is one of
/// theirs. All or nothing: a race without room for all is a TableFault before anything is written; what the disk
/// refuses is a FileFault after everything has been taken back; of what a death has cut off the next start asks.
void takeOver(
    Store &store, const EntryPlan &plan, bool race, const EntryProgress &progress = [](qsizetype, qsizetype) {});
