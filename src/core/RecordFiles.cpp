#include "core/RecordFiles.h"

#include "core/StateFiles.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

#include <algorithm>

namespace {

constexpr quint8 LastBestTimeClass = 17;

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

bool isInRegister(const Store &store, int n, int count) {
  const bool inside = n >= 1 && n <= count;
  if (!inside)
    store.umgebung.beep();
  return inside;
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

void openRecordFiles(Store &store) {
  LaeuferOeffnen(store);
  VereinOeffnen(store);
  RennenOeffnen(store);
}

VereinSatz VereinLesen(const Store &store, int n) {
  auto &verein = store.Verein;
  if (isInRegister(store, n, store.VereinAnzahl)) {
    verein = readOrEmpty(store.VereinDatei, n, vereinFromBytes);
    return verein;
  }
  verein.VereinName.clear();
  if (n < 1)
    verein.VereinKurz.clear();
  return verein;
}

LaeuferSatz LaeuferLesen(const Store &store, int n) {
  auto &laeufer = store.Laeufer;
  if (!isInRegister(store, n, store.LaeuferAnzahl)) {
    laeufer.Name.clear();
    return laeufer;
  }
  laeufer = readOrEmpty(store.LaeuferDatei, n, laeuferFromBytes);
  laeufer.Name = trimmedBlanks(laeufer.Name);
  for (qint16 *verein : {&laeufer.Verein1, &laeufer.Verein2, &laeufer.Verein3})
    dropMissingClub(*verein, store);
  laeufer.Geschlecht = std::clamp<qint16>(laeufer.Geschlecht, Sex::Female, Sex::NotSet);
  return laeufer;
}

RennenSatz trimmedRace(const QByteArray &record) {
  RennenSatz rennen = rennenFromBytes(record);
  for (QString *text :
       {&rennen.RennenName, &rennen.RennenKurz, &rennen.RennenOrt, &rennen.Veranstalter, &rennen.DurchfVerein,
        &rennen.Startzeit, &rennen.Rennleiter, &rennen.Kurssetzung, &rennen.Tore, &rennen.Startrichter,
        &rennen.Zielrichter, &rennen.Zeitnehmung, &rennen.Chefkampfrichter, &rennen.Sponsor1, &rennen.Sponsor2,
        &rennen.Sponsor3, &rennen.Sponsor4, &rennen.Sponsor5, &rennen.Sponsor6})
    *text = trimmedBlanks(*text);
  if (rennen.BestzeitAbKlasse > LastBestTimeClass)
    rennen.BestzeitAbKlasse = 0;
  return rennen;
}

void RennenLesen(Store &store) {
  RennenLeeren(store);
  if (isInRegister(store, store.RennenIdx, store.RennenAnzahl) && store.RennenDatei.holds(store.RennenIdx))
    store.Rennen = trimmedRace(store.RennenDatei.read(store.RennenIdx));
}

void readOpenRace(Store &store) {
  store.RennenIdx = store.AktRennen;
  RennenLesen(store);
}

RennenSatz raceRecord(const Store &store, int n) {
  return readOrEmpty(store.RennenDatei, n, trimmedRace);
}

void VereinSchreiben(Store &store, int n, const VereinSatz &verein) {
  store.Verein = verein;
  write(store, store.VereinDatei, n, toBytes(verein));
  raiseCount(store, n, store.VereinAnzahl);
}

void LaeuferSchreiben(Store &store, int n, const LaeuferSatz &laeufer) {
  store.Laeufer = laeufer;
  if (n < 1)
    return;
  write(store, store.LaeuferDatei, n, toBytes(laeufer));
  raiseCount(store, n, store.LaeuferAnzahl);
}

void RennenSchreiben(Store &store) {
  write(store, store.RennenDatei, store.RennenIdx, toBytes(store.Rennen));
  raiseCount(store, store.RennenIdx, store.RennenAnzahl);
}

void writeOpenRace(Store &store) {
  store.RennenIdx = store.AktRennen;
  if (store.AktRennen > 0)
    RennenSchreiben(store);
}

VereinSatz VereinLeeren(const Store &store) {
  VereinSatz empty;
  empty.Unbenannt = store.Verein.Unbenannt;
  store.Verein = empty;
  return empty;
}

LaeuferSatz LaeuferLeeren(const Store &store) {
  store.Laeufer = LaeuferSatz();
  return store.Laeufer;
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

QStringList VereinListeFuellen(const Store &store) {
  SortedLines lines;
  for (int n = 1; n <= store.VereinAnzahl; ++n) {
    const QString name = VereinLesen(store, n).VereinName;
    if (!trimmedBlanks(name).isEmpty())
      lines.add(name + QStringLiteral("     ") + plainText(n));
  }
  return lines.take();
}

QStringList LaeuferListeFuellen(const Store &store) {
  SortedLines lines;
  for (int n = 1; n <= store.LaeuferAnzahl; ++n) {
    const QString name = LaeuferLesen(store, n).Name;
    if (!name.isEmpty())
      lines.add(name + QStringLiteral("        ") + plainText(n));
  }
  return lines.take();
}
