#include "raceprep/Form11.h"

#include "support/ScreenTest.h"

namespace {

class Form11Test : public ScreenTest<Form11> {
protected:
  Form11Test() { test.addRace(QStringLiteral("Lauf")); }
};

} // namespace

TEST_F(Form11Test, NamesAreTypedWithEnterAlone) {
  open();
  EXPECT_FALSE(find("Text2")->isEnabled());
  for (const char *typed : {"1", "Rot ", "", "Gelb", "", ""}) {
    QTest::keyClicks(QApplication::focusWidget(), QLatin1String(typed));
    key(Qt::Key_Return);
  }
  EXPECT_EQ(text("Text1"), QStringLiteral("4"));
  EXPECT_EQ(store.MannschaftName[1], QStringLiteral("Rot"));
  EXPECT_EQ(lines("List1"), (QStringList{QStringLiteral("1 Rot"), QStringLiteral("2 Gelb")}));
  type("Text4", "100");
  key(Qt::Key_Return);
  QTest::keyClicks(find("Text3"), QStringLiteral("Sued"));
  key(Qt::Key_Return);
  EXPECT_EQ(text("Text4"), QStringLiteral("100"));
  EXPECT_EQ(text("Text3"), QStringLiteral("Sued"));
  EXPECT_EQ(lines("List2"), QStringList{QStringLiteral("100 Sued")});
  press("Command4");
  EXPECT_TRUE(test.file(QStringLiteral("M 1.lst")).startsWith("Rot\r\nGelb\r\n\r\n"));
  EXPECT_FALSE(test.hasFile(QStringLiteral("G 1.lst")));
}

TEST_F(Form11Test, NumberIsHeldToItsLimits) {
  store.GruppeName[25] = QStringLiteral("Hänge");
  open();
  for (const auto &[typed, shown] : {std::pair{"0", "1"}, {"250", "100"}, {"x", "1"}, {"25", "25"}}) {
    type("Text4", typed);
    EXPECT_EQ(text("Text4"), QLatin1String(shown));
  }
  EXPECT_EQ(text("Text3"), QStringLiteral("Hänge"));
  type("Text3", " ");
  EXPECT_EQ(lines("List2").size(), 1); // until the field is left
  key(Qt::Key_Tab);
  EXPECT_TRUE(lines("List2").isEmpty());
}
