#include "raceprep/Form5.h"

#include "masterdata/Form3.h"
#include "support/ScreenTest.h"

#include <QSignalSpy>

namespace {

class Form5Test : public ScreenTest<Form5> {
protected:
  Form5Test() {
    test.addClub(QStringLiteral("SK A"));
    for (const char *name : {"Abt Ida", "Berger Max", "Cerny Udo"})
      test.addAthlete(QLatin1String(name), 1990, 1, 1);
    test.addRace(QStringLiteral("Ortslauf"));
  }
  bool enabled(const char *name) { return find(name)->isEnabled(); }
  void doubleClick(const char *name, int line) {
    clickLine(name, line);
    auto *list = find<LineList>(name);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(line, 0)).center());
  }
};

} // namespace

TEST_F(Form5Test, AddsAndDeletes) {
  open();
  EXPECT_FALSE(enabled("Command2"));
  clickLine("List1", 1);
  EXPECT_EQ(label("Label4") + label("Label8") + label("Label10"), QStringLiteral("Berger Max01.07.1990SK A"));
  press("Command2");
  EXPECT_FALSE(enabled("Command2"));
  EXPECT_TRUE(find("List1")->hasFocus());
  EXPECT_EQ(store.Teilnehmer[1].LaeuferNr, 2);
  EXPECT_EQ(store.Teilnehmer[1].VereinNr, 1);
  clickLine("List1", 1); // he is in the race by now
  EXPECT_FALSE(enabled("Command2"));
  clickLine("List2", 0);
  EXPECT_EQ(label("Label5") + label("Label7"), QStringLiteral("Berger Max1"));
  QSignalSpy deleted(form.get(), &Form5::teilnehmerGeloescht);
  press("Command3");
  EXPECT_EQ(deleted.count(), 1);
  EXPECT_TRUE(find("List2")->hasFocus());
  EXPECT_FALSE(enabled("Command3"));
  EXPECT_TRUE(lines("List2").isEmpty());
}

TEST_F(Form5Test, WorksByKeysAlone) {
  open();
  key(Qt::Key_C);
  key(Qt::Key_Tab);
  key(Qt::Key_Return);
  EXPECT_EQ(store.Teilnehmer[1].LaeuferNr, 3);
  QSignalSpy opened(form.get(), &Form5::athletGewaehlt);
  key(Qt::Key_Return);
  EXPECT_EQ(opened.value(0).value(0).toInt(), 3);
}

TEST_F(Form5Test, FiltersAndOrder) {
  for (const int athlete : {3, 1, 2})
    test.enter(athlete);
  open();
  type("Text1", " berg ");
  EXPECT_EQ(lines("List1").size(), 3);
  key(Qt::Key_Return);
  EXPECT_EQ(lines("List1").size(), 1);
  type("Text2", " ce");
  EXPECT_EQ(text("Text1"), QStringLiteral("Berg"));
  key(Qt::Key_Return);
  EXPECT_EQ(text("Text2"), QStringLiteral("CE"));
  EXPECT_EQ(lines("List2").size(), 1);
  press("Command4");
  press("Command6");
  find("Combo1")->setFocus();
  key(Qt::Key_End);
  EXPECT_TRUE(lines("List2").first().startsWith(QStringLiteral("997  Berger")));
  EXPECT_EQ(lines("List1").size(), 3);
}

TEST_F(Form5Test, DoubleClicksAndNewEntryAskForTheOtherScreens) {
  for (const int athlete : {3, 2})
    test.enter(athlete);
  open();
  QSignalSpy athlete(form.get(), &Form5::athletGewaehlt), row(form.get(), &Form5::teilnehmerGewaehlt),
      fresh(form.get(), &Form5::neuaufnahme);
  doubleClick("List1", 2);
  doubleClick("List2", 0);
  type("Text1", "zobl");
  press("Command5");
  EXPECT_EQ(athlete.value(0).value(0).toInt(), 3);
  EXPECT_EQ(row.value(0).value(0).toInt(), 2);
  EXPECT_EQ(fresh.value(0).value(0).toString(), QStringLiteral("Zobl"));
}

TEST_F(Form5Test, RegisterOnTopIsStoredOnReturnAndOnClosing) {
  test.enter(2);
  open();
  Form3 athletes(desk, store);
  desk.show(athletes);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&athletes));
  athletes.neuaufnehmen(QStringLiteral("Dorn"));
  desk.show(*form);
  ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  EXPECT_EQ(lines("List2").size(), 1);
  EXPECT_TRUE(lines("List1").last().startsWith(QStringLiteral("Cerny"))); // until "alle zeigen"
  press("Command4");
  EXPECT_TRUE(lines("List1").last().startsWith(QStringLiteral("Dorn")));
  desk.show(athletes);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&athletes));
  athletes.neuaufnehmen(QStringLiteral("Ehn"));
  form->close();
  EXPECT_EQ(test.file(QStringLiteral("Laeufer.rec")).mid(2 * LaeuferLaenge, 4), "Ehn ");
  EXPECT_TRUE(test.file(QStringLiteral("R 1.dat")).startsWith(" 2 \r\n"));
}
