#include "raceprep/Form10.h"

#include "core/RaceFiles.h"
#include "support/ScreenTest.h"

namespace {

struct Form10Test : ScreenTest<Form10> {
  Form10Test() {
    test.addRace("Rennen");
    open();
  }
  void chooseClass(int n) { clickLine("List1", n - 1); }
};

} // namespace

TEST_F(Form10Test, YearsLeftByAClickOrByClosingAreStoredBeforeIt) {
  const int row = test.enter(test.addAthlete("A", 2016, 1));
  chooseClass(4);
  type("Text1", "2016");
  chooseClass(6);
  EXPECT_EQ(store.KlasseBis[5], 2015);
  EXPECT_EQ(text("Text6"), store.KlasseName[6]);
  type("Text1", "2011");
  form->close();
  EXPECT_EQ(store.KlasseBis[7], 2010);
  EXPECT_EQ(store.Teilnehmer[row].KlasseNr, 4);
  EXPECT_TRUE(test.file("K 1.lst").contains("Kinder U9\r\n 2016 \r\n 2017 \r\n"));
}

TEST_F(Form10Test, ClassesBehind16CanBeClickedAndGetYearsButNoName) {
  chooseClass(18);
  EXPECT_EQ(text("Text5"), "18");
  type("Text6", "X");
  key(Qt::Key_Return);
  keys("9999"); // "19499999" is held to this year
  key(Qt::Key_Return);
  EXPECT_TRUE(find("Text2")->hasFocus());
  EXPECT_EQ(text("Text1"), "2026");
  EXPECT_EQ(store.KlasseName[18], "AK 4");
}

TEST_F(Form10Test, DeletesAChosenClass) {
  store.KlasseReihenfolge(1, 0, 0, 0) = 7;
  press("Command5"); // nothing is chosen
  chooseClass(1);
  press("Command5");
  EXPECT_EQ(lines("List1").size(), 19);
  EXPECT_TRUE(lines("List1").first().startsWith(" 1 Bambini 2"));
  EXPECT_EQ(store.KlasseName[19] + store.KlasseName[20], "AK 6");
  EXPECT_EQ(store.KlasseReihenfolge(1, 0, 0, 0), 7); // stays with the row
  EXPECT_FALSE(enabled("Text6"));
}
