#include "masterdata/AthleteRegister.h"

#include "platform/Dates.h"
#include "support/StoreTest.h"

using AthleteRegisterTest = StoreTest;

TEST_F(AthleteRegisterTest, TypedBirthDates) {
  test.addAthlete("HUBER Anna", 1990, 0);
  const QDate before(1990, 7, 1);
  const std::tuple<const char *, const char *, QDate> cases[] = {{"83", "01.01.1983", {1983, 1, 1}},
                                                                 {" 05 ", "01.01.2005", {2005, 1, 1}},
                                                                 {"12", "01.01.1912", {1912, 1, 1}},
                                                                 {"7.3.12", "7.3.12", {2012, 3, 7}},
                                                                 {"ab", "", before},
                                                                 {"5", "", before},
                                                                 {"31.2.1983", "", before}};
  for (const auto &[typed, shown, stored] : cases) {
    changeAthlete(store, 1, [&](LaeuferSatz &athlete) { athlete.Geburtsdatum = toDays(before); });
    EXPECT_EQ(storeBirthDate(store, 1, typed), shown) << typed;
    EXPECT_EQ(LaeuferLesen(store, 1).Geburtsdatum, toDays(stored)) << typed;
  }
}

TEST_F(AthleteRegisterTest, NewRecordNeedsNameAndDateOfTheLast) {
  test.addAthlete("A", 1990, 0);
  EXPECT_FALSE(nextAthlete(store, 1, "  ", "01.07.1990"));
  EXPECT_FALSE(nextAthlete(store, 1, "A", "1.1.1900"));
  EXPECT_EQ(store.LaeuferAnzahl, 1);
  EXPECT_EQ(nextAthlete(store, 1, "A", "01.01.1900"), 2);
  EXPECT_EQ(LaeuferLesen(store, 2).Geschlecht, 2);
  EXPECT_EQ(test.file("Laeufer.rec").size(), 2 * LaeuferLaenge);
}
