#pragma once

#include "core/Store.h"

/// Makes the store ready for the menu: positions and counts from TopLeft.dat and Vext.dat if they exist, indices at the
/// last records, the built-in tables for the season of today's date. No file is required.
void storeStarten(Store &store);
