#pragma once

#include "core/Store.h"

/// Makes the store ready for the menu: positions and counts from TopLeft.dat and Vext.dat if they exist, the
/// last race as the one in work, the built-in tables for the season of today's date. No file is required.
void startStore(Store &store);
