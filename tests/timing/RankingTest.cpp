#include "timing/Ranking.h"

#include "support/StoreTest.h"

namespace {

using Rows = QList<int>;

/// One race; the participants stand in the rows 1, 2, … in the order of entering.
struct RankingTest : RaceTest {
  RankingTest() {
    store.KlasseGenauName[0] = "Klasse 0";
    store.KlasseGenauName[1] = "Klasse 1";
  }

  TeilnehmerZeile &enter(const char *name, TeilnehmerZeile values, int sex = 0) {
    values.LaeuferNr = test.addAthlete(name, 1990, sex, 1);
    values.StartNr = 100;
    return store.Teilnehmer[test.enter(values.LaeuferNr)] = values;
  }

  Rows places() const {
    Rows result;
    for (int row = 1; store.Teilnehmer[row].LaeuferNr != 0; ++row)
      result << store.Teilnehmer[row].Rang;
    return result;
  }

  Rows order() const {
    Rows result;
    for (int line = 1; store.ranking.RangListe[line] != 0; ++line)
      result << store.ranking.RangListe[line];
    return result;
  }
};

TEST_F(RankingTest, ListsOneRunWithTiesAndDifferences) {
  enter("ZAHN Eva", {.Zeit1 = 83.5});
  enter("ADAM Rosa-Maria Theresia Josepha", {.Zeit1 = 83.5});
  enter("MOSER Ida", {.Zeit1 = 90.004});
  enter("AUER Li", {.Zeit1 = 90.001});
  enter("ERSTER Max", {.Zeit1 = 3661, .KlasseGenau = 1, .KlasseReihe = 2});
  store.ranking.RangListe[6] = 77;
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), (Rows{2, 1, 4, 3, 5}));
  EXPECT_EQ(places(), (Rows{1, 1, 4, 3, 1}));
  EXPECT_EQ(store.ranking.ErgebnisZeilen.join(u'\n').toStdString(), R"(
Rang--Name------------------Startnr.-Klasse-----------Zeit----Diff.
   1. ADAM Rosa-Maria Theresia   100 Klasse 0        83,50     0,00
   2. ZAHN Eva                   100 Klasse 0        83,50     0,00
   3. AUER Li                    100 Klasse 0        90,00     6,50
   4. MOSER Ida                  100 Klasse 0        90,00     6,50

Rang--Name------------------Startnr.-Klasse-----------Zeit----Diff.
   1. ERSTER Max                 100 Klasse 1      3661,00     0,00)");
}

TEST_F(RankingTest, TwoRunsTieByTheFirstRunOfNeighbours) {
  store.Rennen.ZweiDurchgaenge = 1;
  enter("A", {.Zeit1 = 50, .Zeit2 = 50});
  enter("B", {.Zeit1 = 50, .Zeit2 = 51});
  enter("C", {.Zeit1 = 51, .Zeit2 = 50});
  ErgebnisRechnen(store);
  EXPECT_EQ(places(), (Rows{1, 1, 3}));
  EXPECT_EQ(store.ranking.ErgebnisZeilen.last(),
            "   3. C                          100 Klasse 0        51,00    50,00   101,00     1,00");
}

TEST_F(RankingTest, WhoIsRanked) {
  enter("A", {.Zeit1 = 50});
  enter("B", {.Zeit1 = 50, .Status2 = 5});
  enter("C", {});
  enter("  ", {.Zeit1 = 50});
  enter("D", {.Zeit1 = 50}).LaeuferNr = 99;
  test.beeps = 0;
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), Rows{1});
  EXPECT_EQ(test.beeps, 1);
  enter("E", {.Zeit1 = 60, .Zeit2 = 1}); // a second time counts though the race has one run
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), Rows{6});
  EXPECT_EQ(store.Teilnehmer[6].WertSumme, 60);
  EXPECT_EQ(store.Teilnehmer[1].WertZeit1 + store.Teilnehmer[1].KlasseKopf, 0);
}

TEST_F(RankingTest, SurchargesAndBestTimes) {
  store.Rennen.ZweiDurchgaenge = store.Rennen.BestzeitAbKlasse = 1;
  store.Rennen.ZuschlagGast = 10;
  store.Rennen.ZuschlagMann = -60;
  const auto &guest = enter("A", {.KlasseNr = 2, .Zeit1 = 51, .Gast = 1}, 1);
  enter("B", {.KlasseNr = 1, .Zeit1 = 40});
  enter("C", {.KlasseNr = 2, .Zeit1 = 45});
  enter("D", {.KlasseNr = 2, .Zeit1 = 41}, 2);
  ErgebnisRechnen(store);
  EXPECT_EQ(std::pair(guest.WertZeit1, guest.WertZeit2), std::pair(1., 0.));
  EXPECT_EQ(std::pair(store.ranking.BestzeitDamen, store.ranking.BestzeitHerren), std::pair(45., 1.));
}

TEST_F(RankingTest, PointsRankLowestFirstInGroups) {
  store.Rennen.WertZeit = store.Rennen.WertKlassen = 0;
  store.GruppeName[7] = "Gruppe der Besten";
  enter("A", {.GruppeNr = 7, .Punkte = 2.5F, .Zeit1 = 50});
  enter("A", {.GruppeNr = 7, .Punkte = 0, .Zeit1 = 50});
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), (Rows{2, 1}));
  EXPECT_EQ(store.ranking.ErgebnisZeilen.last(), "   2. A                          100 Gruppe der B 00002,50");
}

TEST_F(RankingTest, FirstRunIsDenseAndCarriesTheLastTimeOn) {
  enter("A", {.Zeit1 = 0});
  enter("B", {.Zeit1 = 50});
  enter("C", {.Zeit1 = 50, .Status2 = 3});
  enter("D", {.Zeit1 = 60});
  enter("E", {.Zeit1 = 55, .Status1 = 1, .Rang = 12});
  enter("F", {.Zeit1 = 60, .KlasseReihe = 2});
  enter("G", {.Zeit1 = 61, .KlasseReihe = 2});
  store.ranking.RangListe[7] = 77;
  Rangfolge1(store);
  EXPECT_EQ(order(), (Rows{1, 2, 3, 4, 6, 7, 77}));
  EXPECT_EQ(places(), (Rows{1, 2, 2, 3, 12, 1, 2}));
  EXPECT_EQ(store.ranking.BestzeitHerren, 999999);
}

} // namespace
