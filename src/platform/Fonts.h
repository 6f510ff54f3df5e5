#pragma once

/// The fonts asked for by name ("Arial", "Times", "Fraktur BT", "Monospac821 BT") get fonts of like metrics where the
/// system does not have them. May be called any number of times, once the application object exists.
void substituteFonts();
