#include "raceprep/CupKopie.h"

#include "support/ScreenTest.h"

#include <QSignalSpy>

namespace {

class CupKopieTest : public ScreenTest<CupKopie>, public testing::WithParamInterface<bool> {};

} // namespace

TEST_P(CupKopieTest, CopiesUnderTheTypedNumberOrClosesInSilence) {
  const bool good = GetParam();
  test.addRace("Rennen");
  test.enter(3, 9);
  QString onRegister = "x";
  const auto raceText = [&] { return onRegister; };
  open(raceText);
  const QSignalSpy copied(form.get(), &CupKopie::copied);
  onRegister = "getippt";
  EXPECT_EQ(text("Text2"), "2");
  keys({good ? Qt::Key_4 : Qt::Key_0, Qt::Key_Return, Qt::Key_Space}); // the number replaces the marked proposal
  press("Command16");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(copied.count(), good);
  EXPECT_EQ(store.RennenAnzahl, good ? 4 : 1);
  EXPECT_EQ(test.file("Rennen.rec").contains("Kopie v. getippt"), good);
  EXPECT_EQ(test.hasFile("R 4.dat") && test.file("R 4.dat").contains(" 9 "), good);
}

INSTANTIATE_TEST_SUITE_P(NumberTyped, CupKopieTest, testing::Bool());
