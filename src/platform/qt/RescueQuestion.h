#pragma once

#include <QString>

/// A question before the menu, in a window of the given object name: true for the first answer, false for the second or
/// when it is closed. Without a second answer there is only one button. Enter gives the first, unless that is the risky
/// one.
bool askBeforeMenu(const QString &name, const QString &text, const QString &accept, const QString &decline,
                   bool acceptIsRisky = false);
