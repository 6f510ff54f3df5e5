#pragma once

#include "platform/print/Printers.h"

/// Asks the system for its printers. Blocks for long if a print server accepts and never answers.
SystemPrinters systemPrinters();
