#include "core/StateFiles.h"

#include "platform/Files.h"
#include "platform/TextFile.h"

namespace {

QString windowFile(const Store &store) {
  return store.DatenOrdner + QStringLiteral("TopLeft.dat");
}

} // namespace

QString stateFilePath(const Store &store) {
  return store.DatenOrdner + QStringLiteral("Vext.dat");
}

Zustand stateFrom(const QByteArray &bytes, const QString &path) {
  TextReader file(bytes, path);
  Zustand read;
  file.numberInto(read.LaeuferAnzahl, LargestRecordFile / LaeuferLaenge);
  file.numberInto(read.VereinAnzahl, LargestRecordFile / VereinLaenge);
  file.numberInto(read.RennenAnzahl, LargestRecordFile / RennenLaenge);
  file.numberInto(read.VextReserve);
  return read;
}

QByteArray toBytes(const Zustand &state) {
  TextWriter file;
  for (const int value : {state.LaeuferAnzahl, state.VereinAnzahl, state.RennenAnzahl, state.VextReserve})
    file.number(value);
  return file.bytes();
}

Zustand stateOf(const Store &store) {
  return {store.LaeuferAnzahl, store.VereinAnzahl, store.RennenAnzahl, store.VextReserve};
}

Zustand countsOnDisk(const Store &store) {
  return stateFrom(readIfThere(stateFilePath(store)).value_or(QByteArray()), stateFilePath(store));
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

void ZustandSchreiben(const Store &store) {
  store.umgebung.replaceSoon(stateFilePath(store), toBytes(stateOf(store)));
}

void FensterLesen(Store &store) {
  store.Fenster.load(windowFile(store));
}

void FensterSpeichern(const Store &store) {
  store.umgebung.replaceSoon(windowFile(store), store.Fenster.bytes());
}
