#pragma once

#include <QStringList>

/// The sorted list of the system: lines in ascending German text order ignoring case; a whole line is one text, an
/// umlaut decides only where all else is equal; equal lines keep the order of adding. Lines are collected, then sorted
/// once.
class SortedLines {
public:
  void add(QString line) { m_lines.append(std::move(line)); }
  /// Sorts and hands the lines over.
  QStringList take();

private:
  QStringList m_lines;
};
