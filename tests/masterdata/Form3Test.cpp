#include "masterdata/Form3.h"

#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/TestStore.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

class Form3Test : public testing::Test {
protected:
  void open() {
    form = std::make_unique<Form3>(desk, test.store);
    desk.show(*form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  void addAthletes(std::initializer_list<const char *> names) {
    for (const char *name : names)
      test.addAthlete(QString::fromUtf8(name), 1990, 0);
  }
  template <typename Control> Control *control(const char *name) {
    return form->findChild<Control *>(QLatin1String(name));
  }
  QLineEdit *text(int n) { return control<QLineEdit>(qPrintable(QStringLiteral("Text%1").arg(n))); }
  void press(const char *name) { QTest::mouseClick(control<QPushButton>(name), Qt::LeftButton); }
  void type(int n, const char *what) {
    text(n)->setFocus();
    text(n)->selectAll();
    QTest::keyClicks(text(n), QString::fromUtf8(what));
  }
  const LaeuferSatz &record(int n) {
    test.store.LaeuferIdx = n;
    LaeuferLesen(test.store);
    return test.store.Laeufer;
  }

  TestStore test;
  Desk desk{test.store.Fenster, [] {}};
  std::unique_ptr<Form3> form;
};

} // namespace

TEST_F(Form3Test, FreshRegisterBeginsWithAnUnwrittenRecord) {
  open();
  EXPECT_EQ(text(1)->text(), QStringLiteral("1"));
  EXPECT_EQ(text(4)->text(), QStringLiteral("01.01.1900"));
  EXPECT_EQ(test.file(QStringLiteral("Laeufer.rec")).size(), 0);
  press("Command3");
  EXPECT_EQ(test.store.LaeuferAnzahl, 1);
  type(2, " HUBER Anna ");
  form->close();
  EXPECT_EQ(record(1).Name, QStringLiteral("HUBER Anna"));
  EXPECT_EQ(test.store.Laeufer.Geschlecht, 2);
  EXPECT_EQ(test.store.Laeufer.Geburtsdatum, 2.0);
}

TEST_F(Form3Test, IndexActsAtEachKeyAndIsHeldToTheRegister) {
  addAthletes({"A", "B", "C"});
  open();
  const QList<QPair<const char *, const char *>> cases{{"1", "A"}, {"9999", "C"}, {"2", "B"}, {"007", "C"}, {"x", "A"}};
  for (const auto &[typed, name] : cases) {
    type(1, typed);
    EXPECT_EQ(text(2)->text(), QLatin1String(name)) << typed;
    EXPECT_EQ(text(1)->cursorPosition(), text(1)->text().size());
  }
  EXPECT_EQ(test.beeps, 0);
  press("Command2");
  EXPECT_EQ(test.beeps, 1);
  EXPECT_EQ(text(2)->text(), QStringLiteral("A"));
}

TEST_F(Form3Test, EachFieldIsStoredOnceWhenItIsLeft) {
  addAthletes({"A"});
  test.addClub(QStringLiteral("SK A"));
  test.addClub(QStringLiteral("SK B"));
  open();
  type(3, " 4711 ");
  type(4, "83");
  type(5, "2.5");
  control<QComboBox>("Combo2")->setFocus();
  QTest::keyClick(control<QComboBox>("Combo2"), Qt::Key_End);
  QTest::mouseClick(control<QRadioButton>("Option1"), Qt::LeftButton);
  const auto &athlete = record(1);
  EXPECT_EQ(athlete.OesvNr.trimmed(), QStringLiteral("4711"));
  EXPECT_EQ(text(4)->text(), QStringLiteral("01.01.1983"));
  EXPECT_EQ(athlete.LaeuferPunkte, 2.5F);
  EXPECT_EQ(athlete.Verein2, 2);
  EXPECT_EQ(athlete.Geschlecht, 1);
  type(1, "1");
  type(5, "2,5");
  form->close();
  EXPECT_EQ(record(1).LaeuferPunkte, 2.0F);
}

TEST_F(Form3Test, SexIsChosenByClickBlankOrArrowButNotByTab) {
  test.addAthlete(QStringLiteral("A"), 1990, 2);
  open();
  auto *male = control<QRadioButton>("Option1"), *female = control<QRadioButton>("Option2");
  text(4)->setFocus();
  QTest::keyClick(text(4), Qt::Key_Tab);
  EXPECT_TRUE(male->hasFocus());
  EXPECT_FALSE(male->isChecked());
  EXPECT_EQ(record(1).Geschlecht, 2);
  QTest::keyClick(male, Qt::Key_Down);
  EXPECT_TRUE(female->isChecked());
  EXPECT_EQ(record(1).Geschlecht, 0);
  QTest::keyClick(female, Qt::Key_Up);
  EXPECT_EQ(record(1).Geschlecht, 1);
}

TEST_F(Form3Test, WritesOnlyIntoTheAthleteShown) {
  addAthletes({"A", "B", "C"});
  open();
  form->zeigen(2);
  test.store.LaeuferIdx = 3;
  type(2, "BB");
  test.store.LaeuferIdx = 1;
  press("Command4");
  EXPECT_EQ(LaeuferListeFuellen(test.store).join(QLatin1Char('|')),
            QStringLiteral("A        1|BB        2|C        3"));
  EXPECT_EQ(text(2)->text(), QStringLiteral("C"));
}

TEST_F(Form3Test, ListKeepsTheShownLineMarkedAndLettersJump) {
  addAthletes({"A", "B", "C"});
  open();
  auto *list = control<LineList>("List1");
  EXPECT_TRUE(list->hasFocus());
  QTest::keyClicks(list, QStringLiteral("b"));
  EXPECT_EQ(text(1)->text(), QStringLiteral("2"));
  type(2, "Z");
  QTest::keyClick(text(2), Qt::Key_Tab);
  EXPECT_EQ(list->chosenLine(), 2);
  EXPECT_EQ(text(1)->text(), QStringLiteral("2"));
}

TEST_F(Form3Test, NewEntryTakesAFreeRecordOrRenamesTheLast) {
  addAthletes({"A", " ", "C"});
  open();
  form->neuaufnehmen(QStringLiteral("NEU"));
  EXPECT_EQ(text(1)->text(), QStringLiteral("2"));
  EXPECT_TRUE(text(2)->hasFocus());
  form->neuaufnehmen(QStringLiteral("Zweiter")); // as by a second press while the first name has the focus
  QTest::keyClick(text(2), Qt::Key_Tab);
  EXPECT_EQ(record(2).Name, QStringLiteral("Zweiter"));
  form->neuaufnehmen(QStringLiteral("Dritter"));
  form->close();
  EXPECT_EQ(record(3).Name, QStringLiteral("Dritter"));
}
