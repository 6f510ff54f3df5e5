#include "printing/Column.h"

#include "printing/PrintHelpers.h"

void printItemAt(Druckschicht &druck, double x, double y, const PrintItem &item) {
  printItemAt(druck, x, y, {item});
}

void printItemAt(Druckschicht &druck, double x, double y, std::initializer_list<PrintItem> items) {
  druck.CurrentX = float(x);
  druck.CurrentY = float(y);
  druck.Print(items);
}

PrintItem aligned(const Druckschicht &druck, Alignment alignment, const PrintItem &item) {
  switch (alignment) {
  case Alignment::FourCharacters:
    return rightAligned(item.text(), 4);
  case Alignment::Time:
    return inTimeColumn(druck, item.text());
  default:
    return item;
  }
}
