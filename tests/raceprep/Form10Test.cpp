#include "raceprep/Form10.h"

#include "core/RaceFiles.h"
#include "platform/qt/LineList.h"
#include "support/Operator.h"
#include "support/TestStore.h"

namespace {

class Form10Test : public testing::Test {
protected:
  void chooseClass(int n) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(n - 1, 0)).center());
  }

  TestStore test;
  Store &store = test.store;
  const int race = test.addRace(QStringLiteral("Rennen"));
  Desk desk{store.Fenster, [] {}};
  Form10 form{desk, store};
  Operator person{desk, form};
  LineList *list = form.findChild<LineList *>();
};

} // namespace

TEST_F(Form10Test, YearLeftByAClickOnAnotherClassIsStoredBeforeAndTheClickHitsItsLine) {
  EXPECT_EQ(QApplication::focusWidget(), list);
  chooseClass(3);
  person.type(1, "2016");
  chooseClass(5);
  EXPECT_EQ(store.KlasseVon[3], 2016);
  EXPECT_EQ(store.KlasseBis[4], 2015);
  EXPECT_EQ(person.text(6), "Kinder U10");
}

TEST_F(Form10Test, ClassesBehind16CanBeClickedAndGetYearsButNoName) {
  chooseClass(18);
  EXPECT_EQ(person.text(5), "18");
  person.type(6, "X");
  Operator::key(Qt::Key_Return);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("9999")); // "19499999" is held to this year
  Operator::key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), person.box(2));
  EXPECT_EQ(person.text(1), "2026");
  EXPECT_EQ(store.KlasseName[18], QStringLiteral("AK 4"));
  EXPECT_EQ(store.KlasseName[16], QStringLiteral("AK 2"));
}

TEST_F(Form10Test, TypedNumberIsHeldAndOpensTheNameAlone) {
  person.type(5, "17");
  EXPECT_EQ(person.text(5), "16");
  EXPECT_EQ(person.text(6), "AK 2");
  EXPECT_FALSE(person.box(1)->isEnabled());
  person.type(6, " Alte ");
  EXPECT_EQ(store.KlasseName[16], QStringLiteral("Alte"));
}

TEST_F(Form10Test, DeletesAChosenClassAndLoadsTheStandardOnceByKeysAlone) {
  store.KlasseReihenfolge(1, 0, 0, 0) = 7;
  person.press(5); // nothing is chosen
  chooseClass(1);
  person.press(5);
  EXPECT_EQ(list->lines().size(), 19);
  EXPECT_TRUE(list->lines().first().startsWith(QStringLiteral(" 1 Bambini 2")));
  EXPECT_EQ(store.KlasseReihenfolge(1, 0, 0, 0), 7); // stays with the row
  EXPECT_FALSE(person.box(6)->isEnabled());
  Operator::key(Qt::Key_Tab);
  Operator::key(Qt::Key_Return);
  Operator::key(Qt::Key_Tab);
  Operator::key(Qt::Key_Space);
  EXPECT_EQ(list->lines().size(), 20);
  for (const int hidden : {2, 3, 4})
    EXPECT_FALSE(person.button(hidden)->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), person.button(1));
}

TEST_F(Form10Test, ClosingStoresTheFieldInWorkAssignsTheClassesAndSaves) {
  const int row = test.enter(test.addAthlete(QStringLiteral("A"), 2016, 1));
  chooseClass(4);
  person.type(1, "2016");
  form.close();
  EXPECT_EQ(store.Teilnehmer[row].KlasseNr, 4);
  EXPECT_TRUE(test.file(QStringLiteral("K 1.lst")).contains("Kinder U9\r\n 2016 \r\n 2017 \r\n"));
}
