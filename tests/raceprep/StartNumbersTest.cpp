#include "raceprep/StartNumbers.h"

#include "core/RaceFiles.h"
#include "support/StoreTest.h"

#include <numeric>

namespace {

struct StartNumbersTest : RaceTest {
  int enter(const char *name, int order, int klasse = 1, int startNr = 0) {
    const int row = test.enter(test.addAthlete(name, 2000, 0), startNr);
    store.Teilnehmer[row].KlasseReihe = order;
    store.Teilnehmer[row].KlasseNr = klasse;
    return row;
  }
  QList<int> numbers(int last) {
    QList<int> found;
    for (int row = 1; row <= last; ++row)
      found.append(store.Teilnehmer[row].StartNr);
    return found;
  }
};

} // namespace

TEST_F(StartNumbersTest, ReserveLiesBetweenKeysAndNotBeforeTheFirst) {
  for (const int order : {1, 2, 0, 1, 2, 0, 1})
    enter("A", order);
  const std::tuple<int, QList<int>> cases[] = {
      {0, {1, 2, 3, 4, 5, 6, 7}}, {5, {1, 2, 8, 9, 10, 16, 17}}, {-3, {0, 0, 1, 1, 1, 2, 2}}};
  for (const auto &[reserve, expected] : cases) {
    drawNumbersForAll(store, reserve);
    EXPECT_EQ(store.Teilnehmer[3].StartNr + store.Teilnehmer[6].StartNr, 3) << "order 0 starts first";
    QList<int> sorted = numbers(7);
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, expected) << reserve;
  }
}

TEST_F(StartNumbersTest, DrawOfTwoDigitsThenTheName) {
  for (int i = 0; i < 150; ++i)
    enter(("P" + std::to_string(900 - i)).c_str(), 7);
  Umgebung same;
  same.generator.seed(42);
  test.umgebung.generator.seed(42);
  QList<std::pair<int, int>> order; // draw, row; a later row has the smaller name
  for (int row = 1; row <= 150; ++row)
    order.append({int(same.randomNumber() * 100), -row});
  std::sort(order.begin(), order.end());
  const QStringList lines = drawNumbersForAll(store, 0);
  EXPECT_EQ(lines[0].left(8), QString("007%1   ").arg(order[0].first, 2, 10, QChar(u'0')));
  for (int i = 0; i < 150; ++i)
    ASSERT_EQ(store.Teilnehmer[-order[i].second].StartNr, i + 1);
  EXPECT_NE(drawNumbersForAll(store, 0), lines);
}

TEST_F(StartNumbersTest, NobodyIsLeftOutOfTheDraw) {
  std::mt19937 random(2026);
  for (int i = 1; i <= 60; ++i)
    test.addAthlete(i % 8 == 0 ? QString() : "ÄRMEL Zoë", 2000, 0);
  for (int field = 0; field < 50; ++field) {
    RennDatenLaden(store);
    for (int row = 1; row <= 1000; row += 1 + int(random() % 60)) {
      store.Teilnehmer[row].LaeuferNr = 1 + int(random() % 60);
      store.Teilnehmer[row].KlasseReihe = int(random() % 4);
      store.Teilnehmer[row].StartNr = -7;
    }
    drawNumbersForAll(store, 0);
    QList<int> given;
    for (int row = 1; row <= 1000; ++row) {
      if (store.Teilnehmer[row].LaeuferNr % 8 == 0) // nobody, or without a name: keeps the number
        EXPECT_EQ(store.Teilnehmer[row].StartNr, store.Teilnehmer[row].LaeuferNr == 0 ? 0 : -7) << row;
      else
        given.append(store.Teilnehmer[row].StartNr);
    }
    std::sort(given.begin(), given.end());
    QList<int> counted(given.size());
    std::iota(counted.begin(), counted.end(), 1);
    EXPECT_EQ(given, counted);
    EXPECT_EQ(store.TnIdx, given.size());
    EXPECT_EQ(NummernlisteFuellen(store).size(), given.size());
  }
}

TEST_F(StartNumbersTest, RunByClassTakesTheNumbersOfOthers) {
  enter("C", 1, 4);
  enter("B", 1, 4);
  enter("A", 2, 4);
  enter("D", 1, 5, 101);
  numbersForClass(store, 4, 100, 0);
  EXPECT_EQ(numbers(4), (QList<int>{101, 100, 102, 101}));
  store.Rennen.WertKlassen = 0; // by groups: order and reserve go by the group, who is taken by the class
  store.Teilnehmer[2].GruppeNr = 4;
  store.Teilnehmer[4].GruppeNr = 4;
  numbersForClass(store, 4, 10, 40000);
  EXPECT_EQ(numbers(4), (QList<int>{11, 40012, 10, 101}));
  EXPECT_EQ(store.TnIdx, 3);
  numbersForClass(store, 4, 2147483647, 0);
  EXPECT_EQ(numbers(4), (QList<int>{11, 40012, 2147483647, 101}));
  EXPECT_EQ(test.beeps, 1);
}

TEST_F(StartNumbersTest, DeletionIsOfferedForTheFirstFiftyRowsAndTakesAll) {
  for (const auto &[row, number, offered] :
       {std::tuple(50, 1, true), {51, 1, false}, {1, -1, false}, {1000, 1, false}}) {
    store.Teilnehmer[row].StartNr = number;
    EXPECT_EQ(isNumberTaken(store, number), true) << row;
    EXPECT_EQ(offersDeletion(store), offered) << row;
    deleteAllNumbers(store);
    EXPECT_EQ(store.Teilnehmer[row].StartNr, 0);
  }
}
