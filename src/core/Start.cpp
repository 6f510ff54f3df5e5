#include "core/Start.h"

#include "core/StateFiles.h"

namespace {

struct Season {
  const char *name;
  int von, bis;
};

// Birth years of the season 2015.
// Quirk: gap and overlap of the built-in classes. Those before "Allg. Kl." and of "AK 1" and "AK 2" belong to the
// table.
constexpr Season SeasonClasses[] = {
    {"Bambini 1", 2009, 2015},   {"Bambini 2", 2008, 2008},   {"Kinder U8", 2007, 2007},   {"Kinder U9", 2006, 2006},
    {"Kinder U10", 2005, 2005},  {"Kinder U11", 2004, 2004},  {"Kinder U12", 2003, 2003},  {"Schüler U13", 2002, 2002},
    {"Schüler U14", 2001, 2001}, {"Schüler U15", 2000, 2000}, {"Schüler U16", 1999, 1999}, {"Jugend U18", 1997, 1998},
    {"Jugend U21", 1994, 1996},  {"Allg. Kl.", 1985, 1986},   {"AK 1", 1975, 1984},        {"AK 2", 1965, 1977},
    {"AK 3", 1955, 1964},        {"AK 4", 1945, 1954},        {"AK 5", 1935, 1944},        {"AK 6", 1900, 1934},
};
constexpr int SeasonYear = 2015;
constexpr int DaysToNextSeason = 180;

void fillBuiltInTables(Store &store) {
  store.JahrOffset = float(store.umgebung.today().addDays(DaysToNextSeason).year() - SeasonYear);
  int row = 1;
  for (const auto &season : SeasonClasses)
    store.StdKlasse[row++] = {QString::fromUtf8(season.name), qint16(season.von + int(store.JahrOffset)),
                              qint16(season.bis + int(store.JahrOffset))};
  store.StatusText[Status::Ok] = QStringLiteral("ok");
  store.StatusText[Status::NaS] = QStringLiteral("naS");
  store.StatusText[Status::NiZ] = QStringLiteral("niZ");
  store.StatusText[Status::Dis] = QStringLiteral("dis");
}

} // namespace

void startStore(Store &store) {
  FensterLesen(store);
  ZustandLesen(store);
  store.RennenIdx = store.RennenAnzahl;
  fillBuiltInTables(store);
}
