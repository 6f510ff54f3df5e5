#include "timing/Form7.h"

#include "core/RaceFiles.h"
#include "support/ScreenTest.h"

#include <QComboBox>

namespace {

/// A woman, a man and one without a sex, in one class and in the rows 1 to 3 by start number.
struct Form7Test : ScreenTest<Form7> {
  Form7Test() {
    const int club = test.addClub("SC Alm");
    test.addRace("Stadtlauf");
    for (const auto &[name, sex] : {std::pair("ADAM Eva", 0), {"BERG Max", 1}, {"CERNY Ida", 2}})
      test.enter(test.addAthlete(name, 1990, sex, club), sex + 1);
    store.KlasseName[0] = "Damen";
  }

  void clickLine(int line) { ScreenTest::clickLine("List2", line); }
};

TEST_F(Form7Test, ShowsTheSelectedParticipant) {
  auto &berg = store.Teilnehmer[2];
  berg.Zeit1 = 3661.5;
  berg.Punkte = 12.5F;
  berg.Status1 = 2;
  berg.Gast = 1;
  berg.GruppeNr = 4;
  store.GruppeName[4] = "Gruppe D";
  open();
  clickLine(1);
  QStringList values;
  for (const int n : {1, 2, 5, 11, 14, 16, 18, 19, 23})
    values << label(qPrintable(QString("Label%1").arg(n)));
  for (int n = 1; n <= 5; ++n)
    values << text(qPrintable(QString("Text%1").arg(n)));
  EXPECT_EQ(values.join(u'|'), "Stadtlauf|BERG Max|2|2|1990|Damen|JA|SC Alm|Gruppe D|3661,5|1|1|1,5|12,5");
  EXPECT_EQ(find<QComboBox>("Combo2")->currentIndex(), 2);
}

TEST_F(Form7Test, StoresAgainstTheRowSelectedWhileTyping) {
  open();
  clickLine(0);
  keys("70");
  clickLine(1);
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 70);
  EXPECT_EQ(store.Teilnehmer[2].Zeit1, 0);
  find("Combo2")->setFocus();
  key(Qt::Key_End);
  type("Text5", "12,5");
  EXPECT_EQ(store.Teilnehmer[2].Status1, 5); // an entry without text
  clickLine(2);
  EXPECT_EQ(store.Teilnehmer[2].Punkte, 12);
  keys("1.234.5");
  form->close();
  EXPECT_EQ(text("Text1"), "1,234.5");
  EXPECT_EQ(store.Teilnehmer[3].Zeit1, 0);
  EXPECT_TRUE(test.file("R 1.dat").startsWith(" 1 \r\n 1 \r\n 0 \r\n 1 \r\n 0 \r\n 0 \r\n0\r\n70\r\n"));
}

TEST_F(Form7Test, SplitsAndJoinsTimes) {
  open();
  clickLine(0);
  type("Text1", "59.999");
  press("Command4");
  EXPECT_EQ(text("Text3") + u'/' + text("Text4"), "0/59,999");
  type("Text3", "1");
  type("Text4", "23.45");
  press("Command2");
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 83.45);
  EXPECT_EQ(text("Text1"), "83,45");
}

// Every way by which a number comes into the row; a refused one beeps and leaves the value and the box as they were.
TEST_F(Form7Test, TakesOnlyWhatItsFileGivesBack) {
  store.Rennen.ZweiDurchgaenge = 1;
  open();
  clickLine(0);
  type("Text1", "70");
  type("Text5", "12");
  type("Text2", "1E+308"); // hours
  type("Text6", "1,7976931348623157E+308");
  type("Text1", "1,7976931348623157E+308");
  type("Text5", "999999999999999999999999999999999999999");
  press("Command2");
  EXPECT_EQ(test.beeps, 4);
  form->takeDifference("1,79769313486232E+308");
  EXPECT_EQ(text("Text1") + u'/' + text("Text5"), "70/12");
  form->close();
  RennDatenLaden(store);
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 70);
  EXPECT_EQ(store.Teilnehmer[1].Punkte, 12);
}

// Never a time: what is typed in the list chooses a person or is forgotten.
TEST_F(Form7Test, TypingInTheListChoosesAPerson) {
  store.Teilnehmer[2].StartNr = 25;
  store.Teilnehmer[3].StartNr = 2;
  open();
  const auto chosen = [this](const char *typed, std::initializer_list<Qt::Key> after) {
    find("List2")->setFocus();
    keys(typed);
    keys(after);
    return label("Label11").toStdString() + (focused("Text1") ? " time" : " list");
  };
  EXPECT_EQ(chosen("25", {Qt::Key_Return}), "2 time");
  EXPECT_EQ(chosen("2", {Qt::Key_Return}), "3 time");
  EXPECT_EQ(chosen("99", {Qt::Key_Return}), "3 list");
  EXPECT_EQ(chosen("25", {Qt::Key_Escape}), "3 list");
  EXPECT_EQ(chosen("29", {Qt::Key_Backspace, Qt::Key_5, Qt::Key_Return}), "2 time");
  EXPECT_EQ(chosen("ad", {Qt::Key_Return}), "1 time");
  EXPECT_EQ(chosen("cerny i", {Qt::Key_Return}), "3 time");
  keys("41");
  key(Qt::Key_Return);
  EXPECT_EQ(chosen("1", {}), "3 list");
  EXPECT_TRUE(QTest::qWaitFor([this] { return focused("Text1"); })); // by the pause, as no other number begins so
  EXPECT_EQ(label("Label11"), QStringLiteral("1"));
  key(Qt::Key_Return); // meant for the number
  EXPECT_TRUE(focused("Text1"));
  key(Qt::Key_Return);
  EXPECT_EQ(chosen("25", {Qt::Key_Tab}).substr(0, 1), "1");
  for (const int row : {1, 2, 3})
    EXPECT_EQ(store.Teilnehmer[row].Zeit1, row == 3 ? 41 : 0) << row;
  press("Option3");
  EXPECT_TRUE(focused("List2"));
}

TEST_F(Form7Test, SecondRun) {
  store.Rennen.ZweiDurchgaenge = 1;
  store.Teilnehmer[1].Zeit1 = 50;
  open();
  press("Option5");
  clickLine(0); // the head line
  EXPECT_TRUE(!enabled("Text1") && focused("List2"));
  clickLine(1);
  ASSERT_TRUE(focused("Text6"));
  keys("61,25");
  key(Qt::Key_Enter);
  EXPECT_EQ(store.Teilnehmer[1].Zeit2, 61.25);
  form->takeDifference("63,45");
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 63.45);
  EXPECT_EQ(text("Text1"), "63,45");
}

} // namespace
