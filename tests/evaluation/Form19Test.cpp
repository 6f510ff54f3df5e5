#include "evaluation/Form19.h"

#include "support/Results.h"
#include "support/ScreenTest.h"

#include <QSignalSpy>

namespace {

class Form19Test : public ScreenTest<Form19> {
protected:
  Form19Test() {
    const int a = test.addAthlete(QStringLiteral("ADAM Ada"), 1990, 0);
    for (const double time : {30, 40, 50})
      addResults(test, QStringLiteral("Lauf"), {{a, time}});
  }
};

} // namespace

TEST_F(Form19Test, twoMarkedRacesMakeANewOne) {
  open();
  EXPECT_EQ(label("Label2"), QStringLiteral("4"));
  for (const int line : {0, 1, 1, 2}) {
    EXPECT_EQ(find("Command2")->isEnabled(), find<MarkList>("List1")->marked().size() > 1);
    clickLine("List1", line);
  }
  QSignalSpy begun(form.get(), &Form19::arbeitBegonnen), ended(form.get(), &Form19::arbeitBeendet);
  QSignalSpy made(form.get(), &Form19::erzeugt), closed(form.get(), &Screen::closed);
  press("Command2");
  EXPECT_EQ(begun.size() + ended.size() + made.size() + closed.size(), 4);
  EXPECT_TRUE(test.hasFile(QStringLiteral("Z 4.dat")) && test.hasFile(QStringLiteral("R 4.dat")));
  EXPECT_EQ(store.Teilnehmer[1].Zeit1, 80);
  EXPECT_EQ(store.AktRennen, 4);
}
