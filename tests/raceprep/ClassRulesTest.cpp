#include "raceprep/ClassRules.h"

#include "support/StoreTest.h"

namespace {

using Rows = std::vector<std::tuple<std::string, int, int>>; // name, first and last year

const struct {
  const char *what;
  Rows before, after;
} NormalForms[] = {
    {"a first year moves the next class",
     {{"A", 2010, 2020}, {"B", 2003, 2009}, {"C", 1980, 2004}},
     {{"A", 2010, 2026}, {"B", 2003, 2009}, {"C", 1900, 2002}}},
    {"a last year below the first acts, then is overwritten",
     {{"A", 2010, 2020}, {"B", 1995, 1990}, {"C", 0, 1994}},
     {{"A", 2010, 2026}, {"B", 1990, 2009}, {"C", 1900, 1989}}},
    {"a class behind the last, first run", {{"A", 1900, 2026}, {"B", 0, 0}}, {{"A", 1900, 2026}, {"B", 0, 1899}}},
    {"second run", {{"A", 1900, 2026}, {"B", 0, 1899}}, {{"A", 1900, 2026}, {"B", 1899, 1899}}},
    {"empty row inside stays, behind is cleared",
     {{"A", 2010, 2020}, {"", 2005, 2005}, {"C", 1950, 1960}, {"", 1, 2}},
     {{"A", 2010, 2026}, {"", 2005, 2009}, {"C", 1900, 2004}, {"", 0, 0}}},
    {"years that a file may hold",
     {{"A", -2147483648, 1}, {"B", 5, 5}, {"C", 5, 5}},
     {{"A", -2147483648, 2026}, {"B", 5, -2147483648}, {"C", 5, 4}}},
    {"no class has no year", {{"", 2010, 2020}}, {{"", 0, 0}}},
};

using ClassRulesTest = StoreTest;

} // namespace

TEST_F(ClassRulesTest, NormalForm) {
  for (const auto &[what, before, after] : NormalForms) {
    store.KlasseName.fill({});
    for (int i = 0; const auto &[name, von, bis] : before) {
      store.KlasseName[++i] = QString::fromStdString(name);
      store.KlasseVon[i] = von;
      store.KlasseBis[i] = bis;
    }
    KlassenAktualisieren(store);
    Rows found;
    for (int i = 1; i <= int(after.size()); ++i)
      found.emplace_back(store.KlasseName[i].toStdString(), store.KlasseVon[i], store.KlasseBis[i]);
    EXPECT_EQ(found, after) << what;
  }
}
