#pragma once

#include "core/Store.h"

/// Makes the store ready for the menu: positions and counts from TopLeft.dat and Vext.dat if they exist, indices at the
/// last records, the built-in tables for the season of today's date. No file is required.
void storeStarten(Store &store);

/// Replaces TopLeft.dat.
void FensterSpeichern(Store &store);

/// The red, green, blue colours of the program (0xRRGGBB), rows 0 to 8.
namespace FarbTabelle {
constexpr unsigned Hellgrau = 0xE0E0E0, BlassCyan = 0xC0FFFF, Dunkelgruen = 0x008000, Rot = 0xC00000,
                   BlassRot = 0xFFC0C0, BlassOrange = 0xFFC080, BlassGruen = 0xC0FFC0, BlassGelb = 0xFFFFC0,
                   Weiss = 0xFFFFFF;
} // namespace FarbTabelle

/// Web address of the makers.
constexpr auto WebAdresse = "vext.example";
