#include "masterdata/Form3.h"

#include "support/ScreenTest.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QToolTip>

namespace {

struct Form3Test : ScreenTest<Form3> {
  void openWith(std::initializer_list<const char *> names, int sex = 0) {
    for (const char *name : names)
      test.addAthlete(name, 1990, sex);
    open();
  }
  LaeuferSatz record(int n) { return LaeuferLesen(store, n); }
};

} // namespace

TEST_F(Form3Test, IndexActsAtEachKeyAndIsHeldToTheRegister) {
  openWith({"A", "B", "C"});
  for (const auto &[typed, shown] : {std::pair("1", "1A"), {"9999", "3C"}, {"2", "2B"}, {"x", "1A"}}) {
    type("Text1", typed);
    EXPECT_EQ(text("Text1") + text("Text2"), shown) << typed;
  }
  press("Command2");
  EXPECT_EQ(test.beeps, 1);
  EXPECT_EQ(text("Text2"), "A");
}

TEST_F(Form3Test, EachFieldIsStoredOnceWhenItIsLeft) {
  for (const char *club : {"SK A", "SK B"})
    test.addClub(club);
  openWith({"A"}, 2);
  type("Text3", " 4711 ");
  type("Text4", "83");
  type("Text5", "2.5");
  find("Combo2")->setFocus();
  key(Qt::Key_End);
  find("Text4")->setFocus();
  key(Qt::Key_Tab); // reaches the sex and does not choose it
  EXPECT_TRUE(find("Option1")->hasFocus());
  EXPECT_EQ(record(1).Geschlecht, 2);
  for (const auto &[arrow, sex] : {std::pair(Qt::Key_Down, 0), {Qt::Key_Up, 1}}) {
    key(arrow);
    EXPECT_EQ(record(1).Geschlecht, sex);
  }
  EXPECT_EQ(record(1).OesvNr.trimmed() + text("Text4"), "471101.01.1983");
  EXPECT_EQ(record(1).LaeuferPunkte, 2.5F);
  EXPECT_EQ(record(1).Verein2, 2);
  type("Text5", "1000000000000000"); // would be shown as 1E+15 and read as 1
  find("Text4")->setFocus();
  EXPECT_EQ(text("Text5"), "2,5");
  type("Text5", "3,5"); // the point alone is a decimal sign
  form->close();
  EXPECT_EQ(record(1).LaeuferPunkte, 3.0F);
}

TEST_F(Form3Test, FieldsStayTogetherAndAClubIsToldWhole) {
  const auto club = QString("WSV <Tannberg> am Arlberg");
  test.addClub(club);
  openWith({"A"});
  const auto lowest = [this] { return find("Text5")->mapTo(form.get(), QPoint()).y(); };
  auto *combo = find<QComboBox>("Combo2");
  const int before = lowest(), width = combo->width();
  form->resize(1400, 900);
  QCoreApplication::processEvents();
  EXPECT_EQ(lowest(), before);
  EXPECT_GT(combo->width(), width);
  combo->setCurrentIndex(1);
  QHelpEvent help(QEvent::ToolTip, {5, 5}, combo->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(combo, &help);
  EXPECT_TRUE(QToolTip::text().contains(club.toHtmlEscaped()));
}

TEST_F(Form3Test, WritesOnlyIntoTheAthleteShown) {
  openWith({"A", "B", "C"});
  form->showRecord(2);
  record(3);
  type("Text2", "ZZ");
  record(1);
  key(Qt::Key_Tab);
  EXPECT_EQ(lines("List1").join(u'|'), "A        1|C        3|ZZ        2");
  EXPECT_EQ(find<LineList>("List1")->chosenLine(), 2);
}

TEST_F(Form3Test, NewEntryTakesAFreeRecordOrRenamesTheLast) {
  openWith({"A", " ", "C"});
  for (const auto &[name, record] : {std::pair("B", "2"), {"D", "3"}}) {
    form->startNewEntry(name);
    EXPECT_EQ(text("Text1"), record);
    EXPECT_TRUE(find("Text2")->hasFocus());
    key(Qt::Key_Tab);
  }
  EXPECT_EQ(lines("List1").join(u'|'), "A        1|B        2|D        3");
}
