#include "core/RaceFiles.h"
#include "support/RoofTest.h"

#include <QTimer>

namespace {

using ProgrammTest = RoofTest;

TEST_F(ProgrammTest, TheRegisterTakesThePlaceOfTheMenuAndKeepsTheOpenRace) {
  test.addRace(QStringLiteral("Slalom"));
  test.addRace(QStringLiteral("Abfahrt"));
  test.store.AktRennen = test.store.RennenIdx = 0;
  start();
  press("Form1", "Command3");
  EXPECT_EQ(visible(), "Form4");
  EXPECT_EQ(text("Form4", "Text2"), QStringLiteral("Abfahrt"));
  EXPECT_EQ(test.beeps, 1); // race 0 is read while the list is filled for the first time
  press("Form4", "Command2");
  press("Form4", "Command1");
  EXPECT_EQ(visible(), "Form1");
  press("Form1", "Command3");
  EXPECT_EQ(text("Form4", "Text2"), QStringLiteral("Slalom"));
  window("Form4")->close();
  EXPECT_EQ(visible(), "Form1");
}

TEST_F(ProgrammTest, ADeletedRaceStaysOpenAsLeer) {
  test.addRace(QStringLiteral("Slalom"));
  RennDatenSpeichern(test.store);
  start();
  press("Form1", "Command3");
  press("Form4", "Command9");
  EXPECT_EQ(visible(), "Form9");
  press("Form9", "Command2");
  EXPECT_TRUE(test.hasFile(QStringLiteral("R 1.dat")));
  press("Form4", "Command9");
  press("Form9", "Command1");
  EXPECT_EQ(visible(), "Form4");
  EXPECT_FALSE(test.hasFile(QStringLiteral("R 1.dat")));
  EXPECT_EQ(text("Form4", "Text1") + text("Form4", "Text2"), QStringLiteral("1leer"));
  EXPECT_TRUE(control<LineList>("Form4", "List1")->lines().isEmpty());
}

// Every button opens its screen in the place of the register, and closing that brings the register back.
TEST_F(ProgrammTest, EachFunctionComesBackToTheRegister) {
  test.addRace(QStringLiteral("Slalom"));
  start();
  press("Form1", "Command3");
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
  test.addRace(QStringLiteral("Slalom"));
  test.enter(test.addAthlete(QStringLiteral("BERGER Eva"), 2000, 0), 1);
  RennDatenSpeichern(test.store);
  start();
  press("Form1", "Command3");
  press("Form4", "Command6");
  chooseLine("Form7", "List2", 0);
  press("Form7", "Check1");
  press("Form7", "Command7");
  EXPECT_EQ(visible(), "Form13 Form18 Form7");
  window("Form18")->close();
  EXPECT_EQ(visible(), "Form13 Form7");
  press("Form7", "Command7");
  window("Form7")->close();
  EXPECT_EQ(visible(), "Form4");
}

TEST_F(ProgrammTest, TheParticipantListTakesItsScreensAlongAndCommitsTheirFields) {
  test.addRace(QStringLiteral("Slalom"));
  test.addAthlete(QStringLiteral("BERGER Eva"), 2000, 0);
  start();
  press("Form1", "Command3");
  press("Form4", "Command4");
  QTest::keyClicks(control<QLineEdit>("Form5", "Text1"), QStringLiteral("Moser"));
  press("Form5", "Command5");
  EXPECT_EQ(visible(), "Form3 Form5");
  window("Form5")->close();
  EXPECT_EQ(visible(), "Form4");
}

TEST_F(ProgrammTest, AGeneratedRaceIsOpenedFromTheMenu) {
  test.addRace(QStringLiteral("Slalom"));
  test.addRace(QStringLiteral("Abfahrt"));
  start();
  press("Form1", "Command3");
  press("Form4", "Command18");
  chooseLine("Form19", "List1", 0);
  chooseLine("Form19", "List1", 1);
  press("Form19", "Command2");
  EXPECT_EQ(visible(), "Form1");
  press("Form1", "Command3");
  EXPECT_EQ(text("Form4", "Text1") + text("Form4", "Text2"), QStringLiteral("3Kombilauf"));
}

TEST_F(ProgrammTest, TheReminderFollowsTheSaves) {
  test.addRace(QStringLiteral("Slalom"));
  start();
  const int row = test.enter(test.addAthlete(QStringLiteral("BERGER Eva"), 2000, 2));
  RennDatenSpeichern(test.store);
  RennDatenSpeichern(test.store);
  EXPECT_EQ(visible(), "Form1 Form17");
  EXPECT_EQ(control<LineList>("Form17", "List1")->lines(), QStringList{QStringLiteral("1   BERGER Eva m/w ?")});
  window("Form17")->close();
  RennDatenSpeichern(test.store); // closed by hand and wanted again at once
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(visible(), "Form1 Form17");
  test.store.Teilnehmer[row].LaeuferNr = 0;
  RennDatenSpeichern(test.store);
  EXPECT_EQ(visible(), "Form1");
}

TEST_F(ProgrammTest, OnlyTheMenuEndsTheProgramAlsoBesideTheReminder) {
  start();
  test.umgebung.erinnern({QStringLiteral("1")});
  press("Form1", "Command3");
  int ended = 0;
  QTimer::singleShot(0, [&] {
    window("Form4")->close();
    EXPECT_EQ(visible(), "Form1 Form17");
    ended = 1;
    press("Form1", "Command4");
  });
  QTimer::singleShot(10000, programm.get(), [] { QCoreApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(test.store.VereinDatei.isOpen() || test.store.LaeuferDatei.isOpen() || test.store.RennenDatei.isOpen());
}

} // namespace
