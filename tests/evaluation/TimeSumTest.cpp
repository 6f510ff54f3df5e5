#include "evaluation/TimeSum.h"

#include "core/SingleTimes.h"
#include "platform/Dates.h"
#include "support/Results.h"

namespace {

struct TimeSumTest : StoreTest {
  int add(const char *name) { return test.addAthlete(name, 1990, 1); }

  /// Time and status of each row of the generated race, after a fresh load.
  QList<std::pair<double, int>> generated() {
    RennDatenLaden(store);
    QList<std::pair<double, int>> rows;
    for (int row = 1; store.Teilnehmer[row].LaeuferNr != 0; ++row)
      rows.append({store.Teilnehmer[row].Zeit1, store.Teilnehmer[row].Status1});
    return rows;
  }
  QList<double> blockOf(int row) const {
    QList<double> times;
    for (int round = 0; round <= 3; ++round)
      times << store.cup.CupZeit(row, round);
    return times;
  }

  const int a = add("ADAM Ada"), b = add("BERG Bo"), c = add("CERNY Ida"), d = add("DORN Uwe"), e = add("EDER Max");
};

} // namespace

TEST_F(TimeSumTest, WhoIsMissingOrHasNoResultInARaceFallsOut) {
  addResults(test, "Erster", {{e, 99}, {a, 40, 0, 77}, {b, 41, 3}, {c, 0}});
  addResults(test, "Zweiter", {{a, 30.25}, {b, 31}, {c, 32}, {d, 33}});
  store.MannschaftName[1] = "Team";
  store.Teilnehmer[1].Zeit2 = 9;
  RennDatenSpeichern(store);
  generateTimeSum(store, {2, 1}, 3);

  EXPECT_EQ(generated(), (QList<std::pair<double, int>>{{70.25, 0}, {31, 3}, {32, 3}, {33, 3}}));
  EXPECT_EQ(store.Teilnehmer[1].Zeit2, 0);
  EXPECT_EQ(store.MannschaftName[1], "Team");
  EXPECT_EQ(store.AktRennen, 3);
  RennenLesen(store);
  const auto &race = store.Rennen;
  EXPECT_EQ(race.RennenName + race.RennenKurz + race.RennenNrText.trimmed(), "KombilaufKombilauf3");
  EXPECT_EQ(fromDays(race.RennenDatum), QDate(2026, 1, 15));

  const QByteArray file = test.file("Z 3.dat");
  EXPECT_EQ(file.count('\n'), 12010);
  EXPECT_TRUE(
      file.startsWith("Ers\r\nZwe\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n 1 \r\n 70,25 \r\n 40 \r\n 30,25 \r\n 0 \r\n"));
  loadSingleTimes(store);
  EXPECT_EQ(blockOf(2), (QList<double>{31, 0, 31, 0}));
}

TEST_F(TimeSumTest, ASumThatNoFileGivesBackIsNoTime) {
  for (const char *name : {"A", "B"})
    addResults(test, name, {{a, 1e308}, {b, 1}});
  store.cup.CupStatus(2, 0) = 3; // of an earlier sum
  generateTimeSum(store, {2, 1}, 3);
  EXPECT_EQ(generated(), (QList<std::pair<double, int>>{{0, 0}, {2, 0}}));
  loadSingleTimes(store);
  EXPECT_EQ(blockOf(1), (QList<double>{0, 1e308, 1e308, 0}));
}

TEST_F(TimeSumTest, SurchargesComeFromTheRaceBefore) {
  const auto race = [&](const char *name, double surcharge) {
    addResults(test, name, {{a, 30}}, [surcharge](RennenSatz &record) { record.ZuschlagMann = surcharge; });
  };
  race("A", 5);
  race("B", 0);
  race("C", 7);
  generateTimeSum(store, {2, 1}, 4); // round 1 is A, with those of the base race B
  EXPECT_EQ(blockOf(1), (QList<double>{65, 30, 35, 0}));
  EXPECT_EQ(store.Rennen.ZuschlagMann, 0);
  generateTimeSum(store, {3, 2, 1}, 5);
  EXPECT_EQ(blockOf(1), (QList<double>{102, 37, 35, 30}));
  generateTimeSum(store, {2, 1}, 6); // nothing of the larger one is left
  EXPECT_EQ(store.cup.ZeitsummeRennenKurz[2] + store.cup.ZeitsummeRennenKurz[3], "B");
}

TEST_F(TimeSumTest, NumberOfTheNewRace) {
  const auto line = [](int number) { return QString(" %1    Lauf").arg(number); };
  EXPECT_EQ(timeSumNumber({}), 1);
  EXPECT_EQ(timeSumNumber({line(9), line(12), line(3)}), 13);
  EXPECT_EQ(timeSumNumber({line(1234), line(124), line(7)}), 125) << "only three digits are read";
  EXPECT_EQ(timeSumNumber({line(1234), line(123)}), 124);
  EXPECT_EQ(timeSumNumber({line(1000), line(101)}), 102) << "no race is overwritten";
}
