#include "masterdata/Form2.h"

#include "support/ScreenTest.h"

using Form2Test = ScreenTest<Form2>;

TEST_F(Form2Test, EachFieldGoesToItsPlaceAndTheTelephoneTakesTheContact) {
  open();
  for (int n = 2; n <= 11; ++n)
    type(qPrintable(QString("Text%1").arg(n)), qPrintable(QString("t%1").arg(n)));
  form->close();
  EXPECT_EQ(test.file("Verein.rec").replace('\0', ' ').simplified(), "t2 t3 t5 t4 t6 t7 t6 t11 t9 t10");
}

TEST_F(Form2Test, IndexIsNotActedOnUntilAskedAndAClickTakesTheLineUnderThePointer) {
  for (const char *name : {"A", "B", "C"})
    test.addClub(name);
  open();
  type("Text1", "1");
  type("Text4", "Linz");
  for (const auto &[typed, button] : {std::pair("9999", "Command2"), {"-5", "Command3"}}) {
    type("Text1", typed);
    press(button);
    EXPECT_EQ(text("Text1") + text("Text4"), *typed == '9' ? "3Linz" : "1") << typed;
  }
  type("Text2", "Z"); // leaves the first line while the third one is pressed
  clickLine("List1", 2);
  EXPECT_EQ(text("Text2"), "C");
  EXPECT_EQ(find<LineList>("List1")->chosenLine(), 1);
  type("Text2", " ");
  press("Command3"); // without a name none behind the last
  EXPECT_EQ(text("Text1"), "3");
  EXPECT_EQ(lines("List1").size(), 2);
}
