#pragma once

#include "core/Records.h"
#include "exchange/EntryColumns.h"

#include <QDate>

#include <array>
#include <optional>

/// A person as a line of a table tells him, already as the register will keep him: the name "FAMILIENNAME Vorname", all
/// texts cut to their place and within its code page.
struct Entry {
  /// Of the file, from 1.
  int line = 0;
  /// Without its clubs.
  LaeuferSatz athlete;
  /// Of the birth date only the year is told.
  bool yearOnly = false;
  /// Up to three, empty where there is none.
  std::array<QString, 3> clubs;
  /// What of the line is cut, changed or left out.
  QStringList remarks;
  /// Why the line cannot be taken; empty if it can.
  QString trouble;
};

/// The lines of a table, read by the kinds of its columns.
QList<Entry> entriesOf(const Table &table, const Columns &columns, QDate today);

/// "FAMILIENNAME Vorname" of a whole name: words in capitals, or what stands before a comma, are the family's, else the
/// first word, or the last if `familyLast`; "von" and its like go with them.
QString nameFromWhole(const QString &whole, bool familyLast = false);
QString nameFromParts(const QString &family, const QString &first);

/// The birth date of a German or ISO date or of a year, in days; nothing if there is no such date, it is before 1900 or
/// after `today`. Two digits are years of 20xx as long as those are not in the future.
struct Birth {
  double days;
  bool yearOnly;
};
std::optional<Birth> birthFrom(const QString &text, QDate today);
/// 1 = male, 0 = female, 2 = no word for a sex.
qint16 sexFrom(const QString &text);
