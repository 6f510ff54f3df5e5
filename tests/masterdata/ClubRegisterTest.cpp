#include "masterdata/ClubRegister.h"

#include "support/TestStore.h"

TEST(ClubRegister, GoingBeyondTheEnds) {
  TestStore test;
  for (const char *name : {"A", "B", "C"})
    test.addClub(QLatin1String(name));
  const auto number = [&](bool moved) { return moved ? test.store.VereinIdx : 0; };
  EXPECT_EQ(number(goToClubBefore(test.store, 500)), 3);
  EXPECT_EQ(number(goToClubBehind(test.store, -5, QStringLiteral("A"))), 1);
  EXPECT_EQ(number(goToClubBehind(test.store, 500, QString())), 0);
  EXPECT_EQ(test.beeps, 0);
  EXPECT_EQ(number(goToClubBefore(test.store, 1)), 0);
  EXPECT_EQ(test.beeps, 1);
  EXPECT_EQ(test.store.VereinAnzahl, 3);
  EXPECT_EQ(number(goToClubBehind(test.store, 500, QStringLiteral("C"))), 4);
  EXPECT_EQ(test.file(QStringLiteral("Verein.rec")).size(), 4 * VereinLaenge);
}
