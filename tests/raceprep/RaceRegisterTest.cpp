#include "raceprep/RaceRegister.h"

#include "core/RaceFiles.h"
#include "raceprep/RaceList.h"
#include "support/TestStore.h"

namespace {

QString text(const char *value) {
  return QString::fromUtf8(value);
}

class RaceRegisterTest : public testing::Test {
protected:
  void addRaces() {
    for (const char *name : {"Riesentorlauf", "Slalom", "Abfahrt"})
      test.addRace(text(name));
  }

  TestStore test;
  Store &store = test.store;
};

TEST_F(RaceRegisterTest, FirstNameGoesToRecordOneWhileRaceZeroStaysOpen) {
  rennenOeffnen(store, text("1"));
  rennenEintragen(store, text("  Vereinslauf "));
  EXPECT_EQ(RennenListeFuellen(store), QStringList{text(" 1    Vereinslauf")});
  EXPECT_EQ(store.RennenAnzahl, 1);
  EXPECT_EQ(store.AktRennen, 0);
  EXPECT_EQ(store.RennenIdx, 0);
  EXPECT_EQ(test.file(text("Rennen.rec")).size(), 1137);
  EXPECT_EQ(rennenZuBeginn(store), 1);
}

TEST_F(RaceRegisterTest, NumbersAreHeldToTheRacesThereAre) {
  addRaces();
  const std::pair<const char *, int> cases[] = {{"2", 2},  {"", 1},    {"0", 1},   {"-7", 1},
                                                {"99", 3}, {"2,9", 2}, {"x", 1},   {"1.5", 2},
                                                {"3m", 3}, {" 2", 2},  {"7e9", 3}, {"99999999999", 3}};
  for (const auto &[nummer, race] : cases) {
    rennenOeffnen(store, text(nummer));
    EXPECT_EQ(store.AktRennen, race) << nummer;
  }
}

TEST_F(RaceRegisterTest, StepsCountFromWhatWasTyped) {
  addRaces();
  const std::tuple<const char *, const char *, const char *> cases[] = {
      {"3", "2", "4"}, {"1", "1", "2"}, {"99", "98", "100"}, {"", "1", "1"}};
  for (const auto &[typed, before, behind] : cases) {
    EXPECT_EQ(vorherigesRennen(store, text(typed)), text(before)) << typed;
    EXPECT_EQ(naechstesRennen(store, text(typed), text("Abfahrt")), text(behind)) << typed;
  }
  EXPECT_EQ(test.beeps, 2); // for "1" and for nothing
  EXPECT_EQ(store.RennenAnzahl, 5);
  EXPECT_EQ(naechstesRennen(store, text("5"), text("  ")), std::nullopt);
  EXPECT_EQ(store.RennenAnzahl, 5);
}

TEST_F(RaceRegisterTest, NewRaceInheritsTheCriteriaAndNothingElse) {
  addRaces();
  store.Rennen.ZweiDurchgaenge = 1;
  store.Rennen.UrkundeBild = 4;
  store.Rennen.ZuschlagMann = 3;
  EXPECT_EQ(naechstesRennen(store, text("3"), text("Abfahrt")), text("4"));
  rennenOeffnen(store, text("4"));
  EXPECT_EQ(store.Rennen.ZweiDurchgaenge, 1);
  EXPECT_EQ(store.Rennen.UrkundeBild, 4);
  EXPECT_EQ(store.Rennen.ZuschlagMann, 0);
  EXPECT_TRUE(store.Rennen.RennenName.isEmpty());
}

TEST_F(RaceRegisterTest, DeletionTakesTheRacesFilesAndKeepsItsNumber) {
  addRaces();
  rennenOeffnen(store, text("2"));
  test.enter(test.addAthlete(text("BERGER Eva"), 2000, 0));
  store.MannschaftName[1] = store.GruppeName[1] = text("A");
  store.KlasseName[1] = text("Eigene");
  RennDatenSpeichern(store);
  for (const char *file : {"Z 2.dat", "R 1.dat", "K 22.lst"})
    test.writeFile(text(file), {});
  rennenLoeschen(store);
  for (const char *file : {"R 2.dat", "K 2.lst", "G 2.lst", "M 2.lst", "Z 2.dat"})
    EXPECT_FALSE(test.hasFile(text(file))) << file;
  EXPECT_TRUE(test.hasFile(text("R 1.dat")) && test.hasFile(text("K 22.lst")));
  EXPECT_EQ(RennenListeFuellen(store), (QStringList{text(" 3    Abfahrt"), text(" 1    Riesentorlauf")}));
  EXPECT_EQ(store.RennenAnzahl, 3);
  EXPECT_EQ(store.AktRennen, 2);
  EXPECT_EQ(store.Rennen.WertKlassen, 1);
  EXPECT_EQ(store.Teilnehmer[1].LaeuferNr, 0);
  EXPECT_EQ(store.KlasseName[1], text("Bambini 1"));
}

TEST_F(RaceRegisterTest, LinesOfTheListLeaveTheOpenRaceAlone) {
  addRaces();
  rennenOeffnen(store, text("1"));
  store.Rennen.RennenOrt = text("noch nicht geschrieben");
  EXPECT_EQ(rennenZeilen(store).size(), 3);
  EXPECT_EQ(store.RennenIdx, 1);
  EXPECT_EQ(store.Rennen.RennenOrt, text("noch nicht geschrieben"));
  EXPECT_EQ(rennenNummer(text(" 30000    Kopie v. Slalom")), 30000);
  EXPECT_EQ(rennenNummer(text(" 7    2. Lauf")), 7);
}

} // namespace
