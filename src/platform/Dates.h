#pragma once

#include <QDate>

#include <optional>

// A date in a record is a double that counts days; day 0 is 30 December 1899, so 1 January 1900 is 2.0.

double toDays(QDate date);
/// The date of a day count; fractions are the time of day and are dropped. Not valid for what is no date at all.
QDate fromDays(double days);
/// The calendar year of a day count; 0 for what is no date.
int yearOf(double days);

/// A typed date: day.month.year, day and month with one or two digits, year with four, or two (00 to 29 = 20xx,
/// 30 to 99 = 19xx). Nothing if it is anything else or not in the calendar.
std::optional<QDate> typedDate(QStringView text);
/// The German short form, 07.03.2026.
QString shortDate(QDate date);
