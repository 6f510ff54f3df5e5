#include "evaluation/CupScoring.h"

#include "support/StoreTest.h"

namespace {

struct Round {
  int rang;
  double zeit;
  int status = 0;
};

constexpr int Absent = 99;

void setRuns(Store &store, int person, const QList<Round> &runs) {
  store.cup.CupRunden = int(runs.size());
  for (int round = 1; round <= store.cup.CupRunden; ++round) {
    store.cup.CupRang(person, round) = runs[round - 1].rang;
    store.cup.CupZeit(person, round) = runs[round - 1].zeit;
    store.cup.CupStatus(person, round) = runs[round - 1].status;
  }
}

using CupScoringTest = StoreTest;

} // namespace

TEST_F(CupScoringTest, Strikes) {
  const struct {
    const char *what;
    QList<Round> runs;
    int count;
    const char *struck;
  } cases[] = {{"the absence before a bad place", {{1, 50}, {Absent, 0, 1}, {70, 40}}, 1, ".X."},
               {"a dis", {{0, 0, 3}, {1, 50}, {2, 60}}, 1, "X.."},
               {"the last of two missed", {{Absent, 0, 1}, {1, 50}, {0, 0, 2}}, 1, "..X"},
               {"both missed, then the worst place", {{Absent, 0, 1}, {3, 50}, {0, 0, 2}, {2, 60}}, 3, "XXX."},
               {"the slower of equal places", {{1, 70}, {5, 50}, {5, 60}}, 1, "..X"},
               {"the first of equal places and times", {{5, 60}, {5, 60}}, 1, "X."},
               {"nothing without a time", {{0, 0}, {0, 0}}, 1, ".."}};
  for (const auto &[what, runs, count, expected] : cases) {
    setRuns(store, 1, runs); // what the case before struck is taken back
    strikeResults(store.cup, 1, count);
    std::string struck;
    for (int round = 1; round <= store.cup.CupRunden; ++round)
      struck += store.cup.CupStreich(1, round) == 1 ? 'X' : '.';
    EXPECT_EQ(struck, expected) << what;
  }
}

TEST_F(CupScoringTest, PointsComeFromTheTableAndNotForStruckOrMissedResults) {
  store.cup.CupPunkteTabelle[1] = 20;
  store.cup.CupPunkteTabelle[3] = -2;
  store.cup.CupPunkteTabelle[99] = store.cup.CupPunkteTabelle[100] = 7;
  setRuns(store, 1, {{1, 50}, {1, 50}, {3, 50}, {100, 50}, {101, 50}, {0, 0}, {99, 0, 1}});
  store.cup.CupStreich(1, 2) = 1;
  awardPoints(store.cup, 1);
  QList<int> points;
  for (int round = 0; round <= store.cup.CupRunden; ++round)
    points << store.cup.CupPunkte(1, round);
  EXPECT_EQ(points, (QList<int>{25, 20, 0, -2, 7, 0, 0, 0}));
}
