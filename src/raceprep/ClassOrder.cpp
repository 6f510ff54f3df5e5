#include "raceprep/ClassOrder.h"

#include "core/Classes.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int Highest = std::numeric_limits<qint16>::max();

QString builtName(const Store &store, const GridCell &cell) {
  const RennenSatz &rennen = store.Rennen;
  QString name = store.KlasseName[cell.klasse];
  if (rennen.WertGeschlecht == 1)
    name += cell.a == 0 ? QStringLiteral(" weiblich") : QStringLiteral(" männlich");
  if (rennen.WertGaeste == 1 && cell.b == 1)
    name += QStringLiteral(" Gäste");
  if (rennen.WertBoarder == 1 && cell.f == 1)
    name += QStringLiteral(" Boarder");
  return name;
}

int highestNumber(const KlasseNummerRaster &raster) {
  int highest = raster[0];
  for (int cell = 1; cell <= KlasseNummerRaster::last(); ++cell)
    highest = std::max(highest, int(raster[cell]));
  return highest;
}

} // namespace

QList<GridCell> gridCells(const Store &store) {
  QList<GridCell> cells;
  for (const int k : ClassRows)
    if (!store.KlasseName[k].isEmpty())
      forEachExactClass([&](int a, int b, int f) { cells.append({k, a, b, f}); });
  return cells;
}

bool applies(const RennenSatz &rennen, const GridCell &cell) {
  return (cell.a == 0 || rennen.WertGeschlecht != 0) && (cell.b == 0 || rennen.WertGaeste != 0) &&
         (cell.f == 0 || rennen.WertBoarder != 0);
}

QStringList gridHeadings(const RennenSatz &rennen) {
  static constexpr const char *bySex[] = {"w", "m", "G-w", "G-m", "Bw", "Bm", "B,Gw", "B,Gm"};
  static constexpr const char *together[] = {"w+m", "", "Gäste", "", "Board", "", "G,B", ""};
  QStringList headings;
  forEachExactClass([&](int, int b, int f) {
    const bool shown = (b == 0 || rennen.WertGaeste == 1) && (f == 0 || rennen.WertBoarder == 1);
    const auto *texts = rennen.WertGeschlecht == 1 ? bySex : together;
    headings << (shown ? QString::fromUtf8(texts[headings.size()]) : QString());
  });
  return headings;
}

void loadGrid(Store &store, KlasseNummerRaster &raster) {
  raster.fill(0);
  int position = 0;
  for (const auto &cell : gridCells(store)) {
    raster[position] = store.KlasseReihenfolge(cell.klasse, cell.a, cell.b, cell.f);
    QString &name = store.KlasseGenauName[position++];
    if (name.isEmpty())
      name = builtName(store, cell);
  }
}

KlassenReihenfolge gridOrder(const Store &store, const KlasseNummerRaster &raster) {
  KlassenReihenfolge order = store.KlasseReihenfolge;
  int position = 0;
  for (const auto &cell : gridCells(store))
    order(cell.klasse, cell.a, cell.b, cell.f) = raster[position++];
  return order;
}

void storeGrid(Store &store, const KlasseNummerRaster &raster) {
  store.KlasseReihenfolge = gridOrder(store, raster);
}

void clearGrid(Store &store, KlasseNummerRaster &raster) {
  raster.fill(0);
  int position = 0;
  for (const auto &cell : gridCells(store))
    store.KlasseGenauName[position++] = builtName(store, cell);
}

bool numberCell(KlasseNummerRaster &raster, int cell) {
  if (raster[cell] >= 1)
    return true;
  const int number = highestNumber(raster) + 1;
  if (number > Highest)
    return false;
  raster[cell] = qint16(number);
  return true;
}
