#include "evaluation/CupScoring.h"

#include "support/TestStore.h"

namespace {

struct Run {
  int rang;
  double zeit;
  int status = 0;
};

struct Strike {
  const char *what;
  QList<Run> runs;
  int count;
  const char *struck;
};

constexpr int Absent = 99;

void setRuns(Store &store, int person, const QList<Run> &runs) {
  store.CupRunden = int(runs.size());
  for (int round = 1; round <= store.CupRunden; ++round) {
    store.CupRang(person, round) = runs[round - 1].rang;
    store.CupZeit(person, round) = runs[round - 1].zeit;
    store.CupStatus(person, round) = runs[round - 1].status;
  }
}

class CupScoringTest : public testing::Test {
protected:
  TestStore test;
  Store &store = test.store;
};

} // namespace

TEST_F(CupScoringTest, strikes) {
  const Strike cases[] = {
      {"nothing", {{1, 50}, {9, 60}}, 0, ".."},
      {"the absence before a bad place", {{1, 50}, {Absent, 0, 1}, {70, 40}}, 1, ".X."},
      {"a dis", {{0, 0, 3}, {1, 50}, {2, 60}}, 1, "X.."},
      {"the last of two missed", {{Absent, 0, 1}, {1, 50}, {0, 0, 2}}, 1, "..X"},
      {"both missed, then the worst place", {{Absent, 0, 1}, {3, 50}, {0, 0, 2}, {2, 60}}, 3, "XXX."},
      {"the slower of equal places", {{1, 70}, {5, 50}, {5, 60}}, 1, "..X"},
      {"the first of equal places and times", {{5, 60}, {5, 60}}, 1, "X."},
      {"nothing without a time", {{0, 0}, {0, 0}}, 1, ".."},
      {"all", {{1, 50}, {2, 50}, {3, 50}}, 3, "XXX"}};
  for (const auto &[what, runs, count, expected] : cases) {
    setRuns(store, 1, runs); // what the case before struck is taken back
    resultateStreichen(store, 1, count);
    std::string struck;
    for (int round = 1; round <= store.CupRunden; ++round)
      struck += store.CupStreich(1, round) == 1 ? 'X' : '.';
    EXPECT_EQ(struck, expected) << what;
  }
}

TEST_F(CupScoringTest, pointsComeFromTheTableAndNotForStruckOrMissedResults) {
  store.CupPunkteTabelle[1] = 20;
  store.CupPunkteTabelle[3] = -2;
  store.CupPunkteTabelle[99] = store.CupPunkteTabelle[100] = 7;
  setRuns(store, 1, {{1, 50}, {1, 50}, {3, 50}, {100, 50}, {101, 50}, {0, 0}, {99, 0, 1}});
  store.CupStreich(1, 2) = 1;
  punkteVergeben(store, 1);
  QList<int> points;
  for (int round = 0; round <= store.CupRunden; ++round)
    points << store.CupPunkte(1, round);
  EXPECT_EQ(points, (QList<int>{25, 20, 0, -2, 7, 0, 0, 0}));
}

TEST_F(CupScoringTest, personsStandByClassThenTotalThenName) {
  const QStringList names = QStringLiteral("Zorn Adam Berg Cerny Dorn").split(QLatin1Char(' '));
  const int klassen[]{0, 0, 0, 24, 0}, totals[]{30, 5, 30, 40, 0};
  for (int person = 1; person <= 5; ++person) {
    store.CupKlasse[person] = klassen[person - 1];
    store.CupPunkte(person, 0) = totals[person - 1];
  }
  const QStringList keys = cupSchluessel(store, names);
  QList<int> order;
  for (const QString &key : keys)
    order << cupPerson(key);
  EXPECT_EQ(order, (QList<int>{3, 1, 2, 5, 4}));
  EXPECT_EQ(keys[0], QStringLiteral("  09969 Berg       3"));
  EXPECT_EQ(keys[3], QStringLiteral("  09999 Dorn       5"));
}

TEST_F(CupScoringTest, equalTotalsShareAPlaceInsideTheirClass) {
  CupPlatz places;
  QList<int> shown;
  for (const int total : {30, 30, 20, 20, 0})
    shown << places.naechster(total);
  places.neueKlasse();
  shown << places.naechster(0) << places.naechster(0) << places.naechster(-1);
  EXPECT_EQ(shown, (QList<int>{1, 1, 3, 3, 5, 1, 1, 3}));
}
