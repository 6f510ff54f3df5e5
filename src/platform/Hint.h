#pragma once

#include <QHash>
#include <QString>

/// One sentence for the line at the foot of a screen, and the control that it is about.
struct Hint {
  /// Empty = there is nothing to tell.
  QString text = {};
  /// Object name; empty = the whole screen.
  QString control = {};
};

/// What the controls of a screen show, by object name: texts, positions in combos from 0, "1" for a ticked box and for
/// a button that can be pressed, else "0"; the chosen line of a list, or its marked lines, one a row, and under its
/// name with ".Zeilen" how many lines it has. "Fokus" holds the name of the control with the focus.
using ShownValues = QHash<QString, QString>;
