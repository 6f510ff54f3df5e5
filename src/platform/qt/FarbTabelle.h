#pragma once

/// The red, green, blue colours of the program (0xRRGGBB), rows 0 to 8.
namespace FarbTabelle {
constexpr unsigned Hellgrau = 0xE0E0E0, BlassCyan = 0xC0FFFF, Dunkelgruen = 0x008000, Rot = 0xC00000,
                   BlassRot = 0xFFC0C0, BlassOrange = 0xFFC080, BlassGruen = 0xC0FFC0, BlassGelb = 0xFFFFC0,
                   Weiss = 0xFFFFFF;
} // namespace FarbTabelle
