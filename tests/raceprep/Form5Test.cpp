#include "raceprep/Form5.h"

#include "masterdata/Form3.h"
#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/TestStore.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

class Form5Test : public testing::Test {
protected:
  Form5Test() {
    test.addClub(QStringLiteral("SK A"));
    for (const char *name : {"Abt Ida", "Berger Max", "Cerny Udo"})
      test.addAthlete(QLatin1String(name), 1990, 1, 1);
    test.addRace(QStringLiteral("Ortslauf"));
  }
  void open() {
    form = std::make_unique<Form5>(desk, test.store);
    desk.show(*form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  template <typename Control> Control *control(const char *name) {
    return form->findChild<Control *>(QLatin1String(name));
  }
  LineList *list(const char *name) { return control<LineList>(name); }
  QString label(const char *name) { return control<QLabel>(name)->text(); }
  QPushButton *button(const char *name) { return control<QPushButton>(name); }
  void press(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
  void click(const char *name, int line) {
    QTest::mouseClick(list(name)->viewport(), Qt::LeftButton, {}, place(name, line));
  }
  void doubleClick(const char *name, int line) {
    click(name, line);
    QTest::mouseDClick(list(name)->viewport(), Qt::LeftButton, {}, place(name, line));
  }
  QPoint place(const char *name, int line) {
    return list(name)->visualRect(list(name)->model()->index(line, 0)).center();
  }

  TestStore test;
  Desk desk{test.store.Fenster, [] {}};
  std::unique_ptr<Form5> form;
};

} // namespace

TEST_F(Form5Test, AddsAndDeletesByMouse) {
  open();
  EXPECT_EQ(label("Label1"), QStringLiteral("Ortslauf"));
  EXPECT_FALSE(button("Command2")->isEnabled());
  click("List1", 1);
  EXPECT_EQ(label("Label4"), QStringLiteral("Berger Max"));
  EXPECT_EQ(label("Label8"), QStringLiteral("01.07.1990"));
  EXPECT_EQ(label("Label10") + label("Label11") + label("Label12"), QStringLiteral("SK A11"));
  press("Command2");
  EXPECT_FALSE(button("Command2")->isEnabled());
  EXPECT_TRUE(list("List1")->hasFocus());
  EXPECT_EQ(test.store.Teilnehmer[1].LaeuferNr, 2);
  EXPECT_EQ(test.store.Teilnehmer[1].VereinNr, 1);
  click("List1", 1); // he is in the race by now
  EXPECT_FALSE(button("Command2")->isEnabled());
  click("List2", 0);
  EXPECT_EQ(label("Label5") + label("Label7"), QStringLiteral("Berger Max1"));
  QSignalSpy deleted(form.get(), &Form5::teilnehmerGeloescht);
  press("Command3");
  EXPECT_EQ(deleted.count(), 1);
  EXPECT_TRUE(list("List2")->hasFocus());
  EXPECT_FALSE(button("Command3")->isEnabled());
  EXPECT_EQ(label("Label5"), QString());
  EXPECT_EQ(test.store.Teilnehmer[1].LaeuferNr, 0);
  EXPECT_TRUE(list("List2")->lines().isEmpty());
}

TEST_F(Form5Test, WorksByKeysAlone) {
  open();
  QTest::keyClicks(list("List1"), QStringLiteral("c"));
  QTest::keyClick(list("List1"), Qt::Key_Tab);
  QTest::keyClick(button("Command2"), Qt::Key_Return);
  EXPECT_EQ(test.store.Teilnehmer[1].LaeuferNr, 3);
  QSignalSpy opened(form.get(), &Form5::athletGewaehlt);
  QTest::keyClick(list("List1"), Qt::Key_Return);
  ASSERT_EQ(opened.count(), 1);
  EXPECT_EQ(opened[0][0].toInt(), 3);
}

TEST_F(Form5Test, FiltersAndOrder) {
  for (const int athlete : {3, 1, 2})
    test.enter(athlete);
  open();
  auto *beginning = control<QLineEdit>("Text1");
  beginning->setFocus();
  QTest::keyClicks(beginning, QStringLiteral(" berg "));
  EXPECT_EQ(list("List1")->lines().size(), 3);
  QTest::keyClick(beginning, Qt::Key_Return);
  EXPECT_EQ(list("List1")->lines().size(), 1);
  auto *participants = control<QLineEdit>("Text2");
  participants->setFocus();
  EXPECT_EQ(beginning->text(), QStringLiteral("Berg"));
  QTest::keyClicks(participants, QStringLiteral(" ce"));
  QTest::keyClick(participants, Qt::Key_Return);
  EXPECT_EQ(participants->text(), QStringLiteral("CE"));
  EXPECT_EQ(list("List2")->lines().size(), 1);
  press("Command4");
  press("Command6");
  control<QComboBox>("Combo1")->setFocus();
  QTest::keyClick(control<QComboBox>("Combo1"), Qt::Key_End);
  EXPECT_TRUE(list("List2")->lines().first().startsWith(QStringLiteral("997  Berger")));
  EXPECT_EQ(list("List1")->lines().size(), 3);
}

TEST_F(Form5Test, DoubleClicksAndNewEntryAskForTheOtherScreens) {
  test.enter(3);
  test.enter(2);
  open();
  QSignalSpy athlete(form.get(), &Form5::athletGewaehlt), row(form.get(), &Form5::teilnehmerGewaehlt),
      fresh(form.get(), &Form5::neuaufnahme);
  doubleClick("List1", 2);
  doubleClick("List2", 0);
  control<QLineEdit>("Text1")->setFocus();
  QTest::keyClicks(control<QLineEdit>("Text1"), QStringLiteral("zobl"));
  press("Command5");
  ASSERT_EQ(athlete.count() + row.count() + fresh.count(), 3);
  EXPECT_EQ(athlete[0][0].toInt(), 3);
  EXPECT_EQ(row[0][0].toInt(), 2);
  EXPECT_EQ(fresh[0][0].toString(), QStringLiteral("Zobl"));
}

TEST_F(Form5Test, ReturnFromTheRegisterShowsTheNewNameAmongTheParticipants) {
  test.enter(2);
  open();
  Form3 athletes(desk, test.store);
  athletes.zeigen(2);
  desk.show(athletes);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&athletes));
  auto *name = athletes.findChild<QLineEdit *>(QStringLiteral("Text2"));
  name->setFocus();
  QTest::keyClicks(name, QStringLiteral(" jun."));
  desk.show(*form);
  EXPECT_TRUE(list("List2")->lines().first().startsWith(QStringLiteral("Berger Max jun.")));
  EXPECT_TRUE(list("List1")->lines()[1].startsWith(QStringLiteral("Berger Max   ")));
}

TEST_F(Form5Test, ClosingStoresTheRegisterOnTopAndTheRace) {
  open();
  click("List1", 0);
  press("Command2");
  Form3 athletes(desk, test.store);
  desk.show(athletes);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&athletes));
  athletes.neuaufnehmen(QStringLiteral("Neu"));
  form->close();
  EXPECT_TRUE(test.file(QStringLiteral("R 1.dat")).startsWith(" 1 \r\n"));
  EXPECT_EQ(test.file(QStringLiteral("Laeufer.rec")).mid(2 * LaeuferLaenge, 4), "Neu ");
}
