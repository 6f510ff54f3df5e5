#include "core/StateFiles.h"

#include "platform/Files.h"
#include "platform/TextFile.h"

namespace {

QString windowFile(const Store &store) {
  return store.DatenOrdner + QStringLiteral("TopLeft.dat");
}

} // namespace

QString zustandDatei(const Store &store) {
  return store.DatenOrdner + QStringLiteral("Vext.dat");
}

Zustand zustandAus(const QByteArray &bytes, const QString &path) {
  TextReader file(bytes, path);
  Zustand read;
  file.numberInto(read.LaeuferAnzahl, LargestRecordFile / LaeuferLaenge);
  file.numberInto(read.VereinAnzahl, LargestRecordFile / VereinLaenge);
  file.numberInto(read.RennenAnzahl, LargestRecordFile / RennenLaenge);
  file.numberInto(read.VextReserve);
  return read;
}

QByteArray toBytes(const Zustand &zustand) {
  TextWriter file;
  for (const int value : {zustand.LaeuferAnzahl, zustand.VereinAnzahl, zustand.RennenAnzahl, zustand.VextReserve})
    file.number(value);
  return file.bytes();
}

Zustand zustand(const Store &store) {
  return {store.LaeuferAnzahl, store.VereinAnzahl, store.RennenAnzahl, store.VextReserve};
}

Zustand countsOnDisk(const Store &store) {
  return zustandAus(readIfThere(zustandDatei(store)).value_or(QByteArray()), zustandDatei(store));
}

Zustand raisedCounts(const Store &store, const Zustand &wanted) {
  Zustand counts = countsOnDisk(store);
  const auto raise = [&store](int &count, int to, const char *name, int length) {
    if (to > count &&
        holdsRecord(readIfThere(store.DatenOrdner + QLatin1String(name), LargestRecordFile).value_or(""), to, length))
      count = to;
  };
  raise(counts.LaeuferAnzahl, wanted.LaeuferAnzahl, "Laeufer.rec", LaeuferLaenge);
  raise(counts.VereinAnzahl, wanted.VereinAnzahl, "Verein.rec", VereinLaenge);
  raise(counts.RennenAnzahl, wanted.RennenAnzahl, "Rennen.rec", RennenLaenge);
  if (counts.VextReserve == 0)
    counts.VextReserve = wanted.VextReserve;
  return counts;
}

void ZustandLesen(Store &store) {
  const Zustand read = countsOnDisk(store);
  store.LaeuferAnzahl = read.LaeuferAnzahl;
  store.VereinAnzahl = read.VereinAnzahl;
  store.RennenAnzahl = read.RennenAnzahl;
  store.VextReserve = read.VextReserve;
}

void ZustandSchreiben(Store &store) {
  store.umgebung.replaceSoon(zustandDatei(store), toBytes(zustand(store)));
}

void FensterLesen(Store &store) {
  store.Fenster.load(windowFile(store));
}

void FensterSpeichern(Store &store) {
  store.umgebung.replaceSoon(windowFile(store), store.Fenster.bytes());
}
