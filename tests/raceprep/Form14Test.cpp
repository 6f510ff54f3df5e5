#include "raceprep/Form14.h"

#include "support/ScreenTest.h"

namespace {

struct Form14Test : ScreenTest<Form14> {
  Form14Test() { test.addRace("Lauf"); }
  bool ticked(const char *name) { return find<QAbstractButton>(name)->isChecked(); }
  /// The record as the file has it.
  const RennenSatz &stored() {
    RennenLesen(store);
    return store.Rennen;
  }
};

} // namespace

TEST_F(Form14Test, SwitchesAndSecondsReachTheRecord) {
  open();
  for (const char *check : {"Check2", "Check3", "Check4", "Check8", "Check7", "Check4"})
    press(check);
  EXPECT_FALSE(ticked("Check1"));
  type("Text1", "-2.5s");
  type("Text2", "1.5");
  form->close(); // the focus is still in the field
  const auto &race = stored();
  EXPECT_EQ(race.WertGeschlecht + race.WertBoarder + race.ZweiDurchgaenge, 3);
  EXPECT_EQ(race.WertKlassen + race.WertGaeste, 0);
  EXPECT_EQ(race.ZuschlagGast, -2.5);
  EXPECT_EQ(race.ZuschlagMann, 1.5);
  EXPECT_EQ(text("Text1"), "-2,5");
  open();
  find("Text2")->setFocus(); // 1,5 read with a point
  press("Command1");
  EXPECT_EQ(stored().ZuschlagMann, 1);
  open();
  type("Text2", "-.00001"); // would be shown as -1E-05 and read as -1
  find("Text1")->setFocus();
  EXPECT_EQ(text("Text2"), "1");
  EXPECT_EQ(test.beeps, 1);
  store.AktRennen = store.RennenIdx = 0; // no record to write
  open();
  press("Command1");
  EXPECT_FALSE(form->isVisible());
}
