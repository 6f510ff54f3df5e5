#include "raceprep/RaceRegister.h"

#include "core/RaceFiles.h"
#include "core/RaceList.h"
#include "support/StoreTest.h"

#include <QDir>

namespace {

struct RaceRegisterTest : StoreTest {
  void addRaces() {
    for (const char *name : {"Riesentorlauf", "Slalom", "Abfahrt"})
      test.addRace(name);
  }
};

// Typed, opened, number before, number behind: the steps count from what was typed.
TEST_F(RaceRegisterTest, NumbersAreHeldToTheRacesThereAre) {
  addRaces();
  EXPECT_EQ(nextRaceText(store, "2", "Slalom"), "3");
  EXPECT_EQ(store.RennenAnzahl, 3);
  const std::tuple<const char *, int, const char *, const char *> cases[] = {
      {"3m", 3, "2", "4"}, {"1", 1, "1", "2"}, {"1.5", 2, "1", "3"}, {"99", 4, "98", "100"}, {"", 1, "1", "1"}};
  for (const auto &[typed, opened, before, behind] : cases) {
    const auto number = QLatin1String(typed);
    openRaceNumbered(store, number);
    EXPECT_EQ(store.AktRennen, opened) << typed;
    EXPECT_EQ(previousRaceText(store, number), before) << typed;
    EXPECT_EQ(nextRaceText(store, number, "Abfahrt"), QString(behind)) << typed;
  }
  EXPECT_EQ(test.beeps, 2); // for "1" and for nothing
  EXPECT_EQ(nextRaceText(store, "5", "  "), std::nullopt);
  EXPECT_EQ(store.RennenAnzahl, 5);
}

TEST_F(RaceRegisterTest, DeletionTakesTheRacesFilesAndKeepsItsNumber) {
  addRaces();
  openRaceNumbered(store, "2");
  store.Teilnehmer[1].LaeuferNr = 1;
  store.KlasseName[1] = "Eigene";
  for (const char *file : {"R 2.dat", "K 2.lst", "G 2.lst", "M 2.lst", "Z 2.dat", "R 1.dat", "K 22.lst"})
    test.writeFile(file, {});
  eraseRace(store);
  EXPECT_EQ(QDir(store.DatenOrdner).entryList({"? *"}).join(u','), "K 22.lst,R 1.dat");
  EXPECT_EQ(RennenListeFuellen(store).join(u','), " 3    Abfahrt, 1    Riesentorlauf");
  EXPECT_EQ(store.RennenAnzahl, 3);
  EXPECT_EQ(store.AktRennen, 2);
  EXPECT_EQ(store.Rennen.WertKlassen, 1);
  EXPECT_EQ(store.Teilnehmer[1].LaeuferNr, 0);
  EXPECT_EQ(store.KlasseName[1], "Bambini 1");
}

TEST_F(RaceRegisterTest, RaceZeroTakesTheCriteriaOfTheRaceReadLast) {
  addRaces();
  openRaceNumbered(store, "1");
  store.Rennen.WertZeit = 7;
  RennenSchreiben(store);
  openRaceNumbered(store, "3");
  store.AktRennen = 0;
  RennenListeFuellen(store);
  EXPECT_EQ(store.RennenIdx, 0);
  EXPECT_EQ(store.Rennen.WertZeit, 7);
  EXPECT_EQ(store.Rennen.RennenName, QString());
}

} // namespace
