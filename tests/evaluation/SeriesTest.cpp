#include "evaluation/Series.h"

#include "support/StoreTest.h"

namespace {

using Series = StoreTest;

} // namespace

TEST_F(Series, TheSecondRunMovesForwardInEveryRow) {
  for (const int row : {1, 1000}) {
    auto &participant = store.Teilnehmer[row];
    participant.LaeuferNr = row + 5;
    participant.Zeit1 = participant.Status1 = 1;
    participant.Zeit2 = participant.Status2 = 2;
  }
  EXPECT_EQ(zeilenDerLaeufer(store), (QHash<int, int>{{6, 1}, {1005, 1000}}));
  zweitenLaufVorziehen(store);
  for (const int row : {1, 1000}) {
    const auto &participant = store.Teilnehmer[row];
    EXPECT_EQ(participant.Zeit1 + participant.Status1, 4) << row;
    EXPECT_EQ(participant.Zeit2 + participant.Status2, 0) << row;
  }
}

TEST_F(Series, EveryExactClassIsRemembered) {
  store.KlasseGenauName[0] = store.KlasseGenauName[159] = "Klasse";
  klassenNamenMerken(store);
  EXPECT_EQ(store.cup.CupKlasseName[0] + store.cup.CupKlasseName[159], "KlasseKlasse");
}
