#pragma once

#include "core/Store.h"
#include "printing/Column.h"

/// What a list prints as the head of each page.
struct ListHead {
  QString name;
  /// The short race name stands as the title if there is one.
  bool shortTitle = false;
  /// Widest title, millimetres.
  double titleLimit = 110;
  bool pictures = false, logo = false;
  /// Font size and height of the column heads.
  double columnSize = 11, columnsY = 37;
  double pageSize = 8;
};

/// The six lists of the print screen.
namespace ListHeads {
const ListHead &results();
const ListHead &combinedResults();
const ListHead &participants();
const ListHead &alphabetic();
const ListHead &secondRun();
const ListHead &unranked();
} // namespace ListHeads

// The two halves of a head, between which the heads of the columns stand.
void beginHead(const Store &store, Druckschicht &druck, const ListHead &head, int page, const QString &suffix);
void endHead(Druckschicht &druck, const ListHead &head);

/// Prints the head of the next page and raises the page number, which starts at 0. `suffix` follows the list's name.
/// Leaves size `columnSize`, neither bold nor italic, line width 1.
template <typename Line>
void Seitenkopf(const Store &store, Druckschicht &druck, const ListHead &head, const QList<Column<Line>> &columns,
                int &page, const QString &suffix = {}) {
  beginHead(store, druck, head, ++page, suffix);
  druck.list().columns = recorded(columns);
  printHeads(druck, columns, head.columnsY);
  endHead(druck, head);
}
