#include "raceprep/CupKopie.h"

#include "support/Operator.h"
#include "support/TestStore.h"

#include <QCheckBox>

TEST(CupKopieTest, CopiesUnderTheTypedNumberOrClosesInSilence) {
  for (const bool good : {true, false}) {
    TestStore test;
    Desk desk(test.store.Fenster, [] {});
    test.addRace(QStringLiteral("Rennen"));
    test.enter(3, 9);
    QString onRegister = QStringLiteral("x");
    CupKopie form(desk, test.store, [&] { return onRegister; });
    int copies = 0;
    QObject::connect(&form, &CupKopie::copied, [&] { ++copies; });
    const Operator person(desk, form);
    onRegister = QStringLiteral("getippt");
    EXPECT_EQ(person.text(2), "2");
    Operator::key(good ? Qt::Key_4 : Qt::Key_0); // replaces the marked proposal
    Operator::key(Qt::Key_Tab);
    Operator::key(Qt::Key_Space);
    person.press(16);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(copies, good);
    EXPECT_EQ(test.store.RennenAnzahl, good ? 4 : 1);
    EXPECT_EQ(test.file(QStringLiteral("Rennen.rec")).contains("Kopie v. getippt"), good);
    EXPECT_EQ(test.hasFile(QStringLiteral("R 4.dat")) && test.file(QStringLiteral("R 4.dat")).contains(" 9 "), good);
  }
}
