#pragma once

#include <QByteArray>
#include <QStringList>

// Tables for other programs: UTF-8, fields separated by semicolons and quoted where they must be, CR LF behind each
// line.

/// What stands before the first line, by which other programs know UTF-8.
constexpr char Utf8Mark[] = "\xEF\xBB\xBF";

/// One line. A field that another program would take for a formula gets an apostrophe in front.
QByteArray csvLine(const QStringList &fields);
/// A field without that apostrophe.
QString withoutGuard(const QString &field);
