#pragma once

#include "core/Store.h"

// The grid in which the exact classes of a race get their order numbers. Its cells run on over the classes in use,
// eight for each; a cell is the exact class of the same number only as long as no empty row lies inside the class
// table.
// Quirk: exact names behind an empty class. They land eight entries too early.

/// The working copy of the order numbers, one for each cell; carried into `KlasseReihenfolge` by storeGrid alone.
using KlasseNummerRaster = Tabelle<qint16, 0, 159>;

/// A cell of the grid: class row and the switches sex (1 = male), guest, boarder.
struct GridCell {
  int klasse, a, b, f;
};

/// The cells of the classes in use, in order; the position is the number of the cell.
QList<GridCell> gridCells(const Store &store);
/// Whether the criteria of the race split the classes so that the cell can hold anybody.
bool applies(const RennenSatz &rennen, const GridCell &cell);
/// Headings of the eight columns; an empty one is not shown.
QStringList gridHeadings(const RennenSatz &rennen);

/// Fills the grid from `KlasseReihenfolge`, all other cells become 0; exact names that are missing are built.
void loadGrid(Store &store, KlasseNummerRaster &raster);
/// The order numbers of the open race with those of all cells, of hidden ones too.
KlassenReihenfolge gridOrder(const Store &store, const KlasseNummerRaster &raster);
/// Writes the numbers of all cells back, those of hidden ones too.
void storeGrid(Store &store, const KlasseNummerRaster &raster);
/// All numbers 0, all exact names of the classes in use built anew.
void clearGrid(Store &store, KlasseNummerRaster &raster);
/// Gives a cell without a number (below 1) the highest of all plus 1; false if that is too large for the grid.
bool numberCell(KlasseNummerRaster &raster, int cell);
