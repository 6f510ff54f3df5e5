#pragma once

#include "platform/qt/Screen.h"
#include "raceprep/ClassOrder.h"

#include <memory>

class CellLabel;
class QLabel;
namespace Ui {
class Form15;
}

/// Start order of the exact classes; equal numbers merge them.
///
/// A row for each class (`Label2` group: its name), a column for each split (`Label4` group: headings), and the cells
/// (`Label3` group) with the order numbers. Pressing a cell numbers it and selects it: `Label5` (hidden) holds its
/// position, `Text1` its exact name, `Text2` its number; `Command2` shows a typed number in the cell. `Command4` asks
/// with `Command5` and `Command6` whether to start anew. The numbers count from the closing on, which saves the race.
///
/// Keys: Tab reaches the grid once, arrows walk over its cells, Enter or the blank key presses the cell.
class Form15 : public Screen {
  Q_OBJECT

public:
  /// KlassenZuordnen must have run. The grid is filled once, here, and not when the screen becomes active again.
  Form15(Desk &desk, Store &store);
  ~Form15() override;

  QList<SavedFile> unsaved() const override;

Q_SIGNALS:
  /// The opener is to be shown now, before the race is saved.
  void saving();

protected:
  void closing() override;

private:
  static constexpr int Rows = 20, Columns = 8, Cells = Rows * Columns;

  void buildGrid();
  void addName(int klasse);
  void addHeading(int column);
  void addCell(int cell);
  void orderTabs();
  void connectControls();
  void showNames();
  void showCells();
  void showHeadings();
  void selectCell(int cell);
  void showSelected();
  void focusNeighbour(int cell, int columns, int rows);
  void setTabStop(int cell);
  void showNumber(int cell);
  int selected() const;
  void storeName();
  void storeNumber();
  void askToClear(bool ask);
  void clearAll();

  Store &m_store;
  KlasseNummerRaster m_raster{"KlasseNummerRaster"};
  std::unique_ptr<Ui::Form15> ui;
  Tabelle<QLabel *, 1, Rows> m_names{"Label2"};
  Tabelle<QLabel *, 0, Columns - 1> m_headings{"Label4"};
  Tabelle<CellLabel *, 0, Cells - 1> m_cells{"Label3"};
};
