#include "core/Classes.h"

#include "platform/Faults.h"
#include "support/StoreTest.h"

namespace {

struct ClassesTest : RaceTest {
  TeilnehmerZeile &enter(int year, int sex = 1) {
    return store.Teilnehmer[test.enter(test.addAthlete("HUBER Kim", year, sex))];
  }
};

} // namespace

TEST_F(ClassesTest, LastOfOverlappingClassesHoldsAndAllCountAndWithoutAClassTheRowKeepsItsOwn) {
  const auto &row = enter(1987), &tooOld = enter(1890); // in "AK 1" and "AK 2" of the season, in none
  store.Teilnehmer[2].KlasseNr = 5;
  KlassenZuordnen(store);
  EXPECT_EQ(row.KlasseNr, 16);
  EXPECT_EQ(store.KlasseAnzahl[15], 1);
  EXPECT_EQ(store.KlasseAnzahl[16], 1);
  EXPECT_EQ(tooOld.KlasseNr, 5);
}

TEST_F(ClassesTest, AFaultBeginsWithWhatIsToBeDone) {
  auto &row = enter(2013, 2);
  const struct {
    const char *begin;
    int sexCriterion, guestCriterion, guest;
  } cases[] = {{"„HUBER Kim“ (Läufer Nr. 1, Zeile 1 der Teilnehmer): das Geschlecht fehlt.", 1, 0, 0},
               {"Bitte in den Auswertungskriterien „m/w“ neu wählen", 3, 0, 0},
               {"„HUBER Kim“ (Läufer Nr. 1, Zeile 1 der Teilnehmer): „Gast“ ist weder", 0, 1, 2},
               {"Bitte in den Auswertungskriterien „Gäste“ neu wählen", 0, 2, 1}};
  for (const auto &[begin, sexCriterion, guestCriterion, guest] : cases) {
    store.Rennen.WertGeschlecht = quint8(sexCriterion);
    store.Rennen.WertGaeste = quint8(guestCriterion);
    row.Gast = guest;
    try {
      KlassenZuordnen(store);
      ADD_FAILURE() << begin;
    } catch (const RangeFault &fault) {
      EXPECT_TRUE(fault.report().startsWith(begin)) << fault.what();
      EXPECT_TRUE(fault.report().endsWith("KlasseReihenfolge (0 bis 1).")) << fault.what();
    }
  }
}

TEST_F(ClassesTest, SwitchesActOnlyWhereTheRaceSplits) {
  auto &row = enter(2013);
  row.Gast = 1;
  row.Status2 = 3;
  store.KlasseReihenfolge(8, 1, 0, 0) = 12;
  store.KlasseReihenfolge(8, 1, 1, 0) = 34;
  store.Rennen.WertGeschlecht = 1;
  KlassenZuordnen(store);
  EXPECT_EQ(row.KlasseReihe, 12);
  EXPECT_EQ(row.KlasseGenau, 57);
  EXPECT_EQ(store.KlasseAnzahl[8], 1);
  EXPECT_EQ(store.KlasseAnzahlOk[8], 0);
  store.Rennen.WertGaeste = 1;
  KlassenZuordnen(store);
  EXPECT_EQ(row.KlasseReihe, 34);
  EXPECT_EQ(row.KlasseGenau, 59);
}

TEST_F(ClassesTest, FlagsAndStatusFromAFileMayBeAnyNumber) {
  constexpr int Lowest = std::numeric_limits<int>::min();
  auto &row = enter(2013);
  row.Status1 = row.Status2 = row.Gast = Lowest;
  KlassenZuordnen(store);
  EXPECT_EQ(store.KlasseAnzahlOk[8], 0);
  store.Rennen.WertGaeste = 2;
  EXPECT_THROW(KlassenZuordnen(store), RangeFault);
}
