#include "raceprep/RaceCopy.h"

#include "core/RaceFiles.h"
#include "support/StoreTest.h"

using RaceCopyTest = RaceTest;

TEST_F(RaceCopyTest, CleanAndFullParticipantsByteForByte) {
  const QByteArray reserve = QByteArray("\r\n").repeated(7);
  const std::pair<bool, QByteArray> cases[] = {
      {false, " 5 \r\n 0 \r\n 8 \r\n 2 \r\n 3 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n 4 \r\n 0 \r\n 0 \r\n"
              " 1 \r\n 12 \r\n"},
      {true, " 5 \r\n 1 \r\n 8 \r\n 2 \r\n 3 \r\n 1 \r\n2,5\r\n63,45\r\n0\r\n1\r\n 1 \r\n 4 \r\n70\r\n2\r\n"
             " 1 \r\n 12 \r\n"}};
  store.Teilnehmer[1] = {5, 1, 8, 2, 3, 1, 2.5F, 63.45, 0, 1, 1, 4, 70, 2, 1, 57, 12};
  for (const auto &[withResults, expected] : cases) {
    copyRace(store, 2, {}, withResults);
    EXPECT_EQ(test.file("R 2.dat"), expected + reserve);
  }
}

TEST_F(RaceCopyTest, ForeignNamesStayWhereTheRaceHasNone) {
  test.writeFile("M 2.lst", "alt\r\n");
  store.GruppeName[2] = "Gruppe";
  copyRace(store, 2, {}, false);
  EXPECT_EQ(test.file("R 2.dat"), "");
  EXPECT_EQ(test.file("M 2.lst"), "alt\r\n");
  EXPECT_TRUE(test.file("G 2.lst").startsWith("\r\nGruppe\r\n"));
  EXPECT_EQ(test.file("K 2.lst"), classFile(store, store.KlasseReihenfolge));
}

TEST_F(RaceCopyTest, RecordFarAheadRaisesTheCountAndLeavesZeroBytesBetween) {
  store.Rennen.ZweiDurchgaenge = 1;
  copyRace(store, 200, "Lauf ", false);
  EXPECT_EQ(store.RennenAnzahl, 200);
  EXPECT_EQ(store.RennenIdx, 1);
  EXPECT_EQ(store.Rennen.RennenName, "Rennen");
  const QByteArray records = test.file("Rennen.rec");
  EXPECT_EQ(records.mid(199 * 1137, 15), "Kopie v. Lauf  ");
  EXPECT_EQ(records.mid(1137, 198 * 1137), QByteArray(198 * 1137, '\0'));
  store.RennenIdx = 200;
  RennenLesen(store);
  EXPECT_EQ(store.Rennen.ZweiDurchgaenge, 1);
}
