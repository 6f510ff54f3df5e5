#include "timing/Form7.h"

#include "support/ScreenTest.h"

#include <QComboBox>
#include <QSignalSpy>

namespace {

/// A woman, a man and one without a sex, in one class and in the rows 1 to 3 by start number.
class Form7Test : public ScreenTest<Form7> {
protected:
  Form7Test() {
    const int club = test.addClub(QStringLiteral("SC Alm"));
    test.addRace(QStringLiteral("Stadtlauf"));
    for (const auto &[name, sex] : {std::pair("ADAM Eva", 0), {"BERG Max", 1}, {"CERNY Ida", 2}})
      test.enter(test.addAthlete(QLatin1String(name), 1990, sex, club), sex + 1);
    store.KlasseName[0] = QStringLiteral("Damen");
  }

  void clickLine(int line) { ScreenTest::clickLine("List2", line); }
};

TEST_F(Form7Test, keyboardFastPath) {
  open();
  key(Qt::Key_Down); // from the list to the time
  EXPECT_EQ(text("Text1"), QString());
  keys("83.5");
  key(Qt::Key_Return);
  EXPECT_EQ(text("Text1"), QStringLiteral("83,5"));
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 83.5);
  key(Qt::Key_Return); // from the list back to the time
  keys("84");
  key(Qt::Key_Return);
  key(Qt::Key_Down);
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 84);
  EXPECT_EQ(label("Label11"), QStringLiteral("2"));
  EXPECT_TRUE(focused("Text1"));
}

TEST_F(Form7Test, showsTheSelectedParticipant) {
  auto &berg = store.Teilnehmer[2];
  berg.Zeit1 = 3661.5;
  berg.Punkte = 12.5F;
  berg.Status1 = 2;
  berg.Gast = 1;
  berg.GruppeNr = 4;
  store.GruppeName[4] = QStringLiteral("Gruppe D");
  open();
  for (const char *name : {"Text1", "Text5", "Combo2", "Command2", "Command4", "Command7"})
    EXPECT_FALSE(enabled(name)) << name;
  EXPECT_FALSE(shown("Text6"));
  clickLine(1);
  QStringList values;
  for (const int n : {1, 2, 5, 11, 14, 16, 18, 19, 23})
    values << label(qPrintable(QStringLiteral("Label%1").arg(n)));
  for (int n = 1; n <= 5; ++n)
    values << text(qPrintable(QStringLiteral("Text%1").arg(n)));
  EXPECT_EQ(values.join(QLatin1Char('|')),
            QStringLiteral("Stadtlauf|BERG Max|2|2|1990|Damen|JA|SC Alm|Gruppe D|3661,5|1|1|1,5|12,5"));
  EXPECT_EQ(find<QComboBox>("Combo2")->currentIndex(), 2);
  EXPECT_TRUE(shown("Label24") && !shown("Label22") && enabled("Command7"));
  const auto ground = [this] { return find("Label2")->palette().color(QPalette::Window); };
  EXPECT_EQ(ground(), QColor(192, 255, 255));
  clickLine(2);
  EXPECT_EQ(ground(), QColor(192, 255, 255)); // no sex, so the colour stays
  clickLine(0);
  EXPECT_EQ(ground(), QColor(255, 192, 192));
}

TEST_F(Form7Test, storesAgainstTheRowSelectedWhileTyping) {
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
  EXPECT_EQ(text("Text1"), QStringLiteral("1,234.5"));
  EXPECT_EQ(store.Teilnehmer[3].Zeit1, 0);
  EXPECT_TRUE(test.file(QStringLiteral("R 1.dat")).startsWith(" 1 \r\n 1 \r\n 0 \r\n 1 \r\n 0 \r\n 0 \r\n0\r\n70\r\n"));
}

TEST_F(Form7Test, splitsAndJoinsTimes) {
  open();
  clickLine(0);
  type("Text1", "59.999");
  press("Command4");
  EXPECT_EQ(text("Text3") + QLatin1Char('/') + text("Text4"), QStringLiteral("0/59,999"));
  type("Text3", "1");
  type("Text4", "23.45");
  press("Command2");
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 83.45);
  EXPECT_EQ(text("Text1"), QStringLiteral("83,45"));
  for (const auto &[typed, tidy] : {std::pair(" 7 ", " 7 "), {" 7.5 ", "7,5"}, {"  ", "0"}}) {
    type("Text4", typed);
    find("Text2")->setFocus();
    EXPECT_EQ(text("Text4"), QLatin1String(tidy));
  }
}

TEST_F(Form7Test, secondRun) {
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
  form->zeitUebernehmen(QStringLiteral("63,45"));
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 63.45);
  EXPECT_EQ(text("Text1"), QStringLiteral("63,45"));
}

TEST_F(Form7Test, provisionalResult) {
  store.Teilnehmer[1].Zeit1 = 50;
  open();
  for (const auto &[control, time, lines] : {std::tuple("Check1", 40, 4), {"Option1", 0, 3}}) { // on already, refills
    QSignalSpy ranked(form.get(), &Form7::ergebnisGerechnet);
    store.Teilnehmer[2].Zeit1 = time;
    press(control);
    EXPECT_EQ(ranked.size(), 1);
    EXPECT_EQ(store.ErgebnisZeilen.size(), lines);
  }
}

} // namespace
