#pragma once

#include "exchange/TableReader.h"

/// What a column of a table of entries may be.
/// Name is a whole one with the family's first, FirstFamily one with it last.
enum class ColumnKind { None, Name, FirstFamily, Family, First, Birth, Sex, Club, Club2, Club3, OesvNr, Points };
constexpr int ColumnKindCount = 12;

/// The German name of a kind; "–" for None.
QString nameOf(ColumnKind kind);

/// How a table is read: what each column is, and whether its first line is a heading.
struct Columns {
  QList<ColumnKind> kinds;
  bool heading = false;
};

/// By the headings; without any, by what stands in the columns. Each kind occurs once at most.
Columns recognisedColumns(const Table &table);
