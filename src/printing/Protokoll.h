#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"

/// Prints what the journal tells of a race, of all days, newest first. Lines that the journal holds in a form of their
/// own are left out; a day that cannot be read is a Fault.
void Protokoll(const Store &store, Druckschicht &druck, int race);
