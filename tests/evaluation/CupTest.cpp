#include "evaluation/Cup.h"

#include "support/CupRaces.h"

namespace {

struct CupTest : StoreTest {
  CupRaces cup{test};
};

} // namespace

TEST_F(CupTest, ThreeRacesWorkedOutByHand) {
  loadCup(store);
  const CupResult result = evaluateCup(store, cup.all, 1);
  EXPECT_EQ(personLines(result.names).first(), "ADAM Ada");
  EXPECT_EQ(result.keys.first(), "  09949 ADAM Ada       5");
  EXPECT_EQ(result.keys.last(), "  89939 FUCHS Lea       6");
  EXPECT_EQ(result.lines, cup.lines);
  EXPECT_EQ(store.cup.CupRang(5, 4), 99);
  EXPECT_EQ(store.cup.CupZeit(1, 3), 31);
}

TEST_F(CupTest, TypedPlacesAndPointsAreHeldToTheTable) {
  for (const auto &[typed, place] : {std::pair("0", 1), {"-3", 1}, {"7.6", 8}, {"101", 100}, {"x", 1}})
    EXPECT_EQ(heldPlace(typed), place);
  for (const auto &[typed, stored, shown] : {std::tuple("12,5", true, "12"), {"40000", false, "12"}, {"", true, ""}}) {
    EXPECT_EQ(storePoints(store.cup, 100, typed), stored) << typed;
    EXPECT_EQ(pointsText(store.cup, 100), shown);
  }
}

TEST_F(CupTest, ASmallerCupKeepsNobodyOfTheOneBefore) {
  evaluateCup(store, {1}, 0);
  evaluateCup(store, {3}, 0);
  EXPECT_EQ(store.cup.CupLaeufer[5], 0);
}

TEST_F(CupTest, TheLastMarkedRaceGivesCriteriaAndTheFirstTheClass) {
  const int young = cup.add("GRUBER Tom", 2001);
  addResults(test, "Gruppen", {{young, 50}, {1, 49}}, [](RennenSatz &race) { race.WertKlassen = 0; });
  store.Teilnehmer[1].KlasseGenau = 0; // as found in an untouched copy of a race
  RennDatenSpeichern(store);
  addResults(test, "Klassen", {{young, 50}, {1, 49}}, [](RennenSatz &race) { race.ZuschlagMann = 2; });
  evaluateCup(store, {5, 4}, 0); // by groups: one ranking, no surcharge
  EXPECT_EQ(store.cup.CupRang(1, 2), 2);
  EXPECT_EQ(store.cup.CupZeit(1, 2), 50);
  EXPECT_EQ(store.cup.CupKlasse[1], 8);
  evaluateCup(store, {4}, 0);
  EXPECT_EQ(store.cup.CupKlasse[1], 0);
}

TEST_F(CupTest, AClassBehindTheTableHasNoNameAndKeepsItsOrder) {
  for (int row = 1; row <= 2; ++row)
    store.Teilnehmer[row].KlasseGenau = qint16(162 - row); // order numbers, as in an untouched copy of a race
  RennDatenSpeichern(store);
  const CupResult result = evaluateCup(store, {3}, 0);
  const QString unnamed = QString(26, u'-') + QString("----R1-Summe");
  EXPECT_EQ(result.lines.count(unnamed), 2);
  EXPECT_TRUE(result.keys.last().startsWith("161"));
}

TEST_F(CupTest, ANameIsOnePersonAndTheFirstOneGetsTheResults) {
  const int twin = cup.add("ADAM Ada", 1991), lower = cup.add("adam ada", 1991), nobody = cup.add("", 1991);
  addResults(test, "Namen", {{nobody, 1}, {twin, 40}, {1, 39}, {lower, 41}, {twin, 42}});
  const CupResult result = evaluateCup(store, {4}, 0);
  EXPECT_EQ(result.names, (QStringList{"ADAM Ada", "adam ada"}));
  EXPECT_EQ(store.cup.CupLaeufer[1], twin);
  EXPECT_EQ(store.cup.CupZeit(1, 1), 42) << "of two rows the last";
}

TEST_F(CupTest, MoreThanTenRoundsAreARangeFaultAndNoRaceIsTakenForTheWorkingTables) {
  EXPECT_THROW(evaluateCup(store, QList<int>(11, 3), 0), RangeFault);
  EXPECT_NE(store.TabellenRennen, store.AktRennen); // nothing of it may be rescued as the race
}

TEST_F(CupTest, CupFile) {
  CupChoice chosen = loadCup(store);
  store.cup.CupPunkteTabelle[2] = 0;
  store.cup.CupPunkteTabelle[100] = -7;
  EXPECT_EQ(pointsLines(store.cup, false).size(), 8);
  EXPECT_EQ(pointsLines(store.cup, true).last(), "Platz 100: -7 P.");
  chosen = {"  Cup, groß ", {12, 3}};
  saveCup(store, chosen);
  const QByteArray bytes = test.file("Cup.dat");
  EXPECT_TRUE(bytes.startsWith("Cup, gro\xDF\r\n 20 \r\n 0 \r\n 10 \r\n"));
  EXPECT_TRUE(bytes.endsWith("\r\n-7 \r\n 12 \r\n 3 \r\n"));
  EXPECT_EQ(bytes.count('\n'), 103);
  const CupChoice read = loadCup(store);
  EXPECT_EQ(read.name, "Cup, groß");
  EXPECT_EQ(read.races, chosen.races);
  EXPECT_EQ(store.cup.CupPunkteTabelle[100], -7);
  test.writeFile("Cup.dat", "Kurz\r\n 5 \r\n");
  EXPECT_TRUE(loadCup(store).races.isEmpty());
  EXPECT_EQ(pointsLines(store.cup, true).mid(0, 2), (QStringList{"Platz 1:  5 P.", "Platz 2:  15 P."}));
}
