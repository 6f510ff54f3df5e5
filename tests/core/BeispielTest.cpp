#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "platform/Files.h"
#include "support/StoreTest.h"

#include <QDir>
#include <QMap>

namespace {

constexpr int Races = 6;

QMap<QString, QByteArray> bytesOf(const QDir &folder) {
  QMap<QString, QByteArray> all;
  for (const QString &name : folder.entryList(QDir::Files))
    all[name] = readFile(folder.filePath(name));
  return all;
}

/// The example event, copied into a folder of its own and opened.
struct Beispiel : StoreTest {
  Beispiel() { test.takeOver(VEXT_BEISPIEL); }

  void openRace(int number) {
    store.RennenIdx = store.AktRennen = number;
    RennenLesen(store);
    RennDatenLaden(store);
    KlassenZuordnen(store);
  }

  const QMap<QString, QByteArray> example = bytesOf(QDir(VEXT_BEISPIEL));
};

} // namespace

TEST_F(Beispiel, ReadAndWrittenAgainIsTheSameBytes) {
  for (int n = 1; n <= store.VereinAnzahl; ++n)
    VereinSchreiben(store, n, VereinLesen(store, n));
  for (int n = 1; n <= store.LaeuferAnzahl; ++n)
    LaeuferSchreiben(store, n, LaeuferLesen(store, n));
  for (int race = 1; race <= Races; ++race) {
    openRace(race);
    RennenSchreiben(store);
    RennDatenSpeichern(store);
  }
  const auto after = bytesOf(test.folder.path());
  EXPECT_EQ(after.keys(), example.keys());
  for (const QString &name : example.keys())
    EXPECT_EQ(after[name], example[name]) << name.toStdString();
}
