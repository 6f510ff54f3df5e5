#include "raceprep/Form15.h"

#include "core/RaceFiles.h"
#include "platform/qt/CellLabel.h"
#include "support/ScreenTest.h"

namespace {

struct Form15Test : ScreenTest<Form15> {
  Form15Test() {
    test.addRace("Rennen");
    store.Rennen.WertGeschlecht = 1;
    open();
  }
  CellLabel *cell(int n) { return find<CellLabel>(qPrintable(QString("Label3_%1").arg(n))); }
  std::string number(int n) { return cell(n)->text().toStdString(); }
  void pressCell(int n) { QTest::mouseClick(cell(n), Qt::LeftButton); }
};

} // namespace

TEST_F(Form15Test, NameLeftByAPressOnAnotherCellGoesToTheOldOneUntilAllIsCleared) {
  pressCell(0);
  type("Text1", " Mini ");
  pressCell(8);
  EXPECT_EQ(store.KlasseGenauName[0], "Mini");
  for (const auto &[answer, kept] : {std::pair("Command6", "2"), {"Command5", "0"}}) {
    press("Command4");
    press(answer);
    EXPECT_EQ(number(8), kept);
    EXPECT_FALSE(shown("Command5"));
  }
  EXPECT_EQ(store.KlasseGenauName[0], "Bambini 1 weiblich");
}

TEST_F(Form15Test, TypedNumberIsShownByTheButtonAndCountsFromTheClosing) {
  pressCell(0);
  pressCell(8);
  type("Text2", "1");
  key(Qt::Key_Tab);
  EXPECT_EQ(number(8), "2");
  key(Qt::Key_Return);
  EXPECT_EQ(number(8), "1");
  type("Text2", "40000");
  key(Qt::Key_Tab);
  EXPECT_EQ(test.beeps, 1);
  EXPECT_EQ(number(8), "1");
  EXPECT_EQ(store.KlasseReihenfolge(2, 0, 0, 0), 0);
  bool savedBefore = true;
  QObject::connect(form.get(), &Form15::saving, [&] { savedBefore = test.hasFile("K 1.lst"); });
  form->close();
  EXPECT_FALSE(savedBefore);
  EXPECT_EQ(store.KlasseReihenfolge(2, 0, 0, 0), 1);
  EXPECT_EQ(test.file("K 1.lst"), classFile(store, store.KlasseReihenfolge));
}

TEST_F(Form15Test, AfterClearingTheFieldsShowTheNewValuesOfTheirCell) {
  QTest::mouseClick(cell(0), Qt::LeftButton);
  type("Text1", "Damen und Herren");
  press("Command4");
  press("Command5");
  find("Text1")->setFocus();
  find("Text2")->setFocus();
  form->close();
  EXPECT_EQ(store.KlasseReihenfolge(1, 0, 0, 0), 0);
  EXPECT_NE(store.KlasseGenauName[0], "Damen und Herren");
}

TEST_F(Form15Test, KeysWalkOverVisibleCellsAndPressThem) {
  EXPECT_TRUE(cell(0)->hasFocus());
  keys({Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return}); // no cell beside the second
  EXPECT_EQ(number(9), "1");
  key(Qt::Key_Tab);
  EXPECT_TRUE(find("Text1")->hasFocus());
  key(Qt::Key_Backtab);
  EXPECT_TRUE(cell(9)->hasFocus());
}
