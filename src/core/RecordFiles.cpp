#include "core/RecordFiles.h"

#include "core/StateFiles.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

#include <algorithm>

namespace {

constexpr quint8 LastBestzeitKlasse = 17;

// A record that begins at or beyond the end of its file has never been written: it reads as an empty one.
template <typename Satz> Satz readOrEmpty(const RecordFile &file, int index, Satz (*fromBytes)(const QByteArray &)) {
  return file.holds(index) ? fromBytes(file.read(index)) : Satz();
}

void write(const Store &store, RecordFile &file, int index, const QByteArray &record) {
  {
    const std::scoped_lock lock(store.umgebung.writing);
    file.write(index, record);
  }
  store.umgebung.syncSoon({file.path()});
}

void raiseCount(Store &store, int index, int &count) {
  if (index < count)
    return;
  count = index;
  ZustandSchreiben(store);
}

void dropMissingClub(qint16 &verein, const Store &store) {
  if (verein > store.VereinAnzahl)
    verein = 0;
}

} // namespace

void VereinOeffnen(Store &store) {
  store.VereinDatei.open(store.DatenOrdner + QStringLiteral("Verein.rec"));
}

void LaeuferOeffnen(Store &store) {
  store.LaeuferDatei.open(store.DatenOrdner + QStringLiteral("Laeufer.rec"));
}

void RennenOeffnen(Store &store) {
  store.RennenDatei.open(store.DatenOrdner + QStringLiteral("Rennen.rec"));
}

void VereinSchliessen(Store &store) {
  store.VereinDatei.close();
}

void LaeuferSchliessen(Store &store) {
  store.LaeuferDatei.close();
}

void RennenSchliessen(Store &store) {
  store.RennenDatei.close();
}

void alleDateienOeffnen(Store &store) {
  LaeuferOeffnen(store);
  VereinOeffnen(store);
  RennenOeffnen(store);
}

void VereinLesen(Store &store) {
  if (store.VereinIdx < 1 || store.VereinIdx > store.VereinAnzahl) {
    store.umgebung.piep();
    store.Verein.VereinName.clear();
    if (store.VereinIdx < 1)
      store.Verein.VereinKurz.clear();
    return;
  }
  store.Verein = readOrEmpty(store.VereinDatei, store.VereinIdx, vereinFromBytes);
}

void LaeuferLesen(Store &store) {
  if (store.LaeuferIdx < 1 || store.LaeuferIdx > store.LaeuferAnzahl) {
    store.umgebung.piep();
    store.Laeufer.Name.clear();
    return;
  }
  store.Laeufer = readOrEmpty(store.LaeuferDatei, store.LaeuferIdx, laeuferFromBytes);
  auto &laeufer = store.Laeufer;
  laeufer.Name = trimmedBlanks(laeufer.Name);
  for (qint16 *verein : {&laeufer.Verein1, &laeufer.Verein2, &laeufer.Verein3})
    dropMissingClub(*verein, store);
  laeufer.Geschlecht = std::clamp<qint16>(laeufer.Geschlecht, 0, 2);
}

RennenSatz trimmedRace(const QByteArray &record) {
  RennenSatz rennen = rennenFromBytes(record);
  for (QString *text :
       {&rennen.RennenName, &rennen.RennenKurz, &rennen.RennenOrt, &rennen.Veranstalter, &rennen.DurchfVerein,
        &rennen.Startzeit, &rennen.Rennleiter, &rennen.Kurssetzung, &rennen.Tore, &rennen.Startrichter,
        &rennen.Zielrichter, &rennen.Zeitnehmung, &rennen.Chefkampfrichter, &rennen.Sponsor1, &rennen.Sponsor2,
        &rennen.Sponsor3, &rennen.Sponsor4, &rennen.Sponsor5, &rennen.Sponsor6})
    *text = trimmedBlanks(*text);
  if (rennen.BestzeitAbKlasse > LastBestzeitKlasse)
    rennen.BestzeitAbKlasse = 0;
  return rennen;
}

void RennenLesen(Store &store) {
  RennenLeeren(store);
  if (store.RennenIdx < 1 || store.RennenIdx > store.RennenAnzahl) {
    store.umgebung.piep();
    return;
  }
  if (store.RennenDatei.holds(store.RennenIdx))
    store.Rennen = trimmedRace(store.RennenDatei.read(store.RennenIdx));
}

void rennsatzLesen(Store &store) {
  store.RennenIdx = store.AktRennen;
  RennenLesen(store);
}

void VereinSchreiben(Store &store) {
  write(store, store.VereinDatei, store.VereinIdx, toBytes(store.Verein));
  raiseCount(store, store.VereinIdx, store.VereinAnzahl);
}

void LaeuferSchreiben(Store &store) {
  if (store.LaeuferIdx < 1)
    return;
  write(store, store.LaeuferDatei, store.LaeuferIdx, toBytes(store.Laeufer));
  raiseCount(store, store.LaeuferIdx, store.LaeuferAnzahl);
}

void RennenSchreiben(Store &store) {
  write(store, store.RennenDatei, store.RennenIdx, toBytes(store.Rennen));
  raiseCount(store, store.RennenIdx, store.RennenAnzahl);
}

void VereinLeeren(Store &store) {
  const QByteArray unnamed = store.Verein.Unbenannt;
  store.Verein = VereinSatz();
  store.Verein.Unbenannt = unnamed;
}

void LaeuferLeeren(Store &store) {
  store.Laeufer = LaeuferSatz();
}

void RennenLeeren(Store &store) {
  const RennenSatz before = store.Rennen;
  auto &rennen = store.Rennen;
  rennen = RennenSatz();
  rennen.WertKlassen = before.WertKlassen;
  rennen.WertGeschlecht = before.WertGeschlecht;
  rennen.WertGaeste = before.WertGaeste;
  rennen.WertZeit = before.WertZeit;
  rennen.ZweiDurchgaenge = before.ZweiDurchgaenge;
  rennen.WertBoarder = before.WertBoarder;
  rennen.UrkundeBild = before.UrkundeBild;
  rennen.BestzeitText = before.BestzeitText;
}

QStringList VereinListeFuellen(Store &store) {
  const int shown = store.VereinIdx;
  SortedLines lines;
  for (store.VereinIdx = 1; store.VereinIdx <= store.VereinAnzahl; ++store.VereinIdx) {
    VereinLesen(store);
    if (!trimmedBlanks(store.Verein.VereinName).isEmpty())
      lines.add(store.Verein.VereinName + QStringLiteral("     ") + plainText(store.VereinIdx));
  }
  store.VereinIdx = shown;
  return lines.take();
}

QStringList LaeuferListeFuellen(Store &store) {
  const int shown = store.LaeuferIdx;
  SortedLines lines;
  for (store.LaeuferIdx = 1; store.LaeuferIdx <= store.LaeuferAnzahl; ++store.LaeuferIdx) {
    LaeuferLesen(store);
    if (!store.Laeufer.Name.isEmpty())
      lines.add(store.Laeufer.Name + QStringLiteral("        ") + plainText(store.LaeuferIdx));
  }
  store.LaeuferIdx = shown;
  return lines.take();
}
