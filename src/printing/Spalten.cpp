#include "printing/Spalten.h"

#include "printing/PrintHelpers.h"

void Zelle(Druckschicht &druck, double x, double y, const PrintItem &item) {
  Zelle(druck, x, y, {item});
}

void Zelle(Druckschicht &druck, double x, double y, std::initializer_list<PrintItem> items) {
  druck.CurrentX = float(x);
  druck.CurrentY = float(y);
  druck.Print(items);
}

PrintItem aligned(const Druckschicht &druck, Ausrichtung ausrichtung, const PrintItem &item) {
  switch (ausrichtung) {
  case Ausrichtung::Vierstellig:
    return rightAligned(item.text(), 4);
  case Ausrichtung::Zeit:
    return inTimeColumn(druck, item.text());
  default:
    return item;
  }
}
