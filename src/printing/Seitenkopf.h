#pragma once

#include "core/Store.h"
#include "printing/Spalten.h"

/// What a list prints as the head of each page.
struct Listenkopf {
  QString name;
  /// The short race name stands as the title if there is one.
  bool kurzerTitel = false;
  /// Widest title, millimetres.
  double titelGrenze = 110;
  bool bilder = false, logo = false;
  /// Font size and height of the column heads.
  double spaltenGroesse = 11, spaltenY = 37;
  double seiteGroesse = 8;
};

/// The six lists of the print screen.
namespace Listenkoepfe {
const Listenkopf &ergebnisliste();
const Listenkopf &ergebnislisteKombination();
const Listenkopf &teilnehmerliste();
const Listenkopf &alphabetischeListe();
const Listenkopf &startlisteZweiterDurchgang();
const Listenkopf &nichtInDerWertung();
} // namespace Listenkoepfe

// The two halves of a head, between which the heads of the columns stand.
void Kopfbeginn(const Store &store, Druckschicht &druck, const Listenkopf &kopf, int seite, const QString &zusatz);
void Kopfende(Druckschicht &druck, const Listenkopf &kopf);

/// Prints the head of the next page and raises the page number, which starts at 0. `zusatz` follows the list's name.
/// Leaves size `spaltenGroesse`, neither bold nor italic, line width 1.
template <typename Row>
void Seitenkopf(const Store &store, Druckschicht &druck, const Listenkopf &kopf, const QList<Spalte<Row>> &spalten,
                int &seite, const QString &zusatz = {}) {
  Kopfbeginn(store, druck, kopf, ++seite, zusatz);
  druck.list().columns = recorded(spalten);
  printHeads(druck, spalten, kopf.spaltenY);
  Kopfende(druck, kopf);
}
