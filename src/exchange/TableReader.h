#pragma once

#include "platform/Faults.h"

#include <QStringList>

/// A table that cannot be taken; the report says why, and what to do.
class TableFault : public Fault {
public:
  using Fault::Fault;
};

/// A table as a file gives it: lines of equally many fields, without blanks around, empty lines left out.
struct Table {
  QList<QStringList> lines;
  /// Number of the line in the file, from 1, for each line.
  QList<int> numbers;
  qsizetype columns() const { return lines.isEmpty() ? 0 : lines.first().size(); }
};

// What a table of entries can never need; beyond it a file is refused before it fills the memory.
constexpr qint64 LargestTable = 16 << 20; // bytes
constexpr qsizetype MostLines = 20'000, MostColumns = 100, MostFields = 500'000, LongestField = 1000;

/// Reads a table: semicolons, tabs or commas between the fields, whichever occur most in its first lines; quotes as in
/// RFC 4180; UTF-8 with or without its mark, else Windows-1252. Whatever is no such table is a TableFault, a file that
/// cannot be read a FileFault.
Table readTable(const QString &path);
/// The same of bytes; `name` is for reports.
Table tableFrom(const QByteArray &bytes, const QString &name);
