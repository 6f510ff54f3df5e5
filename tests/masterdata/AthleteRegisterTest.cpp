#include "masterdata/AthleteRegister.h"

#include "platform/Dates.h"
#include "support/TestStore.h"

TEST(AthleteRegister, TypedBirthDates) {
  TestStore test;
  test.addAthlete(QStringLiteral("HUBER Anna"), 1990, 0);
  const double before = test.store.Laeufer.Geburtsdatum;
  const struct {
    const char *typed, *shown;
    QDate stored;
  } cases[] = {{"83", "01.01.1983", {1983, 1, 1}},
               {" 05 ", "01.01.2005", {2005, 1, 1}},
               {"12", "01.01.1912", {1912, 1, 1}},
               {"1.2.1983", "1.2.1983", {1983, 2, 1}},
               {"7.3.12", "7.3.12", {2012, 3, 7}},
               {"ab", "", {}},
               {"5", "", {}},
               {"31.2.1983", "", {}}};
  for (const auto &c : cases) {
    changeAthlete(test.store, 1, [&](LaeuferSatz &athlete) { athlete.Geburtsdatum = before; });
    EXPECT_EQ(storeBirthDate(test.store, 1, QString::fromLatin1(c.typed)), QString::fromLatin1(c.shown)) << c.typed;
    LaeuferLesen(test.store);
    EXPECT_EQ(test.store.Laeufer.Geburtsdatum, c.stored.isNull() ? before : toDays(c.stored)) << c.typed;
  }
}

TEST(AthleteRegister, NewRecordNeedsNameAndDateOfTheLast) {
  TestStore test;
  test.addAthlete(QStringLiteral("A"), 1990, 0);
  EXPECT_FALSE(goToAthleteBehind(test.store, 1, QStringLiteral("  "), QStringLiteral("01.07.1990")));
  EXPECT_FALSE(goToAthleteBehind(test.store, 1, QStringLiteral("A"), QStringLiteral("1.1.1900")));
  EXPECT_EQ(test.store.LaeuferAnzahl, 1);
  EXPECT_TRUE(goToAthleteBehind(test.store, 1, QStringLiteral("A"), QStringLiteral("01.01.1900")));
  EXPECT_EQ(test.store.LaeuferIdx, 2);
  EXPECT_EQ(test.store.Laeufer.Geschlecht, 2);
  EXPECT_EQ(test.file(QStringLiteral("Laeufer.rec")).size(), 2 * LaeuferLaenge);
}
