#include "raceprep/Form14.h"

#include "support/ScreenTest.h"

namespace {

class Form14Test : public ScreenTest<Form14> {
protected:
  Form14Test() { test.addRace(QStringLiteral("Lauf")); }
  bool ticked(const char *name) { return find<QAbstractButton>(name)->isChecked(); }
  /// The record as the file has it.
  const RennenSatz &stored() {
    RennenLesen(store);
    return store.Rennen;
  }
};

} // namespace

TEST_F(Form14Test, PairsExcludeEachOther) {
  struct Pair {
    const char *one, *zero;
    quint8 &field;
  };
  store.Rennen.WertZeit = 3;
  RennenSchreiben(store);
  open();
  EXPECT_EQ(find("Check1"), QApplication::focusWidget());
  EXPECT_FALSE(ticked("Check6") || ticked("Check5"));
  EXPECT_EQ(store.Rennen.WertZeit, 3);
  press("Check6");
  for (const auto &[one, zero, field] :
       {Pair{"Check1", "Check2", store.Rennen.WertKlassen}, Pair{"Check6", "Check5", store.Rennen.WertZeit}})
    for (const auto &[click, value] : {std::pair{one, 0}, {zero, 1}, {zero, 0}, {one, 1}}) {
      press(click);
      EXPECT_EQ(field, value);
      EXPECT_EQ(ticked(one), value == 1);
      EXPECT_EQ(ticked(zero), value == 0);
    }
}

TEST_F(Form14Test, SwitchesAndSecondsReachTheRecord) {
  open();
  for (const char *check : {"Check3", "Check4", "Check8", "Check7"})
    press(check);
  press("Check4");
  type("Text1", "-2.5s");
  type("Text2", "1.5");
  form->close(); // the focus is still in the field
  const auto &race = stored();
  EXPECT_EQ(race.WertGeschlecht + race.WertBoarder + race.ZweiDurchgaenge, 3);
  EXPECT_EQ(race.WertGaeste, 0);
  EXPECT_EQ(race.ZuschlagGast, -2.5);
  EXPECT_EQ(race.ZuschlagMann, 1.5);
  EXPECT_EQ(text("Text1"), QStringLiteral("-2,5"));
  open();
  press("Command1");
  EXPECT_EQ(stored().ZuschlagMann, 1.5);
  open();
  find("Text2")->setFocus();
  press("Command1");
  EXPECT_EQ(stored().ZuschlagMann, 1);
}

TEST_F(Form14Test, RaceZeroHasNoRecord) {
  store.AktRennen = store.RennenIdx = 0;
  const QByteArray before = test.file(QStringLiteral("Rennen.rec"));
  open();
  press("Check2");
  press("Command1");
  EXPECT_EQ(test.file(QStringLiteral("Rennen.rec")), before);
  EXPECT_EQ(store.Rennen.WertKlassen, 0);
}
