#include "raceprep/Form4.h"

#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/FakePrinters.h"
#include "support/TestStore.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

const QStringList Screens =
    QStringLiteral("Form5 Form6 Form7 Form8 Form11 Form12 Form16 Form10 Form14 Form15 CupKopie Form20 Form19")
        .split(QLatin1Char(' '));
const int Buttons[] = {4, 5, 6, 8, 10, 11, 12, 13, 14, 15, 16, 17, 18};
const QList<int> Unlocked = {16, 18};

class Form4Test : public testing::Test {
protected:
  Form4Test() {
    test.addRace(QStringLiteral("Slalom"));
    test.addRace(QStringLiteral("Abfahrt"));
    form = std::make_unique<Form4>(desk, test.store, *printers.printers);
    desk.show(*form);
    form->waehlen(2);
  }

  QPushButton *button(int n) { return form->findChild<QPushButton *>(QStringLiteral("Command%1").arg(n)); }
  QLineEdit *box(int n) { return form->findChild<QLineEdit *>(QStringLiteral("Text%1").arg(n)); }
  LineList *list() { return form->findChild<LineList *>(QStringLiteral("List1")); }
  void press(int n) { QTest::mouseClick(button(n), Qt::LeftButton); }
  /// The screens that all buttons together ask for.
  QStringList openedByAll() {
    const QSignalSpy spy(form.get(), &Form4::oeffnet);
    for (const int n : Buttons)
      press(n);
    QStringList names;
    for (const auto &arguments : spy)
      names << arguments[0].toString();
    return names;
  }

  TestStore test;
  FakePrinters printers;
  Desk desk{test.store.Fenster, [this] { FensterSpeichern(test.store); }};
  std::unique_ptr<Form4> form;
};

TEST_F(Form4Test, ALineOpensItsRaceByMouseAndKeys) {
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualRect(list()->model()->index(1, 0)).center());
  EXPECT_EQ(test.store.AktRennen, 1);
  EXPECT_EQ(box(2)->text(), QStringLiteral("Slalom"));
  QTest::keyClick(list(), Qt::Key_Up);
  EXPECT_EQ(box(1)->text(), QStringLiteral("2"));
  EXPECT_EQ(test.store.AktRennen, 2);
}

TEST_F(Form4Test, PlusMakesARaceThatGetsItsName) {
  press(3);
  EXPECT_EQ(box(1)->text(), QStringLiteral("3"));
  EXPECT_EQ(test.store.AktRennen, 3);
  press(3); // a nameless race is followed by none
  EXPECT_EQ(test.store.RennenAnzahl, 3);
  QTest::keyClicks(box(2), QStringLiteral(" Super-G "));
  press(7);
  EXPECT_EQ(list()->lines().first(), QStringLiteral(" 3    Super-G"));
  EXPECT_EQ(test.file(QStringLiteral("Rennen.rec")).mid(2 * 1137, 8), "Super-G ");
}

TEST_F(Form4Test, AClickIntoTheNameLocksElevenButtonsUntilItIsStored) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  button(3)->setFocus();
  QTest::keyClick(button(3), Qt::Key_Tab);
  EXPECT_TRUE(box(2)->hasFocus());
  EXPECT_TRUE(button(4)->isEnabled());
  QTest::mouseClick(box(2), Qt::LeftButton);
  for (const int n : Buttons)
    EXPECT_EQ(button(n)->isEnabled(), Unlocked.contains(n)) << n;
  press(2);
  EXPECT_FALSE(button(4)->isEnabled());
  press(7);
  for (const int n : Buttons)
    EXPECT_TRUE(button(n)->isEnabled()) << n;
}

TEST_F(Form4Test, ButtonsOpenTheirScreensIfTheRaceHasAName) {
  EXPECT_EQ(openedByAll(), Screens);
  box(2)->setText(QStringLiteral("  "));
  EXPECT_EQ(openedByAll(), Screens.sliced(10));
}

TEST_F(Form4Test, ListsNeedAPrinter) {
  FakePrinters none{{}};
  form = std::make_unique<Form4>(desk, test.store, *none.printers);
  form->waehlen(2);
  EXPECT_FALSE(openedByAll().contains(QStringLiteral("Form8")));
}

} // namespace
