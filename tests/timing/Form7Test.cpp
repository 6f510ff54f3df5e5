#include "timing/Form7.h"

#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/TestStore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

namespace {

/// Two women and a man in one class, in the rows 1 to 3 by start number.
class Form7Test : public testing::Test {
protected:
  Form7Test() {
    const int club = test.addClub(QStringLiteral("SC Alm"));
    test.addRace(QStringLiteral("Stadtlauf"));
    const std::pair<QString, int> people[] = {
        {QStringLiteral("ADAM Eva"), 0}, {QStringLiteral("BERG Max"), 1}, {QStringLiteral("CERNY Ida"), 2}};
    int startNr = 0;
    for (const auto &[name, sex] : people)
      test.enter(test.addAthlete(name, 1990, sex, club), ++startNr);
    store.KlasseName[0] = QStringLiteral("Damen");
  }

  void open() {
    form = std::make_unique<Form7>(desk, store);
    desk.show(*form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }

  template <typename Control> Control *find(const char *name) {
    return form->findChild<Control *>(QLatin1String(name));
  }
  QLineEdit *edit(const char *name) { return find<QLineEdit>(name); }
  QString shown(const char *name) { return find<QLabel>(name)->text(); }
  void press(const char *name) { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }
  void clickLine(int line) {
    auto *list = find<LineList>("List2");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(line, 0)).center());
  }
  void type(const char *box, const char *text) {
    edit(box)->setFocus();
    edit(box)->clear();
    QTest::keyClicks(edit(box), QLatin1String(text));
  }
  bool focused(const char *name) { return find<QWidget>(name)->hasFocus(); }

  TestStore test;
  Store &store = test.store;
  Desk desk{store.Fenster, [this] { FensterSpeichern(store); }};
  std::unique_ptr<Form7> form;
};

TEST_F(Form7Test, keyboardFastPath) {
  open();
  EXPECT_TRUE(focused("List2"));
  auto *list = find<LineList>("List2");
  QTest::keyClick(list, Qt::Key_Down);
  ASSERT_TRUE(focused("Text1"));
  EXPECT_EQ(edit("Text1")->text(), QString());
  QTest::keyClicks(edit("Text1"), QStringLiteral("83.5"));
  QTest::keyClick(edit("Text1"), Qt::Key_Return);
  EXPECT_EQ(edit("Text1")->text(), QStringLiteral("83,5"));
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 83.5);
  ASSERT_TRUE(focused("List2"));
  QTest::keyClick(list, Qt::Key_Return);
  ASSERT_TRUE(focused("Text1"));
  QTest::keyClicks(edit("Text1"), QStringLiteral("84")); // replaces the time
  QTest::keyClick(edit("Text1"), Qt::Key_Return);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 84);
  EXPECT_EQ(shown("Label11"), QStringLiteral("2"));
  EXPECT_TRUE(focused("Text1"));
}

TEST_F(Form7Test, showsTheSelectedParticipant) {
  store.Teilnehmer[2].Zeit1 = 3661.5;
  store.Teilnehmer[2].Punkte = 12.5F;
  store.Teilnehmer[2].Status1 = 2;
  store.Teilnehmer[2].Gast = 1;
  store.Teilnehmer[2].GruppeNr = 4;
  store.GruppeName[4] = QStringLiteral("Gruppe D");
  open();
  for (const char *name : {"Text1", "Text5", "Combo2", "Command2", "Command4", "Command7"})
    EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
  EXPECT_FALSE(find<QWidget>("Text6")->isVisible());
  clickLine(1);
  const std::pair<const char *, const char *> labels[] = {
      {"Label1", "Stadtlauf"}, {"Label2", "BERG Max"}, {"Label5", "2"},
      {"Label11", "2"},        {"Label14", "1990"},    {"Label16", "Damen"},
      {"Label18", "JA"},       {"Label19", "SC Alm"},  {"Label23", "Gruppe D"}};
  for (const auto &[name, text] : labels)
    EXPECT_EQ(shown(name), QLatin1String(text)) << name;
  const std::pair<const char *, const char *> boxes[] = {
      {"Text1", "3661,5"}, {"Text2", "1"}, {"Text3", "1"}, {"Text4", "1,5"}, {"Text5", "12,5"}};
  for (const auto &[name, text] : boxes)
    EXPECT_EQ(edit(name)->text(), QLatin1String(text)) << name;
  EXPECT_EQ(find<QComboBox>("Combo2")->currentIndex(), 2);
  EXPECT_TRUE(find<QWidget>("Label24")->isVisible());
  EXPECT_FALSE(find<QWidget>("Label22")->isVisible());
  EXPECT_TRUE(find<QWidget>("Command7")->isEnabled());
  const auto ground = [this] { return find<QLabel>("Label2")->palette().color(QPalette::Window); };
  EXPECT_EQ(ground(), QColor(192, 255, 255));
  clickLine(2);
  EXPECT_EQ(ground(), QColor(192, 255, 255)); // no sex, so the colour stays
  clickLine(0);
  EXPECT_EQ(ground(), QColor(255, 192, 192));
}

