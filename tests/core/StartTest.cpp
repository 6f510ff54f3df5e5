#include "core/Start.h"

#include "support/TestStore.h"

namespace {

TEST(Start, SeasonTurnsAtTheBeginningOfJuly) {
  TestStore test;
  for (const auto &[day, offset] : {std::pair{3, 11.F}, {5, 12.F}}) {
    test.umgebung.heute = [day = day] { return QDate(2026, 7, day); };
    storeStarten(test.store);
    EXPECT_EQ(test.store.JahrOffset, offset);
  }
  EXPECT_EQ(test.store.StdKlasse[20].Von, 1912);
}

TEST(Start, PlacesAreMirroredBackAndCountsReadAsFarAsTheyGo) {
  TestStore test;
  test.writeFile(QStringLiteral("TopLeft.dat"), " 150 \r\n-300 \r\n 7 ");
  test.writeFile(QStringLiteral("Vext.dat"), " 12 \r\n 3 \r\n");
  storeStarten(test.store);
  EXPECT_EQ(test.store.Fenster.FensterLeft[1], 300);
  EXPECT_EQ(test.store.Fenster.FensterTop[2], 7);
  EXPECT_EQ(test.store.LaeuferIdx, 12);
  EXPECT_EQ(test.store.VereinIdx, 3);
  EXPECT_EQ(test.store.RennenIdx, 0);
  FensterSpeichern(test.store);
  const QByteArray file = test.file(QStringLiteral("TopLeft.dat"));
  EXPECT_TRUE(file.startsWith(" 150 \r\n 300 \r\n 7 \r\n 0 \r\n"));
  EXPECT_EQ(file.count('\n'), 120);
}

} // namespace
