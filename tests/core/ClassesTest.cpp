#include "core/Classes.h"

#include "core/RaceFiles.h"
#include "platform/Faults.h"
#include "support/TestStore.h"

namespace {

class Classes : public testing::Test {
protected:
  Classes() { test.addRace(QStringLiteral("Rennen")); }

  TestStore test;
  Store &store = test.store;
};

} // namespace

TEST_F(Classes, LastOfOverlappingClassesHoldsAndAllCount) {
  const int row = test.enter(test.addAthlete(QStringLiteral("A"), 1987, 1)); // in "AK 1" and "AK 2" of the season
  KlassenZuordnen(store);
  EXPECT_EQ(store.Teilnehmer[row].KlasseNr, 16);
  EXPECT_EQ(store.KlasseAnzahl[15], 1);
  EXPECT_EQ(store.KlasseAnzahl[16], 1);
}

TEST_F(Classes, SwitchesActOnlyWhereTheRaceSplits) {
  const int row = test.enter(test.addAthlete(QStringLiteral("A"), 2013, 1));
  store.Teilnehmer[row].Gast = 1;
  store.Teilnehmer[row].Status2 = 3;
  store.KlasseReihenfolge(8, 1, 0, 0) = 12;
  store.KlasseReihenfolge(8, 1, 1, 0) = 34;
  store.Rennen.WertGeschlecht = 1;
  KlassenZuordnen(store);
  EXPECT_EQ(store.Teilnehmer[row].KlasseReihe, 12);
  EXPECT_EQ(store.Teilnehmer[row].KlasseGenau, 57);
  EXPECT_EQ(store.KlasseAnzahl[8], 1);
  EXPECT_EQ(store.KlasseAnzahlOk[8], 0);
  store.Rennen.WertGaeste = 1;
  KlassenZuordnen(store);
  EXPECT_EQ(store.Teilnehmer[row].KlasseReihe, 34);
  EXPECT_EQ(store.Teilnehmer[row].KlasseGenau, 59);
}

TEST_F(Classes, RowThatFitsNoClassKeepsWhatItHad) {
  const int row = test.enter(test.addAthlete(QStringLiteral("A"), 1890, 1));
  store.Teilnehmer[row].KlasseNr = 5;
  KlassenZuordnen(store);
  EXPECT_EQ(store.Teilnehmer[row].KlasseNr, 5);
}

TEST_F(Classes, MissingSexInARaceSplitBySexNamesThePerson) {
  test.enter(test.addAthlete(QStringLiteral("HUBER Kim"), 2013, 2));
  KlassenZuordnen(store);
  store.Rennen.WertGeschlecht = 1;
  try {
    KlassenZuordnen(store);
    FAIL() << "no fault";
  } catch (const RangeFault &fault) {
    EXPECT_TRUE(fault.report().contains(QStringLiteral("HUBER Kim"))) << fault.what();
  }
}