TEST_F(Form7Test, storesAgainstTheRowSelectedWhileTyping) {
  open();
  clickLine(0);
  QTest::keyClicks(edit("Text1"), QStringLiteral("70"));
  clickLine(1);
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 70);
  EXPECT_EQ(store.Teilnehmer[2].Zeit1, 0);
  find<QComboBox>("Combo2")->setFocus();
  QTest::keyClick(find<QComboBox>("Combo2"), Qt::Key_End);
  type("Text5", "12,5");
  EXPECT_EQ(store.Teilnehmer[2].Status1, 5); // an entry without text
  clickLine(2);
  EXPECT_EQ(store.Teilnehmer[2].Punkte, 12);
  QTest::keyClicks(edit("Text1"), QStringLiteral("1.234.5"));
  form->close();
  EXPECT_EQ(edit("Text1")->text(), QStringLiteral("1,234.5"));
  EXPECT_EQ(store.Teilnehmer[3].Zeit1, 0);
  EXPECT_TRUE(test.file(QStringLiteral("R 1.dat")).startsWith(" 1 \r\n 1 \r\n 0 \r\n 1 \r\n 0 \r\n 0 \r\n0\r\n70\r\n"));
}

TEST_F(Form7Test, splitsAndJoinsTimes) {
  open();
  clickLine(0);
  type("Text1", "59.999");
  press("Command4");
  EXPECT_EQ(edit("Text3")->text() + QLatin1Char('/') + edit("Text4")->text(), QStringLiteral("0/59,999"));
  type("Text3", "1");
  type("Text4", "23.45");
  press("Command2");
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 83.45);
  EXPECT_EQ(edit("Text1")->text(), QStringLiteral("83,45"));
  const std::pair<const char *, const char *> seconds[] = {{" 7 ", " 7 "}, {" 7.5 ", "7,5"}, {"  ", "0"}};
  for (const auto &[typed, tidy] : seconds) {
    type("Text4", typed);
    edit("Text2")->setFocus();
    EXPECT_EQ(edit("Text4")->text(), QLatin1String(tidy));
  }
}

TEST_F(Form7Test, secondRun) {
  store.Rennen.ZweiDurchgaenge = 1;
  store.Teilnehmer[1].Zeit1 = 50;
  open();
  press("Option5");
  clickLine(0); // the head line
  EXPECT_FALSE(edit("Text1")->isEnabled());
  EXPECT_TRUE(focused("List2"));
  clickLine(1);
  ASSERT_TRUE(focused("Text6"));
  QTest::keyClicks(edit("Text6"), QStringLiteral("61,25"));
  QTest::keyClick(edit("Text6"), Qt::Key_Enter);
  EXPECT_EQ(store.Teilnehmer[1].Zeit2, 61.25);
  form->zeitUebernehmen(QStringLiteral("63,45"));
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 63.45);
  EXPECT_EQ(edit("Text1")->text(), QStringLiteral("63,45"));
}

TEST_F(Form7Test, provisionalResult) {
  store.Teilnehmer[1].Zeit1 = 50;
  open();
  QSignalSpy wanted(form.get(), &Form7::ergebnisVerlangt), ranked(form.get(), &Form7::ergebnisGerechnet);
  store.Teilnehmer[2].Zeit1 = 40;
  press("Check1");
  EXPECT_EQ(wanted, (QList<QVariantList>{{true}}));
  EXPECT_EQ(ranked.size(), 1);
  EXPECT_EQ(store.ErgebnisZeilen.size(), 4);
  store.Teilnehmer[2].Zeit1 = 0;
  press("Option1"); // on already, refills all the same
  EXPECT_EQ(ranked.size(), 2);
  EXPECT_EQ(store.ErgebnisZeilen.size(), 3);
}

} // namespace
