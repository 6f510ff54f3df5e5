#include "evaluation/TeamEvaluation.h"

#include "support/TeamRace.h"

namespace {

using enum WertungsFilter;
using enum MemberOrder;

struct TeamEvaluationTest : StoreTest {
  TeamEvaluationTest() { prepareUnits(store); }

  QList<int> gezaehlt() const {
    QList<int> rows;
    for (int row = 1; row <= 1000; ++row)
      if (store.mannschaften.WertGezaehlt[row] == 1)
        rows << row;
    return rows;
  }

  TeamRace race{test};
};

} // namespace

TEST_F(TeamEvaluationTest, BestTimesAndAverages) {
  const Wertung clubs;
  const QString name1 = "SC Alm              ", name2 = "TV Berg             ";
  EXPECT_EQ(evaluateUnits(store, clubs), (QStringList{QString("     40,00 ") + name1 + QString("      1"),
                                                      QString("     40,00 ") + name2 + QString("      2")}));
  EXPECT_EQ(evaluateUnits(store, {Einheit::Mannschaft, WertungsArt::Durchschnitt}),
            (QStringList{"     41,00 Die Schnellen      3", "     60,00 Älter      7"}));
  EXPECT_EQ(evaluateUnits(store, {Einheit::Mannschaft, WertungsArt::Durchschnitt, NurMaennlich}),
            (QStringList{"     41,00 Die Schnellen      3", "     80,00 Älter      7"}));
}

TEST_F(TeamEvaluationTest, SumOfTheBestPutsIncompleteUnitsBehind) {
  QList<QStringList> lists;
  const auto keep = [&lists](const QStringList &times) { lists << times; };
  EXPECT_EQ(evaluateUnits(store, {Einheit::Mannschaft, WertungsArt::ZeitsummeDerBesten, Gemischt, 3}, keep),
            (QStringList{" 100082,00 Die Schnellen      3", " 100120,00 Älter      7", " 300000,00 niemand      8"}));
  EXPECT_EQ(lists.first(), (QStringList{"     40,00          3", "     42,00          4"}));
  EXPECT_EQ(gezaehlt(), (QList<int>{1, 2, 3, 4}));
  evaluateUnits(store, {Einheit::Mannschaft, WertungsArt::Bestzeit});
  EXPECT_EQ(gezaehlt().size(), 4) << "the marks stay without a filter";
  EXPECT_EQ(evaluateUnits(store, {Einheit::Verein, WertungsArt::ZeitsummeDerBesten, NurWeiblich, 2}).size(), 2);
  EXPECT_EQ(gezaehlt(), (QList<int>{1, 3}));
  store.Teilnehmer[1].Zeit1 = 40.004;
  store.Teilnehmer[2].Zeit1 = 80.004;
  evaluateUnits(store, {Einheit::Mannschaft, WertungsArt::ZeitsummeDerBesten, Gemischt, 2});
  EXPECT_EQ(store.mannschaften.WertErgebnis[7], 120) << "added as they are listed";
  prepareUnits(store);
  EXPECT_TRUE(gezaehlt().isEmpty()) << "the next opening marks nobody";
}

TEST_F(TeamEvaluationTest, MembersInTheirOrders) {
  const Wertung teams{Einheit::Mannschaft, WertungsArt::Bestzeit};
  store.Teilnehmer[3].KlasseReihe = 12;
  store.Teilnehmer[4].KlasseReihe = 3;
  EXPECT_EQ(memberLines(store, teams, 3, ByTime),
            (QStringList{"   40,00   CERNY Ida        3", "   42,00   DORN Uwe        4"}));
  EXPECT_EQ(memberLines(store, teams, 3, ByName).first(), "   CERNY Ida        3");
  EXPECT_EQ(memberLines(store, teams, 3, ByClass).first(), "  3   DORN Uwe        4");
  EXPECT_EQ(memberLines(store, {}, 2, ByTime).size(), 2);
}

TEST_F(TeamEvaluationTest, RowsKeepTheClubOfAnEarlierRaceButCountForNobody) {
  store.mannschaften.VereinRecNr[6] = 2;
  store.Teilnehmer[4].VereinNr = 4; // none here: keeps club 2 and counts for it
  store.Teilnehmer[3].VereinNr = 0;
  prepareUnits(store);
  EXPECT_EQ(store.mannschaften.WertVereinIdx[4], 2);
  EXPECT_EQ(store.mannschaften.WertVereinIdx[6], 0);
  EXPECT_EQ(evaluateUnits(store, {}).last().left(10), "     42,00");
  EXPECT_EQ(memberLines(store, {}, 2, ByName).size(), 3);
}

TEST_F(TeamEvaluationTest, FurtherClubsTakeTheHundredthNumber) {
  for (int i = 3; i <= 102; ++i)
    race.add(qPrintable(QString("LÄUFER %1").arg(i)), 0, test.addClub(QString("Klub %1").arg(i)), 0, 50);
  prepareUnits(store);
  EXPECT_EQ(store.mannschaften.WertVerein[99], 99);
  EXPECT_EQ(store.mannschaften.WertVerein[100], 102);
  EXPECT_EQ(store.mannschaften.WertVereinIdx[6 + 98], 0) << "club 100 has lost its number";
  EXPECT_EQ(store.mannschaften.WertVereinIdx[6 + 100], 100);
  EXPECT_EQ(clubLines(store).size(), 100);
}
