#include "timing/Ranking.h"

#include "support/TestStore.h"

namespace {

struct Person {
  QString name;
  double time1 = 0, time2 = 0;
  int status1 = 0, status2 = 0, sex = 0, gast = 0, reihe = 1;
};

/// One race; the participants stand in the rows 1, 2, … in the order of entering and have the class of their row of
/// `KlasseReihe`.
class RankingTest : public testing::Test {
protected:
  RankingTest() {
    club = test.addClub(QStringLiteral("SC Alm"));
    test.addRace(QStringLiteral("Lauf"));
    for (int klasse = 1; klasse <= 2; ++klasse)
      store.KlasseGenauName[klasse] = QStringLiteral("Klasse %1").arg(klasse);
  }

  TeilnehmerZeile &enter(const Person &person) {
    const int row = test.enter(test.addAthlete(person.name, 1990, person.sex, club), 100);
    auto &participant = store.Teilnehmer[row];
    participant.Zeit1 = person.time1;
    participant.Zeit2 = person.time2;
    participant.Status1 = person.status1;
    participant.Status2 = person.status2;
    participant.Gast = person.gast;
    participant.KlasseReihe = participant.KlasseNr = person.reihe;
    participant.KlasseGenau = qint16(person.reihe);
    return participant;
  }

  QList<int> places() const {
    QList<int> result;
    for (int row = 1; store.Teilnehmer[row].LaeuferNr != 0; ++row)
      result << store.Teilnehmer[row].Rang;
    return result;
  }

  QList<int> order() const {
    QList<int> result;
    for (int line = 1; store.RangListe[line] != 0; ++line)
      result << store.RangListe[line];
    return result;
  }

  TestStore test;
  Store &store = test.store;
  int club = 0;
};

TEST_F(RankingTest, listsOneRunWithTiesAndDifferences) {
  enter({.name = QStringLiteral("ZAHN Eva"), .time1 = 83.5});
  enter({.name = QStringLiteral("ADAM Rosa-Maria Theresia Josepha"), .time1 = 83.5});
  enter({.name = QStringLiteral("MOSER Ida"), .time1 = 90.004});
  enter({.name = QStringLiteral("AUER Li"), .time1 = 90.001});
  enter({.name = QStringLiteral("ERSTER Max"), .time1 = 3661, .reihe = 2});
  store.RangListe[6] = 77;
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), (QList<int>{2, 1, 4, 3, 5}));
  EXPECT_EQ(places(), (QList<int>{1, 1, 4, 3, 1}));
  EXPECT_EQ(store.ErgebnisZeilen.join(QLatin1Char('\n')).toStdString(), R"(
Rang--Name------------------Startnr.-Klasse-----------Zeit----Diff.
   1. ADAM Rosa-Maria Theresia   100 Klasse 1        83,50     0,00
   2. ZAHN Eva                   100 Klasse 1        83,50     0,00
   3. AUER Li                    100 Klasse 1        90,00     6,50
   4. MOSER Ida                  100 Klasse 1        90,00     6,50

Rang--Name------------------Startnr.-Klasse-----------Zeit----Diff.
   1. ERSTER Max                 100 Klasse 2      3661,00     0,00)");
}

TEST_F(RankingTest, twoRunsTieByTheFirstRunOfNeighbours) {
  store.Rennen.ZweiDurchgaenge = 1;
  enter({.name = QStringLiteral("A"), .time1 = 50, .time2 = 50});
  enter({.name = QStringLiteral("B"), .time1 = 50, .time2 = 51});
  enter({.name = QStringLiteral("C"), .time1 = 51, .time2 = 50});
  ErgebnisRechnen(store);
  EXPECT_EQ(places(), (QList<int>{1, 1, 3}));
  EXPECT_EQ(store.ErgebnisZeilen.last(),
            QStringLiteral("   3. C                          100 Klasse 1        51,00    50,00   101,00     1,00"));
}

TEST_F(RankingTest, whoIsRanked) {
  enter({.name = QStringLiteral("A"), .time1 = 50});
  enter({.name = QStringLiteral("B"), .time1 = 50, .status2 = 5});
  enter({.name = QStringLiteral("C")});
  enter({.name = QStringLiteral("  "), .time1 = 50});
  auto &stranger = enter({.name = QStringLiteral("D"), .time1 = 50});
  stranger.LaeuferNr = 99;
  test.beeps = 0;
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), QList<int>{1});
  EXPECT_EQ(test.beeps, 1);
  auto &second = enter({.name = QStringLiteral("E"), .time1 = 60, .time2 = 1}); // though the race has one run
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), QList<int>{6});
  EXPECT_EQ(second.WertSumme, 60);
  EXPECT_EQ(store.Teilnehmer[1].WertZeit1, 0);
  EXPECT_EQ(store.Teilnehmer[1].KlasseKopf, 0);
}

