#pragma once

#include "platform/Numbers.h"
#include "printing/Druckschicht.h"

#include <functional>
#include <optional>

/// How a cell stands at its place: as it is, or right-aligned by blanks, in four characters (a longer text loses its
/// front) or in the width of a time.
enum class Alignment { Left, FourCharacters, Time };

/// A column of a list: its head and what a line shows in it, and where both stand, in millimetres. Paper shows it by
/// printHeads and printCells, other media by cellText.
template <typename Line> struct Column {
  using Cell = std::function<PrintItem(const Line &)>;

  /// Head and cells stand alike unless `headAt` tells another place.
  Column(QString name, double cellsAt, Alignment how, double points, Cell content, std::optional<double> headAt = {})
      : head(std::move(name)), headX(headAt.value_or(cellsAt)), cellX(cellsAt), alignment(how), size(points),
        cell(std::move(content)) {}

  QString head;
  /// Nothing: the head is not printed.
  std::optional<double> headX;
  double cellX;
  Alignment alignment;
  /// Font size of the cells, points.
  double size;
  bool bold = false;
  Cell cell;
  /// A second item in the cell, at the next print zone; most columns have none.
  Cell second;
  /// What paper shows in front of each cell.
  QString prefix;
};

/// The column with a head that paper does not show.
template <typename Line> Column<Line> withoutHead(Column<Line> column) {
  column.headX.reset();
  return column;
}

/// The column with bold cells.
template <typename Line> Column<Line> inBold(Column<Line> column) {
  column.bold = true;
  return column;
}

/// Prints one cell of a line; the line ends, so `CurrentY` stands one line height below.
void printItemAt(Druckschicht &druck, double x, double y, const PrintItem &item);
void printItemAt(Druckschicht &druck, double x, double y, std::initializer_list<PrintItem> items);
/// The item as it is printed in the present font.
PrintItem aligned(const Druckschicht &druck, Alignment alignment, const PrintItem &item);

/// Prints the heads that have a place, in the present font.
template <typename Line> void printHeads(Druckschicht &druck, const QList<Column<Line>> &columns, double y) {
  for (const auto &column : columns)
    if (column.headX)
      printItemAt(druck, *column.headX, y, column.head);
}

/// Prints one cell if it is not empty. Bold ends behind a bold one.
template <typename Line> void printCell(Druckschicht &druck, const Column<Line> &column, const Line &line, double y) {
  druck.FontSize = column.size;
  if (column.bold)
    druck.FontBold = true;
  const PrintItem item = aligned(druck, column.alignment, column.cell(line));
  const PrintItem whole = column.prefix.isEmpty() ? item : PrintItem(column.prefix + item.text());
  if (column.second)
    printItemAt(druck, column.cellX, y, {whole, column.second(line)});
  else if (!whole.text().isEmpty())
    printItemAt(druck, column.cellX, y, whole);
  if (column.bold)
    druck.FontBold = false;
}

/// Prints the cells of a line.
template <typename Line>
void printCells(Druckschicht &druck, const QList<Column<Line>> &columns, const Line &line, double y) {
  for (const auto &column : columns)
    printCell(druck, column, line, y);
}

/// What a line shows in a column, as plain text.
template <typename Line> QString cellText(const Column<Line> &column, const Line &line) {
  const QString text = trimmedBlanks(column.cell(line).text());
  return column.second ? text + QLatin1Char(' ') + trimmedBlanks(column.second(line).text()) : text;
}

/// What the cells of a line show.
template <typename Line> QStringList cellTexts(const QList<Column<Line>> &columns, const Line &line) {
  QStringList texts;
  for (const auto &column : columns)
    texts << cellText(column, line);
  return texts;
}

template <typename Line> QStringList headsOf(const QList<Column<Line>> &columns) {
  QStringList heads;
  for (const auto &column : columns)
    heads << column.head;
  return heads;
}

/// The columns as other media show them.
template <typename Line> QList<RecordedColumn> recorded(const QList<Column<Line>> &columns) {
  QList<RecordedColumn> result;
  for (const auto &column : columns)
    result.append({column.head, column.alignment != Alignment::Left});
  return result;
}

/// Prints a line of a list and notes it for the other media.
template <typename Line>
void printListLine(Druckschicht &druck, const QList<Column<Line>> &columns, const Line &line, double y) {
  printCells(druck, columns, line, y);
  druck.list().add(cellTexts(columns, line));
}
