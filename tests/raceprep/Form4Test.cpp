#include "raceprep/Form4.h"

#include "support/FakePrinters.h"
#include "support/ScreenTest.h"

#include <QSignalSpy>

namespace {

const QList<const char *> Locked = {"Command4",  "Command5",  "Command6",  "Command8",  "Command10", "Command11",
                                    "Command12", "Command13", "Command14", "Command15", "Command17"};
const QList<const char *> Buttons = Locked + QList<const char *>{"Command16", "Command18"};

struct Form4Test : ScreenTest<Form4> {
  Form4Test() {
    test.addRace("Slalom");
    test.addRace("Abfahrt");
    openRegister(printers);
  }
  void openRegister(FakePrinters &with) {
    open(*with.printers);
    form->chooseRace(2);
  }
  /// How many of all buttons open a screen.
  int opening() {
    const QSignalSpy opened(form.get(), &Form4::openRequested);
    for (const char *button : Buttons)
      press(button);
    return int(opened.count());
  }

  FakePrinters printers, none{{}};
};

TEST_F(Form4Test, LinesOpenTheirRaceAndPlusMakesOneThatGetsItsName) {
  clickLine("List1", 1);
  EXPECT_EQ(text("Text2"), "Slalom");
  key(Qt::Key_Up);
  EXPECT_EQ(text("Text1"), "2");
  EXPECT_EQ(store.AktRennen, 2);
  for (int i = 0; i < 2; ++i) { // a nameless race is followed by none
    press("Command3");
    EXPECT_EQ(store.RennenAnzahl, 3);
    EXPECT_EQ(text("Text1"), "3");
  }
  type("Text2", " Super-G ");
  press("Command7");
  EXPECT_EQ(lines("List1").first(), " 3    Super-G");
  EXPECT_EQ(test.file("Rennen.rec").mid(2 * 1137, 8), "Super-G ");
}

TEST_F(Form4Test, AClickIntoTheNameLocksElevenButtonsUntilItIsStored) {
  find("Command3")->setFocus();
  key(Qt::Key_Tab);
  EXPECT_TRUE(find("Text2")->hasFocus());
  EXPECT_TRUE(enabled("Command4"));
  QTest::mouseClick(find("Text2"), Qt::LeftButton);
  press("Command2");
  for (const char *button : Buttons)
    EXPECT_EQ(enabled(button), !Locked.contains(button)) << button;
  press("Command7");
  for (const char *button : Buttons)
    EXPECT_TRUE(enabled(button)) << button;
}

TEST_F(Form4Test, ButtonsNeedANameAndListsAPrinter) {
  EXPECT_EQ(opening(), 13);
  find<QLineEdit>("Text2")->setText("  ");
  EXPECT_EQ(opening(), 3);
  openRegister(none);
  EXPECT_EQ(opening(), 12);
}

} // namespace
