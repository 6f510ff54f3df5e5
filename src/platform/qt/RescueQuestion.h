#pragma once

#include <QString>

/// Shows what was rescued, before the menu, and asks what to do with it: true for "Übernehmen", false for "Alles
/// lassen, wie es ist" or when it is closed.
bool askTakeOver(const QString &text);
