#pragma once

#include "platform/Numbers.h"
#include "printing/Druckschicht.h"

#include <functional>
#include <optional>

/// How a cell stands at its place: as it is, or right-aligned by blanks, in four characters (a longer text loses its
/// front) or in the width of a time.
enum class Ausrichtung { Links, Vierstellig, Zeit };

/// A column of a list: its head and what a row shows in it, and where both stand, in millimetres. Paper shows it by
/// printHeads and printCells, other media by cellText.
template <typename Row> struct Spalte {
  using Cell = std::function<PrintItem(const Row &)>;

  /// Head and cells stand alike unless `headAt` tells another place.
  Spalte(QString head, double cellsAt, Ausrichtung how, double size, Cell cell, std::optional<double> headAt = {})
      : kopf(std::move(head)), kopfX(headAt.value_or(cellsAt)), zelleX(cellsAt), ausrichtung(how), groesse(size),
        zelle(std::move(cell)) {}

  QString kopf;
  /// Nothing: the head is not printed.
  std::optional<double> kopfX;
  double zelleX;
  Ausrichtung ausrichtung;
  /// Font size of the cells, points.
  double groesse;
  bool fett = false;
  Cell zelle;
  /// A second item in the cell, at the next print zone; most columns have none.
  Cell danach;
  /// What paper shows in front of each cell.
  QString davor;
};

/// The column with a head that paper does not show.
template <typename Row> Spalte<Row> withoutHead(Spalte<Row> column) {
  column.kopfX.reset();
  return column;
}

/// The column with bold cells.
template <typename Row> Spalte<Row> inBold(Spalte<Row> column) {
  column.fett = true;
  return column;
}

/// Prints one cell of a row; the line ends, so `CurrentY` stands one line height below.
void Zelle(Druckschicht &druck, double x, double y, const PrintItem &item);
void Zelle(Druckschicht &druck, double x, double y, std::initializer_list<PrintItem> items);
/// The item as it is printed in the present font.
PrintItem aligned(const Druckschicht &druck, Ausrichtung ausrichtung, const PrintItem &item);

/// Prints the heads that have a place, in the present font.
template <typename Row> void printHeads(Druckschicht &druck, const QList<Spalte<Row>> &columns, double y) {
  for (const auto &column : columns)
    if (column.kopfX)
      Zelle(druck, *column.kopfX, y, column.kopf);
}

/// Prints one cell if it is not empty. Bold ends behind a bold one.
template <typename Row> void printCell(Druckschicht &druck, const Spalte<Row> &column, const Row &row, double y) {
  druck.FontSize = column.groesse;
  if (column.fett)
    druck.FontBold = true;
  const PrintItem item = aligned(druck, column.ausrichtung, column.zelle(row));
  const PrintItem whole = column.davor.isEmpty() ? item : PrintItem(column.davor + item.text());
  if (column.danach)
    Zelle(druck, column.zelleX, y, {whole, column.danach(row)});
  else if (!whole.text().isEmpty())
    Zelle(druck, column.zelleX, y, whole);
  if (column.fett)
    druck.FontBold = false;
}

/// Prints the cells of a row.
template <typename Row>
void printCells(Druckschicht &druck, const QList<Spalte<Row>> &columns, const Row &row, double y) {
  for (const auto &column : columns)
    printCell(druck, column, row, y);
}

/// What a row shows in a column, as plain text.
template <typename Row> QString cellText(const Spalte<Row> &column, const Row &row) {
  const QString text = trimmedBlanks(column.zelle(row).text());
  return column.danach ? text + QLatin1Char(' ') + trimmedBlanks(column.danach(row).text()) : text;
}

/// What the cells of a row show.
template <typename Row> QStringList cellTexts(const QList<Spalte<Row>> &columns, const Row &row) {
  QStringList texts;
  for (const auto &column : columns)
    texts << cellText(column, row);
  return texts;
}

template <typename Row> QStringList headsOf(const QList<Spalte<Row>> &columns) {
  QStringList heads;
  for (const auto &column : columns)
    heads << column.kopf;
  return heads;
}

/// The columns as other media show them.
template <typename Row> QList<RecordedColumn> recorded(const QList<Spalte<Row>> &columns) {
  QList<RecordedColumn> result;
  for (const auto &column : columns)
    result.append({column.kopf, column.ausrichtung != Ausrichtung::Links});
  return result;
}

/// Prints a row of a list and notes it for the other media.
template <typename Row>
void printListRow(Druckschicht &druck, const QList<Spalte<Row>> &columns, const Row &row, double y) {
  printCells(druck, columns, row, y);
  druck.list().add(cellTexts(columns, row));
}
