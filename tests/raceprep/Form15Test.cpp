#include "raceprep/Form15.h"

#include "core/RaceFiles.h"
#include "platform/qt/CellLabel.h"
#include "support/Operator.h"
#include "support/TestStore.h"

namespace {

class Form15Test : public testing::Test {
protected:
  Form15Test() {
    test.addRace(QStringLiteral("Rennen"));
    store.Rennen.WertGeschlecht = 1;
    store.KlasseName[20].clear();
    form = std::make_unique<Form15>(desk, store);
    person = std::make_unique<Operator>(desk, *form);
  }

  CellLabel *cell(int n) const { return person->control<CellLabel>("Label3_", n); }
  std::string number(int n) const { return cell(n)->text().toStdString(); }
  void pressCell(int n) { QTest::mouseClick(cell(n), Qt::LeftButton); }

  TestStore test;
  Store &store = test.store;
  Desk desk{store.Fenster, [] {}};
  std::unique_ptr<Form15> form;
  std::unique_ptr<Operator> person;
};

} // namespace

TEST_F(Form15Test, ShowsTheCellsThatApply) {
  for (const auto &[position, visible] : {std::pair(1, true), {2, false}, {145, true}, {152, false}})
    EXPECT_EQ(cell(position)->isVisible(), visible) << position;
  EXPECT_EQ(person->control<QLabel>("Label2_", 18)->text(), QStringLiteral("AK 5"));
}

TEST_F(Form15Test, PressedCellsAreNumberedInTurnAndTheLastOneIsGreen) {
  pressCell(9);
  pressCell(0);
  pressCell(9);
  EXPECT_EQ(number(9), "1");
  EXPECT_EQ(number(0), "2");
  EXPECT_EQ(person->text(1), "Bambini 2 männlich");
  EXPECT_EQ(cell(9)->palette().color(cell(9)->foregroundRole()), QColor(0x00, 0xC0, 0x00));
  EXPECT_EQ(cell(0)->palette().color(cell(0)->foregroundRole()), QColor(Qt::black));
}

TEST_F(Form15Test, NameLeftByAPressOnAnotherCellGoesToTheOldOneUntilAllIsCleared) {
  pressCell(0);
  person->type(1, " Mini ");
  pressCell(8);
  EXPECT_EQ(store.KlasseGenauName[0], QStringLiteral("Mini"));
  person->press(4);
  person->press(6);
  EXPECT_EQ(number(8), "2");
  EXPECT_FALSE(person->button(5)->isVisible());
  person->press(4);
  person->press(5);
  EXPECT_EQ(number(8), "0");
  EXPECT_EQ(store.KlasseGenauName[0], QStringLiteral("Bambini 1 weiblich"));
}

TEST_F(Form15Test, TypedNumberIsShownByTheButtonAndCountsFromTheClosing) {
  pressCell(0);
  pressCell(8);
  person->type(2, "1");
  Operator::key(Qt::Key_Tab);
  EXPECT_EQ(number(8), "2");
  Operator::key(Qt::Key_Return);
  EXPECT_EQ(number(8), "1");
  person->type(2, "40000");
  Screen beside(desk, QStringLiteral("Form17"), 17);
  desk.show(beside);
  desk.show(*form); // coming back fills nothing anew
  EXPECT_EQ(test.beeps, 1);
  EXPECT_EQ(number(8), "1");
  EXPECT_EQ(store.KlasseReihenfolge(2, 0, 0, 0), 0);
  bool savedBefore = true;
  QObject::connect(form.get(), &Form15::saving, [&] { savedBefore = test.hasFile(QStringLiteral("K 1.lst")); });
  form->close();
  EXPECT_FALSE(savedBefore);
  EXPECT_EQ(store.KlasseReihenfolge(2, 0, 0, 0), 1);
  EXPECT_EQ(test.file(QStringLiteral("K 1.lst")), classFile(store));
}

TEST_F(Form15Test, KeysWalkOverVisibleCellsAndPressThem) {
  EXPECT_EQ(QApplication::focusWidget(), cell(0));
  for (const auto key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return}) // no cell beside the second
    Operator::key(key);
  EXPECT_EQ(number(9), "1");
  Operator::key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), person->box(1));
  Operator::key(Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), cell(9));
}
