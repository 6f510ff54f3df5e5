#include "raceprep/Form11.h"

#include "support/ScreenTest.h"

using Form11Test = ScreenTest<Form11>;

TEST_F(Form11Test, NumberIsHeldToItsLimits) {
  store.GruppeName[25] = "Hang";
  open();
  for (const auto &[typed, shown] : {std::pair{"0", "1"}, {"x", "1"}, {"25", "25Hang"}, {"250", "100"}}) {
    type("Text4", typed);
    EXPECT_EQ(text("Text4") + text("Text3"), shown);
  }
  type("Text3", "Sued");
  key(Qt::Key_Return); // at the end the number and its name stay
  EXPECT_EQ(text("Text4") + text("Text3"), "100Sued");
  EXPECT_EQ(lines("List2"), (QStringList{"25 Hang", "100 Sued"}));
  type("Text3", " ");
  EXPECT_EQ(lines("List2").size(), 2); // until the field is left
  key(Qt::Key_Tab);
  EXPECT_EQ(lines("List2").size(), 1);
}
