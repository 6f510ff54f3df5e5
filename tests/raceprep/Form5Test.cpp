#include "raceprep/Form5.h"

#include "masterdata/Form3.h"
#include "support/ScreenTest.h"

#include <QSignalSpy>

namespace {

struct Form5Test : ScreenTest<Form5> {
  Form5Test() {
    test.addClub("SK A");
    for (const char *name : {"Abt Ida", "Berger Max", "Cerny Udo"})
      test.addAthlete(name, 1990, 1, 1);
    test.addRace("Ortslauf");
  }
  void openWith(std::initializer_list<int> athletes) {
    for (const int athlete : athletes)
      test.enter(athlete);
    open();
  }
};

} // namespace

TEST_F(Form5Test, AddsNobodyTwiceAndDeletes) {
  openWith({2});
  clickLine("List1", 1);
  EXPECT_FALSE(enabled("Command2"));
  clickLine("List2", 0);
  EXPECT_EQ(label("Label5") + label("Label7"), "Berger Max1");
  const QSignalSpy deleted(form.get(), &Form5::participantDeleted);
  press("Command3");
  EXPECT_EQ(deleted.count(), 1);
  EXPECT_TRUE(!enabled("Command3") && find("List2")->hasFocus());
  EXPECT_TRUE(lines("List2").isEmpty());
}

TEST_F(Form5Test, FiltersAndOrder) {
  openWith({3, 1, 2});
  type("Text1", " berg ");
  EXPECT_EQ(lines("List1").size(), 3); // until Enter
  key(Qt::Key_Return);
  EXPECT_EQ(lines("List1").size(), 1);
  type("Text2", " ce");
  key(Qt::Key_Return);
  EXPECT_EQ(text("Text1") + text("Text2"), "BergCE");
  EXPECT_EQ(lines("List2").size(), 1);
  press("Command4");
  press("Command6");
  find("Combo1")->setFocus();
  key(Qt::Key_End);
  EXPECT_TRUE(lines("List2").first().startsWith("997  Berger"));
  EXPECT_EQ(lines("List1").size(), 3);
}

TEST_F(Form5Test, AfterADeletionTheKeysStartFromTheLineThatWasThere) {
  openWith({1, 2, 3});
  clickLine("List2", 1);
  for (const auto &[arrow, line] : {std::pair(Qt::Key_Down, 1), {Qt::Key_Up, 0}}) {
    press("Command3");
    key(arrow);
    EXPECT_EQ(find<LineList>("List2")->chosenLine(), line);
  }
}

TEST_F(Form5Test, KeysDoubleClicksAndNewEntryAskForTheOtherScreens) {
  openWith({3, 2});
  const QSignalSpy athlete(form.get(), &Form5::athleteChosen), row(form.get(), &Form5::participantChosen),
      fresh(form.get(), &Form5::newEntryRequested);
  keys({Qt::Key_A, Qt::Key_Tab, Qt::Key_Return}); // added, and the focus is back in the list
  EXPECT_EQ(store.Teilnehmer[3].LaeuferNr, 1);
  key(Qt::Key_Return);
  doubleClickLine("List1", 2);
  doubleClickLine("List2", 1);
  type("Text1", "zobl");
  press("Command5");
  EXPECT_EQ(athlete.value(0).value(0).toInt(), 1);
  EXPECT_EQ(athlete.value(1).value(0).toInt(), 3);
  EXPECT_EQ(row.value(0).value(0).toInt(), 2);
  EXPECT_EQ(fresh.value(0).value(0).toString(), "Zobl");
}

TEST_F(Form5Test, RegisterOnTopIsStoredOnReturnAndOnClosing) {
  openWith({2});
  Form3 athletes(desk, store);
  const auto takeNew = [&](const char *name) {
    desk.show(athletes);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&athletes));
    athletes.startNewEntry(name);
  };
  takeNew("Dorn");
  desk.show(*form);
  ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  EXPECT_TRUE(lines("List1").last().startsWith("Cerny")); // until "alle zeigen"
  press("Command4");
  EXPECT_TRUE(lines("List1").last().startsWith("Dorn"));
  takeNew("Ehn");
  form->close();
  EXPECT_EQ(test.file("Laeufer.rec").mid(2 * LaeuferLaenge, 4), "Ehn ");
  EXPECT_TRUE(test.file("R 1.dat").startsWith(" 2 \r\n"));
}
