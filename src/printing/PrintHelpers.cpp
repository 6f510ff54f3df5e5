#include "printing/PrintHelpers.h"

#include "core/ValueFormats.h"
#include "platform/Numbers.h"

#include <QFile>

#include <algorithm>

namespace {

void printCentred(Druckschicht &druck, const QString &text, double middle) {
  druck.CurrentX = float(middle - double(druck.TextWidth(text)) / 2);
  druck.Print(text);
}

} // namespace

void beginDocument(const Store &store, Druckschicht &druck, const QString &name, const QString &person) {
  QStringList title{trimmedBlanks(shownText(store.Rennen.RennenName)), name, trimmedBlanks(shownText(person))};
  title.removeAll(QString());
  druck.ScaleMode = Druckschicht::Scale::Millimetres;
  druck.DocName(name, store.AktRennen, title.join(QStringLiteral(" – ")));
}

void Rahmen(Druckschicht &druck, double x1, double y1, double x2, double y2) {
  druck.Line(x1, y1, x2, y1);
  druck.Line(x2, y1, x2, y2);
  druck.Line(x2, y2, x1, y2);
  druck.Line(x1, y2, x1, y1);
}

void MitteDrucken(Druckschicht &druck, const QString &text) {
  printCentred(druck, text, double(druck.ScaleWidth()) / 2);
}

void ViertelDrucken(Druckschicht &druck, const QString &text) {
  printCentred(druck, text, double(druck.ScaleWidth()) * 0.25 + 7);
}

void DreiviertelDrucken(Druckschicht &druck, const QString &text) {
  printCentred(druck, text, double(druck.ScaleWidth()) * 0.75 + 3);
}

void RechtsDrucken(Druckschicht &druck, const PrintItem &item) {
  const float end = druck.CurrentX;
  druck.CurrentX = end - druck.TextWidth(item.text());
  druck.Print(item);
  druck.CurrentX = end;
}

QString inTimeColumn(const Druckschicht &druck, const QString &time) {
  constexpr float field = 14;
  QString text = time;
  const float missing = std::max(0.0F, field - druck.TextWidth(text)), blank = druck.TextWidth(QStringLiteral(" "));
  text.prepend(QString(int(missing / blank), QLatin1Char(' '))); // the last one or two are measured
  while (druck.TextWidth(text) < field)
    text.prepend(QLatin1Char(' '));
  return text;
}

QString ZeitDruckText(const Druckschicht &druck, double seconds) {
  return inTimeColumn(druck, ZeitText(seconds));
}

void fitTitle(Druckschicht &druck, const QString &title, double limit) {
  druck.FontSize = 24;
  while (druck.FontSize > 1 && double(druck.TextWidth(title)) > limit)
    druck.FontSize -= 1;
}

void printLogo(Druckschicht &druck, double x, double y) {
  const QString path = QStringLiteral("Logo.jpg");
  if (QFile::exists(path))
    druck.PaintPicture(druck.LoadPicture(path), x, y, 35, 18);
}
