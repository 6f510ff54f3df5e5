#include "printing/Seitenkopf.h"

#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/PrintHelpers.h"

namespace {

Listenkopf classList(const QString &name, bool logo, double pageSize = 8) {
  return {name, true, 98, true, logo, 10, 38, pageSize};
}

void printTitle(const Store &store, Druckschicht &druck, const Listenkopf &kopf) {
  const bool kurz = kopf.kurzerTitel && !store.Rennen.RennenKurz.isEmpty();
  const QString &title = kurz ? store.Rennen.RennenKurz : store.Rennen.RennenName;
  druck.FontName = QStringLiteral("Arial");
  druck.CurrentX = 22;
  druck.CurrentY = 12;
  druck.FontBold = druck.FontItalic = true;
  TitelAnpassen(druck, title, kopf.titelGrenze);
  druck.Print(title);
}

void printAt(Druckschicht &druck, float x, float y, double size, const QString &text) {
  druck.CurrentX = x;
  druck.CurrentY = y;
  druck.FontSize = size;
  druck.FontBold = false;
  druck.Print(text);
}

void paintPictures(Druckschicht &druck) {
  druck.PaintPicture(druck.LoadPicture(QStringLiteral(":/kopf1.jpg")), 191, 11, 5.5, 18);
  Rahmen(druck, 190.5, 10, 197, 30);
  druck.PaintPicture(druck.LoadPicture(QStringLiteral(":/kopf2.jpg")), 4, 10, 15.5, 20);
}

} // namespace

const Listenkopf &Listenkoepfe::ergebnisliste() {
  static const Listenkopf kopf = classList(QStringLiteral("Ergebnisliste"), true);
  return kopf;
}

const Listenkopf &Listenkoepfe::ergebnislisteKombination() {
  static const Listenkopf kopf = classList(QStringLiteral("Ergebnisliste Kombination"), true, 9);
  return kopf;
}

const Listenkopf &Listenkoepfe::teilnehmerliste() {
  static const Listenkopf kopf = classList(QStringLiteral("Teilnehmerliste"), false);
  return kopf;
}

const Listenkopf &Listenkoepfe::alphabetischeListe() {
  static const Listenkopf kopf = classList(QStringLiteral("Alphabetische Teilnehmerliste"), false);
  return kopf;
}

const Listenkopf &Listenkoepfe::startlisteZweiterDurchgang() {
  static const Listenkopf kopf{QStringLiteral("Startliste 2.Durchgang")};
  return kopf;
}

const Listenkopf &Listenkoepfe::nichtInDerWertung() {
  static const Listenkopf kopf{QStringLiteral("Nicht in der Wertung")};
  return kopf;
}

// Italic stays on down to the date: that is meant.
void Kopfbeginn(const Store &store, Druckschicht &druck, const Listenkopf &kopf, int seite, const QString &zusatz) {
  printTitle(store, druck, kopf);
  printAt(druck, 22, 22, 18, kopf.name + zusatz);
  printAt(druck, 175, 12, kopf.seiteGroesse, QStringLiteral("Seite -") + plainText(seite));
  printAt(druck, 175, 25, 7, shortDate(store.umgebung.heute()));
  druck.DrawWidth = 5;
  Rahmen(druck, 20, 10, 190, 30);
  if (kopf.bilder)
    paintPictures(druck);
  druck.DrawWidth = 1;
  druck.FontItalic = false;
  druck.FontSize = kopf.spaltenGroesse;
  druck.FontBold = true;
}

void Kopfende(Druckschicht &druck, const Listenkopf &kopf) {
  druck.FontBold = false;
  if (kopf.logo)
    LogoDrucken(druck, 120, 11);
}
