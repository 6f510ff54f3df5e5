#include "masterdata/Form2.h"

#include "support/ScreenTest.h"

using Form2Test = ScreenTest<Form2>;

TEST_F(Form2Test, FreshRegisterTakesItsFirstClubAndThenTheNext) {
  open();
  press("Command3");
  EXPECT_EQ(text("Text1"), QStringLiteral("1"));
  type("Text2", " SK A ");
  press("Command3");
  EXPECT_EQ(text("Text1"), QStringLiteral("2"));
  press("Command2");
  EXPECT_EQ(text("Text2"), QStringLiteral("SK A"));
  EXPECT_EQ(test.beeps, 0);
  press("Command2");
  EXPECT_EQ(test.beeps, 1);
}

TEST_F(Form2Test, EachFieldGoesToItsPlaceAndTheTelephoneTakesTheContact) {
  open();
  for (int n = 2; n <= 11; ++n)
    type(qPrintable(QStringLiteral("Text%1").arg(n)), qPrintable(QStringLiteral("t%1").arg(n)));
  form->close();
  VereinOeffnen(store);
  VereinLesen(store);
  const auto &club = store.Verein;
  QString stored;
  for (const auto &field : {club.VereinName, club.VereinKurz, club.VereinOrt, club.VereinOesvNr, club.Ansprechpartner,
                            club.Adresse, club.Telefon, club.Handy, club.Homepage, club.EMail})
    stored += field.trimmed() + QLatin1Char(' ');
  EXPECT_EQ(stored, QStringLiteral("t2 t3 t4 t5 t6 t7 t6 t9 t10 t11 "));
}

TEST_F(Form2Test, IndexCountsOnlyAfterEnter) {
  for (const char *name : {"A", "B", "C"})
    test.addClub(QLatin1String(name));
  open();
  type("Text1", "1");
  type("Text4", "Linz");
  type("Text1", "9999");
  key(Qt::Key_Return);
  EXPECT_EQ(text("Text1") + text("Text4"), QStringLiteral("3Linz"));
}

TEST_F(Form2Test, ClickAfterARenameTakesTheLineThatWasUnderThePointer) {
  for (int n = 0; n < 60; ++n)
    test.addClub(QStringLiteral("Verein %1").arg(n, 2, 10, QLatin1Char('0')));
  open();
  auto *list = find<LineList>("List1");
  list->scrollTo(list->model()->index(20, 0), LineList::PositionAtTop);
  clickLine("List1", 22);
  type("Text2", "ZZZ");
  clickLine("List1", 25);
  EXPECT_EQ(text("Text2"), QStringLiteral("Verein 25"));
  EXPECT_EQ(list->chosenLine(), 24);
  EXPECT_TRUE(lines("List1").last().startsWith(QStringLiteral("ZZZ")));
}
