#include "raceprep/ClassOrder.h"

#include "support/StoreTest.h"

namespace {

struct ClassOrderTest : RaceTest {
  KlasseNummerRaster raster{"KlasseNummerRaster"};
};

} // namespace

TEST_F(ClassOrderTest, CellsRunOnBehindAnEmptyRowAndNumbersReturnToTheirClass) {
  store.Rennen.WertGeschlecht = store.Rennen.WertGaeste = store.Rennen.WertBoarder = 1;
  store.KlasseName[2].clear();
  store.KlasseReihenfolge(2, 1, 1, 1) = 99;
  store.KlasseReihenfolge(3, 1, 1, 1) = 4;
  store.KlasseGenauName[8] = "Mini";
  raster[159] = 30000; // of another race
  loadGrid(store, raster);
  EXPECT_EQ(raster[15], 4);
  EXPECT_EQ(raster[159], 0);
  EXPECT_EQ(store.KlasseGenauName[8], "Mini"); // built where missing only
  EXPECT_EQ(store.KlasseGenauName[15], "Kinder U8 männlich Gäste Boarder");
  raster[15] = 6;
  storeGrid(store, raster);
  EXPECT_EQ(store.KlasseReihenfolge(3, 1, 1, 1), 6);
  EXPECT_EQ(store.KlasseReihenfolge(2, 1, 1, 1), 99);
}

TEST_F(ClassOrderTest, HeadingsStandOverTheColumnsThatApply) {
  const struct {
    int sexes, guests, boarders;
    const char *headings;
  } cases[] = {{0, 0, 0, "w+m,,,,,,,"},
               {1, 0, 0, "w,m,,,,,,"},
               {0, 1, 0, "w+m,,Gäste,,,,,"},
               {1, 0, 1, "w,m,,,Bw,Bm,,"},
               {0, 1, 1, "w+m,,Gäste,,Board,,G,B,"},
               {1, 1, 1, "w,m,G-w,G-m,Bw,Bm,B,Gw,B,Gm"}};
  for (const auto &[sexes, guests, boarders, headings] : cases) {
    RennenSatz race;
    race.WertGeschlecht = quint8(sexes);
    race.WertGaeste = quint8(guests);
    race.WertBoarder = quint8(boarders);
    EXPECT_EQ(gridHeadings(race).join(u','), headings);
  }
}

TEST_F(ClassOrderTest, NextNumberIsTheHighestPlusOne) {
  raster[3] = -4;
  raster[159] = 8; // a hidden cell counts
  EXPECT_TRUE(numberCell(raster, 3));
  EXPECT_EQ(raster[3], 9);
  raster[5] = 32767;
  EXPECT_FALSE(numberCell(raster, 4));
  EXPECT_EQ(raster[4], 0);
}
