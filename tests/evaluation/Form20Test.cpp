#include "evaluation/Form20.h"

#include "support/CupRaces.h"
#include "support/FakePrinters.h"
#include "support/ScreenTest.h"

namespace {

struct Form20Test : ScreenTest<Form20> {
  void open() { ScreenTest::open(*fake.printers); }
  void markAll() {
    for (const int line : {0, 1, 2})
      clickLine("List1", line);
  }

  CupRaces cup{test};
  FakePrinters fake;
};

} // namespace

TEST_F(Form20Test, EvaluatesTheMarkedRacesAndPrintsOnce) {
  open();
  markAll();
  type("Text3", "5"); // held to the rounds
  press("Command1");
  EXPECT_EQ(text("Text3"), "4");
  QTest::mouseClick(find("Text3"), Qt::LeftButton);
  EXPECT_FALSE(enabled("Command2"));
  type("Text3", "-1");
  press("Command1");
  EXPECT_EQ(text("Text3"), "-1");
  EXPECT_EQ(lines("List5"), cup.lines);
  press("Command2");
  EXPECT_EQ(fake.documents.size(), 1);
  EXPECT_FALSE(enabled("Command2"));
  EXPECT_EQ(label("drucker"), "Drucker: Laser");
  EXPECT_EQ(label("letzteDatei"), "Cupliste.pdf");
}

TEST_F(Form20Test, PointsAreTypedDownTheTable) {
  open();
  EXPECT_FALSE(enabled("Text2"));
  type("Text1", "9");
  EXPECT_EQ(text("Text2"), "1");
  key(Qt::Key_Return);
  keys("2.5");
  key(Qt::Key_Return);
  EXPECT_EQ(text("Text1"), "10");
  EXPECT_EQ(text("Text2"), QString());
  EXPECT_TRUE(focused("Text1"));
  EXPECT_EQ(lines("List2").last(), "Platz 9:  2 P.");
  type("Text2", "99999");
  EXPECT_EQ(test.beeps, 1);
  EXPECT_EQ(store.cup.CupPunkteTabelle[10], 9999);
  type("Text1", "300");
  EXPECT_EQ(text("Text1"), "100");
}

TEST_F(Form20Test, ClosingKeepsTheChoiceAndOpensTheRaceOfBefore) {
  store.AktRennen = store.RennenIdx = 2;
  open();
  markAll();
  keys({Qt::Key_Up, Qt::Key_Space});                              // takes the mark of the second away
  QTest::keyClick(find("List1"), Qt::Key_A, Qt::ControlModifier); // each line is marked for itself
  type("Text4", " Talcup ");
  press("Command1");
  EXPECT_EQ(store.Rennen.ZweiDurchgaenge, 0);
  form->close();
  EXPECT_EQ(store.AktRennen, 2);
  EXPECT_EQ(store.Rennen.ZweiDurchgaenge, 1);
  EXPECT_EQ(store.Teilnehmer[1].Zeit2, 33);
  EXPECT_TRUE(test.file("Cup.dat").endsWith(" 0 \r\n 3 \r\n 1 \r\n"));
  open();
  EXPECT_EQ(text("Text4"), "Talcup");
  EXPECT_EQ(find<MarkList>("List1")->marked(), (QList<int>{0, 2}));
  EXPECT_TRUE(enabled("Command1"));
}
