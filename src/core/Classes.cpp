#include "core/Classes.h"

#include "core/RecordFiles.h"
#include "platform/Dates.h"

namespace {

// The report of a switch outside 0 and 1 must name the person, or nobody can mend it on race day.
void requireSwitch(int value, const Store &store, int row, const QString &what) {
  if (value < 0 || value > 1)
    throw RangeFault(QStringLiteral("KlasseReihenfolge"), value, 0, 1,
                     QStringLiteral("Betroffen ist \"%1\" (Läufer Nr. %2, Zeile %3 der Teilnehmer): %4.")
                         .arg(store.Laeufer.Name)
                         .arg(store.LaeuferIdx)
                         .arg(row)
                         .arg(what));
}

void assign(Store &store, int row, int klasse) {
  auto &line = store.Teilnehmer[row];
  const int a = store.Rennen.WertGeschlecht * store.Laeufer.Geschlecht;
  const int b = store.Rennen.WertGaeste * line.Gast;
  const int f = store.Rennen.WertBoarder * line.Boarder;
  line.KlasseNr = klasse;
  ++store.KlasseAnzahl[klasse];
  if (line.Status1 + line.Status2 == 0)
    ++store.KlasseAnzahlOk[klasse];
  requireSwitch(a, store, row, QStringLiteral("das Geschlecht ist nicht eingetragen"));
  requireSwitch(b, store, row, QStringLiteral("der Gast ist weder 0 noch 1"));
  requireSwitch(f, store, row, QStringLiteral("der Boarder ist weder 0 noch 1"));
  line.KlasseReihe = store.KlasseReihenfolge(klasse, a, b, f);
  line.KlasseGenau = qint16(exactClass(klasse, a, b, f));
}

} // namespace

void KlassenZuordnen(Store &store) {
  LaeuferOeffnen(store);
  store.KlasseAnzahl.fill(0);
  store.KlasseAnzahlOk.fill(0);
  for (int row = 1; row <= 1000; ++row) {
    if (store.Teilnehmer[row].LaeuferNr < 1)
      continue;
    store.LaeuferIdx = store.Teilnehmer[row].LaeuferNr;
    LaeuferLesen(store);
    const int year = yearOf(store.Laeufer.Geburtsdatum);
    for (int k = 1; k <= 20; ++k)
      if (!store.KlasseName[k].isEmpty() && store.KlasseVon[k] <= year && store.KlasseBis[k] >= year)
        assign(store, row, k);
  }
}

void takeStandardClasses(Store &store) {
  for (int k = 1; k <= 20; ++k) {
    store.KlasseName[k] = store.StdKlasse[k].StdKlasseName;
    store.KlasseVon[k] = store.StdKlasse[k].Von;
    store.KlasseBis[k] = store.StdKlasse[k].Bis;
  }
}
