#include "core/Start.h"

#include "core/StateFiles.h"
#include "support/StoreTest.h"

using StartTest = StoreTest;

TEST_F(StartTest, SeasonTurnsAtTheBeginningOfJuly) {
  for (const auto &[day, offset] : {std::pair{3, 11.F}, {5, 12.F}}) {
    test.umgebung.today = [day = day] { return QDate(2026, 7, day); };
    startStore(store);
    EXPECT_EQ(store.JahrOffset, offset);
  }
  EXPECT_EQ(store.StdKlasse[20].Von, 1912);
}

TEST_F(StartTest, PlacesAreMirroredBackAndCountsReadAsFarAsTheyGo) {
  test.writeFile("TopLeft.dat", " 150 \r\n-300 \r\n 7 \r\n 8 \r\n 3000000000 \r\n 5 \r\n");
  test.writeFile("Vext.dat", " 12 \r\n 3 \r\n");
  startStore(store);
  EXPECT_EQ(store.Fenster.FensterLeft[1], 300);
  EXPECT_EQ(store.Fenster.FensterTop[2], 7);
  EXPECT_EQ(store.LaeuferAnzahl, 12);
  EXPECT_EQ(store.VereinAnzahl, 3);
  EXPECT_EQ(store.RennenIdx, 0);
  FensterSpeichern(store);
  const QByteArray file = test.file("TopLeft.dat");
  EXPECT_TRUE(file.startsWith(" 150 \r\n 300 \r\n 7 \r\n 8 \r\n 0 \r\n 0 \r\n 0 \r\n"));
  EXPECT_EQ(file.count('\n'), 120);
}

TEST_F(StartTest, CountsOfMoreRecordsThanAFileMayHoldAreRefused) {
  for (const char *bytes : {" 2147483647 \r\n", " 0 \r\n 900000 \r\n", " 0 \r\n 0 \r\n 900000 \r\n"}) {
    test.writeFile("Vext.dat", bytes);
    EXPECT_THROW(startStore(store), ConversionFault) << bytes;
  }
}
