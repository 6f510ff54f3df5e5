#include "core/RaceFiles.h"
#include "support/RoofTest.h"

#include <QHelpEvent>
#include <QLabel>
#include <QTimer>
#include <QToolTip>

namespace {

struct ProgrammTest : RoofTest {
  /// Starts over a store with these races, shows the register and presses a button of it.
  void start(std::initializer_list<const char *> races, const char *button = nullptr) {
    for (const char *race : races)
      test.addRace(race);
    store.AktRennen = store.RennenIdx = 0;
    RoofTest::start();
    press("Form1", "Command3");
    if (button != nullptr)
      press("Form4", button);
  }
  /// Number and name of the race in the register.
  std::string race() { return (text("Form4", "Text1") + text("Form4", "Text2")).toStdString(); }
};

TEST_F(ProgrammTest, TheRegisterTakesThePlaceOfTheMenuAndKeepsTheOpenRace) {
  start({"Slalom", "Abfahrt"});
  EXPECT_EQ(visible(), "Form4");
  EXPECT_EQ(race(), "2Abfahrt");
  EXPECT_EQ(test.beeps, 1); // race 0 is read while the list is filled for the first time
  press("Form4", "Command2");
  press("Form4", "Command1");
  EXPECT_EQ(visible(), "Form1");
  press("Form1", "Command3");
  EXPECT_EQ(race(), "1Slalom");
  window("Form4")->close();
  EXPECT_EQ(visible(), "Form1");
}

TEST_F(ProgrammTest, ADeletedRaceStaysOpenAsLeer) {
  start({"Slalom"});
  RennDatenSpeichern(store);
  for (const auto &[answer, kept] : {std::pair("Command2", true), {"Command1", false}}) {
    press("Form4", "Command9");
    EXPECT_EQ(visible(), "Form9");
    press("Form9", answer);
    EXPECT_EQ(visible(), "Form4");
    EXPECT_EQ(race(), kept ? "1Slalom" : "1leer");
    EXPECT_EQ(test.hasFile("K 1.lst"), kept);
    EXPECT_EQ(control<LineList>("Form4", "List1")->lines().size(), kept);
  }
}

// Every button opens its screen in the place of the register, and closing that brings the register back.
TEST_F(ProgrammTest, EachFunctionComesBackToTheRegister) {
  start({"Slalom"});
  const std::pair<const char *, const char *> functions[] = {
      {"Command4", "Form5"},   {"Command5", "Form6"},   {"Command6", "Form7"},   {"Command8", "Form8"},
      {"Command10", "Form11"}, {"Command11", "Form12"}, {"Command12", "Form16"}, {"Command13", "Form10"},
      {"Command14", "Form14"}, {"Command15", "Form15"}, {"Command17", "Form20"}, {"Command18", "Form19"}};
  for (const auto &[button, screen] : functions) {
    press("Form4", button);
    ASSERT_EQ(visible(), screen);
    window(screen)->close();
    ASSERT_EQ(visible(), "Form4") << screen;
  }
  press("Form4", "Command16");
  EXPECT_EQ(visible(), "CupKopie Form4");
  press("Form4", "Command1");
  EXPECT_EQ(visible(), "Form1");
}

TEST_F(ProgrammTest, ScreensBesideTheTimingCloseWithIt) {
  test.addRace("Slalom");
  test.enter(test.addAthlete("BERGER Eva", 2000, 0), 1);
  RennDatenSpeichern(store);
  start({}, "Command6");
  chooseLine("Form7", "List2", 0);
  press("Form7", "Check1");
  press("Form7", "Command7");
  press("Form7", "Command7"); // it stands already
  EXPECT_EQ(visible(), "Form13 Form18 Form7");
  window("Form18")->close();
  EXPECT_EQ(visible(), "Form13 Form7");
  press("Form7", "Command7");
  window("Form7")->close();
  EXPECT_EQ(visible(), "Form4");
}

TEST_F(ProgrammTest, TheParticipantListTakesItsScreensAlong) {
  test.addAthlete("BERGER Eva", 2000, 0);
  start({"Slalom"}, "Command4");
  press("Form5", "Command5");
  EXPECT_EQ(visible(), "Form3 Form5");
  window("Form5")->close();
  EXPECT_EQ(visible(), "Form4");
}

TEST_F(ProgrammTest, AParticipantChosenAgainBringsTheIconBack) {
  start({"Slalom"});
  test.enter(test.addAthlete("BERGER Eva", 2000, 0));
  press("Form4", "Command4");
  const auto chooseTwice = [this] { Person::doubleClickLine(control<LineList>("Form5", "List2"), 0); };
  chooseTwice();
  ASSERT_EQ(visible(), "Form5 Form6");
  window("Form6")->showMinimized();
  chooseTwice();
  EXPECT_FALSE(window("Form6")->isMinimized());
  EXPECT_TRUE(QTest::qWaitForWindowActive(window("Form6")));
}

TEST_F(ProgrammTest, AGeneratedRaceIsOpenedFromTheMenu) {
  start({"Slalom", "Abfahrt"}, "Command18");
  chooseLine("Form19", "List1", 0);
  chooseLine("Form19", "List1", 1);
  press("Form19", "Command2");
  EXPECT_EQ(visible(), "Form1");
  press("Form1", "Command3");
  EXPECT_EQ(race(), "3Kombilauf");
}

TEST_F(ProgrammTest, TheReminderFollowsTheSaves) {
  start({"Slalom"});
  const int row = test.enter(test.addAthlete("BERGER Eva", 2000, 2));
  RennDatenSpeichern(store);
  RennDatenSpeichern(store);
  EXPECT_EQ(visible(), "Form17 Form4");
  EXPECT_EQ(control<LineList>("Form17", "List1")->lines(), QStringList{"1   BERGER Eva m/w ?"});
  window("Form17")->close();
  RennDatenSpeichern(store); // closed by hand and wanted again at once
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(visible(), "Form17 Form4");
  store.Teilnehmer[row].LaeuferNr = 0;
  RennDatenSpeichern(store);
  EXPECT_EQ(visible(), "Form4");
}

TEST_F(ProgrammTest, TheHintStandsOnEveryScreenAndMovesNothing) {
  start({"Slalom"});
  const auto *exit = control<QAbstractButton>("Form4", "Command1");
  const QRect place = exit->geometry();
  const QString hint = QString(300, u'x');
  programm->showSafetyHint(hint);
  press("Form4", "Command16");
  for (const char *screen : {"Form4", "CupKopie"}) {
    const auto *line = control<QLabel>(screen, "Hinweis");
    EXPECT_EQ(line->text(), hint) << screen;
    EXPECT_EQ(line->accessibleDescription(), hint);
    QHelpEvent help(QEvent::ToolTip, {5, 5}, line->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(control<QLabel>(screen, "Hinweis"), &help);
    EXPECT_TRUE(QToolTip::text().contains(hint));
  }
  EXPECT_EQ(exit->geometry(), place);
  programm->showSafetyHint({});
  EXPECT_EQ(control<QLabel>("Form4", "Hinweis")->text(), QString());
  EXPECT_EQ(exit->geometry(), place);
}

TEST_F(ProgrammTest, OnlyTheMenuEndsTheProgramAlsoBesideTheReminder) {
  start({});
  test.umgebung.remind({"1"});
  bool stillRuns = false;
  QTimer::singleShot(0, [&] {
    window("Form4")->close();
    EXPECT_EQ(visible(), "Form1 Form17");
    window("Form17")->move(120, 90);
    stillRuns = true;
    press("Form1", "Command4");
  });
  QTimer::singleShot(10000, programm.get(), [] { QCoreApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(stillRuns);
  EXPECT_EQ(QPoint(store.Fenster.FensterLeft[17], store.Fenster.FensterTop[17]), QPoint(1800, 1350)); // 15 a pixel
  EXPECT_FALSE(store.VereinDatei.isOpen() || store.LaeuferDatei.isOpen() || store.RennenDatei.isOpen());
}

TEST_F(ProgrammTest, WhatWaitsForItsButtonIsKeptAsANote) {
  test.addAthlete("BERGER Karl", 2010, 1);
  test.addRace("Slalom");
  test.enter(1, 7);
  RennDatenSpeichern(store);
  start({});
  const auto note = [this] {
    const auto work = programm->openWork();
    return work.isEmpty() ? std::string() : work.last().bytes.toStdString();
  };
  const auto typeAndLeave = [this](const char *screen, const char *box, const char *next, const char *typed) {
    control<QLineEdit>(screen, box)->setFocus();
    control<QLineEdit>(screen, box)->selectAll();
    QTest::keyClicks(control<QLineEdit>(screen, box), typed);
    control<QAbstractButton>(screen, next)->setFocus();
  };
  typeAndLeave("Form4", "Text2", "Command7", "Nachtslalom");
  EXPECT_NE(note().find("„Nachtslalom“"), std::string::npos) << note();
  press("Form4", {"Command7", "Command6"});
  EXPECT_EQ(note(), "");
  chooseLine("Form7", "List2", 0);
  typeAndLeave("Form7", "Text3", "Command2", "2");
  EXPECT_NE(note().find("„0:2:0“ bei Nr. 7 BERGER Karl"), std::string::npos) << note();
  press("Form7", "Command2");
  EXPECT_EQ(note(), "");
}

} // namespace
