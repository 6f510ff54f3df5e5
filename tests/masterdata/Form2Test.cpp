#include "masterdata/Form2.h"

#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/TestStore.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

class Form2Test : public testing::Test {
protected:
  void open() {
    form = std::make_unique<Form2>(desk, test.store);
    desk.show(*form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  QLineEdit *text(int n) { return form->findChild<QLineEdit *>(QStringLiteral("Text%1").arg(n)); }
  LineList *list() { return form->findChild<LineList *>(QStringLiteral("List1")); }
  void press(int n) {
    QTest::mouseClick(form->findChild<QPushButton *>(QStringLiteral("Command%1").arg(n)), Qt::LeftButton);
  }
  void type(int n, const char *what) {
    QTest::mouseClick(text(n), Qt::LeftButton);
    text(n)->clear();
    QTest::keyClicks(text(n), QString::fromUtf8(what));
  }
  const VereinSatz &record(int n) {
    test.store.VereinIdx = n;
    VereinLesen(test.store);
    return test.store.Verein;
  }

  TestStore test;
  Desk desk{test.store.Fenster, [] {}};
  std::unique_ptr<Form2> form;
};

} // namespace

TEST_F(Form2Test, FreshRegisterTakesItsFirstClubAndThenTheNext) {
  open();
  EXPECT_EQ(text(1)->text(), QStringLiteral("1"));
  press(3);
  EXPECT_EQ(text(1)->text(), QStringLiteral("1"));
  type(2, " SK Übelbach ");
  press(3);
  EXPECT_EQ(text(1)->text(), QStringLiteral("2"));
  EXPECT_EQ(record(1).VereinName.trimmed(), QStringLiteral("SK Übelbach"));
  press(2);
  EXPECT_EQ(text(2)->text(), QStringLiteral("SK Übelbach"));
  EXPECT_EQ(test.beeps, 0);
  press(2);
  EXPECT_EQ(test.beeps, 1);
}

TEST_F(Form2Test, EachFieldGoesToItsPlaceAndTheTelephoneTakesTheContact) {
  test.addClub(QStringLiteral("A"));
  open();
  for (int n = 2; n <= 11; ++n)
    type(n, qPrintable(QStringLiteral("t%1").arg(n)));
  form->close();
  VereinOeffnen(test.store);
  const auto &club = record(1);
  const QStringList stored{club.VereinName, club.VereinKurz, club.VereinOrt, club.VereinOesvNr, club.Ansprechpartner,
                           club.Adresse,    club.Telefon,    club.Handy,     club.Homepage,     club.EMail};
  const QStringList expected{QStringLiteral("t2"),  QStringLiteral("t3"), QStringLiteral("t4"), QStringLiteral("t5"),
                             QStringLiteral("t6"),  QStringLiteral("t7"), QStringLiteral("t6"), QStringLiteral("t9"),
                             QStringLiteral("t10"), QStringLiteral("t11")};
  for (int i = 0; i < expected.size(); ++i)
    EXPECT_EQ(stored[i].trimmed(), expected[i]) << i;
}

TEST_F(Form2Test, IndexCountsOnlyAfterEnter) {
  for (const char *name : {"A", "B", "C"})
    test.addClub(QLatin1String(name));
  open();
  type(1, "1");
  type(4, "Linz");
  QTest::keyClick(text(4), Qt::Key_Tab);
  EXPECT_EQ(record(3).VereinOrt.trimmed(), QStringLiteral("Linz"));
  type(1, "9999");
  QTest::keyClick(text(1), Qt::Key_Return);
  EXPECT_EQ(text(1)->text(), QStringLiteral("3"));
  type(1, "1");
  QTest::keyClick(text(1), Qt::Key_Return);
  EXPECT_EQ(text(2)->text(), QStringLiteral("A"));
}

TEST_F(Form2Test, ClickAfterARenameTakesTheLineThatWasUnderThePointer) {
  for (int n = 0; n < 60; ++n)
    test.addClub(QStringLiteral("Verein %1").arg(n, 2, 10, QLatin1Char('0')));
  open();
  const auto click = [this](int line) {
    const auto index = list()->model()->index(line, 0);
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualRect(index).center());
  };
  list()->scrollTo(list()->model()->index(20, 0), LineList::PositionAtTop);
  click(22);
  type(2, "ZZZ");
  click(25);
  EXPECT_EQ(text(2)->text(), QStringLiteral("Verein 25"));
  EXPECT_TRUE(list()->lines().last().startsWith(QStringLiteral("ZZZ")));
  EXPECT_EQ(list()->chosenLine(), 24);
}
