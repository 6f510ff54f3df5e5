#include "raceprep/Form6.h"

#include "support/ScreenTest.h"

#include <QComboBox>

namespace {

struct Form6Test : ScreenTest<Form6> {
  Form6Test() {
    test.addClub("SC Alm");
    test.addRace("Lauf");
  }

  /// Participants in rows 1 to `count` with their row as number, in class 2.
  void enter(int count, bool numbered = true) {
    for (int row = 1; row <= count; ++row) {
      test.enter(test.addAthlete(QString("LÄUFER %1").arg(row, 3), 2000 + row % 2, row % 2, 1), numbered ? row : 0);
      store.Teilnehmer[row].KlasseNr = 2;
    }
  }
  QComboBox *combo(const char *name) { return find<QComboBox>(name); }
  QColor ground(const char *name, QPalette::ColorRole role) { return find(name)->palette().color(role); }
};

} // namespace

TEST_F(Form6Test, SelectionShowsTheParticipantAndKeysStoreHim) {
  enter(2);
  store.MannschaftName[3] = "Rot";
  store.Teilnehmer[1].MannschaftNr = 3;
  store.Teilnehmer[2].MannschaftNr = 300; // not in the list
  open();
  key(Qt::Key_Down);
  EXPECT_EQ(combo("Combo3")->currentText(), "Rot");
  key(Qt::Key_Tab);
  keys("007");
  key(Qt::Key_Tab);
  EXPECT_EQ(lines("List1").last(), "    7  LÄUFER   1          1");
  EXPECT_EQ(find<LineList>("List1")->chosenLine(), 1);
  keys({Qt::Key_Tab, Qt::Key_End, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}); // no club, a guest
  clickLine("List1", 0);
  EXPECT_EQ(store.Teilnehmer[1].Gast, 1);
  combo("Combo3")->setFocus();
  form->close();
  EXPECT_EQ(store.Teilnehmer[2].MannschaftNr, 300);
  EXPECT_TRUE(test.file("R 1.dat").startsWith(" 1 \r\n 7 \r\n 2 \r\n 4 \r\n"));
}

TEST_F(Form6Test, NumberInUseIsRedAndDropped) {
  enter(3);
  open();
  clickLine("List1", 0);
  for (const auto &[typed, red, stored] :
       {std::tuple{"3", true, 1}, {"1", true, 1}, {"0", true, 1}, {"40000", true, 1}, {"-5", false, -5}}) {
    type("Text1", typed);
    press("Command5");
    EXPECT_EQ(ground("Text1", QPalette::Base), QColor(red ? 0xFF0000 : 0xC0FFC0)) << typed;
    EXPECT_EQ(store.Teilnehmer[1].StartNr, stored) << typed;
  }
  EXPECT_EQ(test.beeps, 1);
}

TEST_F(Form6Test, FlagsAfterTheDrawGoToTheRowBehindTheLastLine) {
  enter(3, false);
  for (const char *reserve : {"40000", "0"}) { // one draw for each opening
    open();
    clickLine("List1", 0);
    press("Command2");
    type("Text2", reserve);
    press("Command3");
    EXPECT_TRUE(!shown("Command2") && !shown("Text2") && find("List1")->hasFocus());
    EXPECT_EQ(test.beeps, 1); // the first reserve does not fit
  }
  EXPECT_EQ(lines("List1")[2].left(7), "    3  ");
  press("Check2");
  combo("Combo4")->setFocus();
  key(Qt::Key_Down);
  press("Command5");
  EXPECT_EQ(store.Teilnehmer[3].Bezahlt, 1); // the row of the counter, seen from 0
  EXPECT_EQ(store.Teilnehmer[1].GruppeNr, 1);
}

TEST_F(Form6Test, ClassRunByKeysAndDeletion) {
  enter(3, false);
  store.Teilnehmer[60].StartNr = 9; // too far down to offer the deletion
  open();
  EXPECT_FALSE(enabled("Command6"));
  find("Command9")->setFocus();
  key(Qt::Key_Return);
  EXPECT_TRUE(shown("Text3") && shown("Text2") && !shown("Command11"));
  keys({Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down, Qt::Key_Tab}); // class 2
  keys("100");
  keys({Qt::Key_Tab, Qt::Key_Return});
  EXPECT_EQ(lines("List1")[0], "  100  LÄUFER   1          1");
  open();
  press("Command6");
  press("Command7");
  EXPECT_TRUE(!enabled("Command6") && !shown("Command7") && find("List1")->hasFocus());
  EXPECT_EQ(store.Teilnehmer[3].StartNr + store.Teilnehmer[60].StartNr, 0);
}

TEST_F(Form6Test, OnTopOfTheParticipantList) {
  enter(3);
  open();
  form->chooseParticipant(2);
  EXPECT_EQ(label("Label6"), "2");
  type("Text1", "5");
  key(Qt::Key_Return);
  EXPECT_TRUE(focused("List1") && store.Teilnehmer[2].StartNr == 5);
  const int added = test.enter(store.Teilnehmer[3].LaeuferNr);
  form->chooseParticipant(added);
  EXPECT_EQ(label("Label6").toInt(), added);
  form->chooseParticipant(999); // in no list
  EXPECT_EQ(label("Label6"), QString());
  store.Teilnehmer[3] = {};
  form->rowsMoved();
  EXPECT_EQ(label("Label2") + label("Label6"), "bitte Teilnehmer anklicken !");
  EXPECT_FALSE(enabled("Text1") || shown("Check1") || shown("Combo1"));
}