TEST_F(RankingTest, surchargesAndBestTimes) {
  store.Rennen.ZweiDurchgaenge = 1;
  store.Rennen.ZuschlagGast = 10;
  store.Rennen.ZuschlagMann = -60;
  store.Rennen.BestzeitAbKlasse = 1;
  auto &guest = enter({.name = QStringLiteral("A"), .time1 = 50, .sex = 1, .gast = 1, .reihe = 2});
  enter({.name = QStringLiteral("B"), .time1 = 40, .reihe = 1});
  enter({.name = QStringLiteral("C"), .time1 = 45, .reihe = 2});
  enter({.name = QStringLiteral("D"), .time1 = 41, .sex = 2, .reihe = 2});
  ErgebnisRechnen(store);
  EXPECT_EQ(guest.Zeit1, 50);
  EXPECT_EQ(guest.WertZeit1, 0);
  EXPECT_EQ(guest.WertZeit2, 0);
  EXPECT_EQ(store.BestzeitDamen, 45);
  EXPECT_EQ(store.BestzeitHerren, 0);
  store.Rennen.BestzeitAbKlasse = 2;
  ErgebnisRechnen(store);
  EXPECT_EQ(store.BestzeitDamen, 99999);
  EXPECT_EQ(store.BestzeitHerren, 99999);
}

TEST_F(RankingTest, clubFilter) {
  enter({.name = QStringLiteral("A"), .time1 = 50});
  enter({.name = QStringLiteral("B"), .time1 = 40}).VereinNr = 2;
  enter({.name = QStringLiteral("C"), .time1 = 30}).VereinNr = 4;
  const std::pair<std::optional<int>, QList<int>> cases[] = {{{}, {3, 2, 1}}, {club, {1}}, {club + 1, {}}, {0, {}}};
  for (const auto &[filter, rows] : cases) {
    ErgebnisRechnen(store, filter);
    EXPECT_EQ(order(), rows) << filter.value_or(-1);
  }
}

TEST_F(RankingTest, pointsRankLowestFirstInGroups) {
  store.Rennen.WertZeit = store.Rennen.WertKlassen = 0;
  store.GruppeName[7] = QStringLiteral("Gruppe der Besten");
  for (const float points : {2.5F, 0.0F}) {
    auto &participant = enter({.name = QStringLiteral("A"), .time1 = 50});
    participant.Punkte = points;
    participant.GruppeNr = 7;
  }
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), (QList<int>{2, 1}));
  EXPECT_EQ(places(), (QList<int>{1, 1}));
  EXPECT_EQ(store.ErgebnisZeilen.last(), QStringLiteral("   2. A                          100 Gruppe der B 00002,50"));
  store.Teilnehmer[1].GruppeNr = 101;
  EXPECT_THROW(ErgebnisRechnen(store), RangeFault);
}

TEST_F(RankingTest, rowsOfOneAthleteSortAsText) {
  for (int row = 1; row <= 10; ++row)
    enter({.name = QStringLiteral("GLEICH Anna"), .time1 = row < 9 ? 0.0 : 50.0});
  ErgebnisRechnen(store);
  EXPECT_EQ(order(), (QList<int>{10, 9}));
}

TEST_F(RankingTest, firstRunIsDenseAndCarriesTheLastTimeOn) {
  enter({.name = QStringLiteral("A"), .time1 = 0, .time2 = 3});
  enter({.name = QStringLiteral("B"), .time1 = 50});
  enter({.name = QStringLiteral("C"), .time1 = 50, .status2 = 3});
  enter({.name = QStringLiteral("D"), .time1 = 60});
  enter({.name = QStringLiteral("E"), .time1 = 55, .status1 = 1}).Rang = 12;
  enter({.name = QStringLiteral("F"), .time1 = 60, .reihe = 2});
  enter({.name = QStringLiteral("G"), .time1 = 61, .reihe = 2});
  store.RangListe[7] = 77;
  store.ErgebnisZeilen << QString();
  Rangfolge1(store);
  EXPECT_EQ(order(), (QList<int>{1, 2, 3, 4, 6, 7, 77}));
  EXPECT_EQ(places(), (QList<int>{1, 2, 2, 3, 12, 1, 2}));
  EXPECT_EQ(store.Teilnehmer[5].WertZeit1, 0);
  EXPECT_EQ(store.BestzeitHerren, 999999);
  EXPECT_TRUE(store.ErgebnisZeilen.isEmpty());
}

} // namespace
