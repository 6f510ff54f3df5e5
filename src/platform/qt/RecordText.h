#pragma once

#include <QString>

class QLineEdit;

// A text of a record in a field. The texts of a record in a gap of its file are NULs: they are not shown, and stay
// until the operator has changed the text.

namespace RecordText {

/// Shows the beginning of the text.
void show(QLineEdit *field, const QString &text);
/// What the field stands for: the text last shown as long as it reads the same; from the first change on, what is
/// typed.
QString of(QLineEdit *field);

} // namespace RecordText
