#include "timing/TimingList.h"

#include "support/StoreTest.h"

namespace {

struct TimingListTest : RaceTest {
  TimingListTest() {
    store.KlasseGenauName[8] = "Damen";
    store.KlasseGenauName[9] = "Herren";
    enter("ADAM Eva", 12, 8, 83.456);
    enter("BERG Max", 3, 9, 0);
    enter("CERNY Ida", 7, 8, 80);
    enter({}, 1, 8, 10);
  }

  TeilnehmerZeile &enter(const QString &name, int startNr, int reihe, double time) {
    auto &participant = store.Teilnehmer[test.enter(test.addAthlete(name, 1990, 0), startNr)];
    participant.KlasseReihe = reihe;
    participant.KlasseGenau = qint16(reihe);
    participant.Zeit1 = time;
    return participant;
  }

  std::string lines(ListMode mode) { return ZeitlisteFuellen(store, mode).join(u'\n').toStdString(); }
};

TEST_F(TimingListTest, FiveOrders) {
  EXPECT_EQ(lines(ListMode::Startnummer), R"(0003  BERG Max           2
0007  CERNY Ida           3
0012  ADAM Eva           1)");
  EXPECT_EQ(lines(ListMode::Zeiten), R"(00000,00 BERG Max           2
00080,00 CERNY Ida           3
00083,46 ADAM Eva           1)");
  store.Teilnehmer[3].Status1 = 3;
  EXPECT_EQ(lines(ListMode::KlasseStartnummer), R"(----- Damen -----------------------------------
0007  CERNY Ida           3
0012  ADAM Eva           1
----- Herren -----------------------------------
0003  BERG Max           2)");
  EXPECT_EQ(lines(ListMode::KlasseZeit), R"(----- Damen -----------------------------------
00000,00 CERNY Ida           3
00083,46 ADAM Eva           1
----- Herren -----------------------------------
00000,00 BERG Max           2)");
  EXPECT_EQ(lines(ListMode::ZweiterDurchgang), R"(----- Damen -----------------------------------
0012  ADAM Eva           1
----- Herren -----------------------------------
0003  BERG Max           2)");
}

TEST_F(TimingListTest, SecondRunReversesTheFirstFifteen) {
  for (int time = 81; time <= 98; ++time)
    enter("X", time, 8, time);
  QStringList numbers;
  for (const QString &line : ZeitlisteFuellen(store, ListMode::ZweiterDurchgang))
    numbers << line.left(4);
  const QStringList expected =
      QString("---- 0093 0092 0091 0090 0089 0088 0087 0086 0085 0084 0012 0083 0082 0081 0007 0094 0095 0096 0097 "
              "0098 ---- 0003")
          .split(u' ');
  EXPECT_EQ(numbers, expected);
}

TEST_F(TimingListTest, SecondRunByGroupsTakesTheNameOfTheRow) {
  store.Rennen.WertKlassen = 0;
  store.GruppeName[1] = "002";
  EXPECT_EQ(lines(ListMode::ZweiterDurchgang), R"(----- Damen -----------------------------------
0007  NY Ida           3
----- Herren -----------------------------------
0003  G Max           2
----- Damen -----------------------------------
0012  ADAM Eva           1)");
  for (int row = 5; row <= 101; ++row)
    enter("X", row, 8, 50);
  EXPECT_THROW(ZeitlisteFuellen(store, ListMode::ZweiterDurchgang), RangeFault);
}

} // namespace
