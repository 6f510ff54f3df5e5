#include "evaluation/Form12.h"

#include "support/FakePrinters.h"
#include "support/ScreenTest.h"
#include "support/TeamRace.h"

namespace {

struct Form12Test : ScreenTest<Form12> {
  void open() { ScreenTest::open(*fake.printers); }
  bool ticked(const char *name) { return find<QAbstractButton>(name)->isChecked(); }
  bool canPrint() { return enabled("Command3"); }

  TeamRace race{test};
  FakePrinters fake;
};

} // namespace

TEST_F(Form12Test, OpensOnClubsAndEachChoiceLocksThePrint) {
  open();
  EXPECT_FALSE(canPrint() || shown("Combo2"));
  press("Command2");
  EXPECT_EQ(lines("List2").size(), 2);
  clickLine("List2", 1);
  EXPECT_EQ(lines("List5").size(), 2);
  for (const char *control : {"Check2", "Check3", "Check3", "Option2", "Option1", "Option3", "Check1"}) {
    press("Command2");
    ASSERT_TRUE(canPrint());
    press(control);
    EXPECT_FALSE(canPrint()) << control;
  }
  EXPECT_TRUE(ticked("Check1") && !ticked("Check2") && !ticked("Check3"));
}

TEST_F(Form12Test, SumLeavesItsWorkListAndThePrintTheLastUnit) {
  open();
  press("Check2");
  press("Option3");
  press("Option1");
  EXPECT_TRUE(shown("Combo2"));
  press("Option3");
  press("Command2");
  EXPECT_TRUE(lines("List5").isEmpty()) << "the last team has nobody";
  clickLine("List2", 0);
  press("Command3");
  EXPECT_EQ(find<LineList>("List2")->chosenLine(), 2);
  EXPECT_EQ(label("letzteDatei"), "Mannschaftsliste.pdf");
  ASSERT_EQ(fake.documents.size(), 1);
  EXPECT_TRUE(asText(fake.documents[0]).join(u'\n').contains("besten2|"));
}
