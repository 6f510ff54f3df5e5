#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "support/TestStore.h"

#include <QDir>
#include <QMap>

#include <algorithm>

namespace {

constexpr int Races = 6, Unprepared = 3;

/// The example event, copied into a folder of its own and opened.
class Beispiel : public testing::Test {
protected:
  Beispiel() { test.takeOver(QStringLiteral(VEXT_BEISPIEL)); }

  void openRace(int number) {
    store.RennenIdx = store.AktRennen = number;
    RennenLesen(store);
    RennDatenLaden(store);
    KlassenZuordnen(store);
  }

  /// Every file of the folder with its bytes.
  QMap<QString, QByteArray> bytes() const {
    QMap<QString, QByteArray> all;
    for (const QString &name : QDir(test.folder.path()).entryList(QDir::Files))
      all[name] = test.file(name);
    return all;
  }

  TestStore test;
  Store &store = test.store;
};

} // namespace

TEST_F(Beispiel, ReadAndWrittenAgainIsTheSameBytes) {
  const auto before = bytes();
  for (store.VereinIdx = 1; store.VereinIdx <= store.VereinAnzahl; ++store.VereinIdx) {
    VereinLesen(store);
    VereinSchreiben(store);
  }
  for (store.LaeuferIdx = 1; store.LaeuferIdx <= store.LaeuferAnzahl; ++store.LaeuferIdx) {
    LaeuferLesen(store);
    LaeuferSchreiben(store);
  }
  for (int race = 1; race <= Races; ++race) {
    openRace(race);
    RennenSchreiben(store);
    RennDatenSpeichern(store);
  }
  const auto after = bytes();
  EXPECT_EQ(after.keys(), before.keys());
  for (const QString &name : before.keys())
    EXPECT_EQ(after[name], before[name]) << name.toStdString();
}

TEST_F(Beispiel, EveryFieldIsNamedNumberedAndSafeToRank) {
  QStringList reminder;
  test.umgebung.erinnern = [&](const QStringList &lines) { reminder += lines; };
  EXPECT_EQ(store.RennenAnzahl, Races);
  for (int race = 1; race <= Races; ++race) {
    openRace(race);
    RennDatenSpeichern(store);
    QList<int> numbers;
    for (int row = 1; store.Teilnehmer[row].LaeuferNr != 0; ++row) {
      store.LaeuferIdx = store.Teilnehmer[row].LaeuferNr;
      LaeuferLesen(store);
      EXPECT_FALSE(store.Laeufer.Name.isEmpty()) << race << ": row " << row;
      EXPECT_GT(store.Teilnehmer[row].KlasseReihe, 0) << race << ": row " << row;
      numbers << store.Teilnehmer[row].StartNr;
    }
    std::sort(numbers.begin(), numbers.end());
    EXPECT_EQ(numbers.isEmpty(), race == Unprepared);
    for (int i = 0; i < numbers.size(); ++i)
      EXPECT_EQ(numbers[i], i + 1) << race;
  }
  EXPECT_EQ(reminder, QStringList());
  EXPECT_EQ(test.beeps, 0);
}
