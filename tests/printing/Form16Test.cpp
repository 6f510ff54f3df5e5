#include "printing/Form16.h"

#include "platform/Dates.h"
#include "support/ScreenTest.h"

using Form16Test = ScreenTest<Form16>;

TEST_F(Form16Test, EachBoxIsAFieldOfTheRaceRecord) {
  test.addRace("Riesentorlauf");
  open();
  EXPECT_EQ(label("Label1"), "Riesentorlauf");
  for (int n = 1; n <= 19; ++n)
    type(qPrintable(QString("Text%1").arg(n)), n == 3 ? "10.1.26" : qPrintable(QString(" w%1 ").arg(n)));
  type("Text3", "31.2.26");
  press("Command1");
  EXPECT_EQ(test.beeps, 1);
  RennenLeeren(store);
  store.RennenIdx = 1;
  RennenLesen(store);
  const RennenSatz &r = store.Rennen;
  EXPECT_EQ(fromDays(r.RennenDatum), QDate(2026, 1, 10));
  const QStringList stored{r.RennenOrt,   r.RennenKurz,   r.Veranstalter, r.DurchfVerein, r.Startzeit,
                           r.Kurssetzung, r.Rennleiter,   r.Tore,         r.Zeitnehmung,  r.Chefkampfrichter,
                           r.Zielrichter, r.Startrichter, r.Sponsor1,     r.Sponsor2,     r.Sponsor3,
                           r.Sponsor4,    r.Sponsor5,     r.Sponsor6};
  EXPECT_EQ(stored.join(u' '), "w1 w2 w4 w5 w6 w7 w8 w9 w10 w11 w12 w13 w14 w15 w16 w17 w18 w19");
}

TEST_F(Form16Test, TheNulsOfAGapRecordAreNotShownAndStayUntilATextIsChanged) {
  test.addRace("Riesentorlauf");
  test.writeFile("Rennen.rec", QByteArray(RennenLaenge, '\0'));
  RennenOeffnen(store);
  RennenLesen(store);
  open();
  EXPECT_EQ(text("Text1"), QString());
  type("Text4", "Union");
  key(Qt::Key_Tab);
  EXPECT_EQ(store.Rennen.Veranstalter, "Union");
  type("Text4", "");
  key(Qt::Key_Backspace);
  press("Command1");
  const QByteArray record = test.file("Rennen.rec");
  EXPECT_EQ(store.Rennen.RennenOrt, QString(80, QChar()));
  EXPECT_EQ(store.Rennen.Veranstalter, QString()) << "emptied, it does not come back as it was";
  EXPECT_EQ(record.count('\0'), record.size() - 80);
}
