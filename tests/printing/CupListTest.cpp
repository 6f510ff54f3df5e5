#include "printing/CupList.h"

#include "evaluation/Cup.h"
#include "evaluation/CupScoring.h"
#include "support/CupRaces.h"

#include <QRegularExpression>

namespace {

class CupListTest : public testing::Test {
protected:
  CupListTest() { cupLaden(store); }

  /// The document as text; texts printed behind others have no position.
  QStringList print(const QStringList &keys, bool separate = false) {
    Cupliste(store, druck, {QStringLiteral("Talcup"), separate, keys});
    static const QRegularExpression behind(QStringLiteral("^[^|]*(?=\\|(, |  - | \\|))"));
    QStringList lines = asText(printed);
    lines.replaceInStrings(behind, QString());
    return lines;
  }
  /// That many persons of the classes 0 and 8, all with the same total.
  QStringList people(int first, int second) {
    QStringList names;
    store.CupRunden = 1;
    for (int person = 1; person <= first + second; ++person) {
      store.CupLaeufer[person] = 1;
      store.CupKlasse[person] = person <= first ? 0 : 8;
      names << QStringLiteral("Name %1").arg(person, 3);
    }
    return cupSchluessel(store, names);
  }

  TestStore test;
  Store &store = test.store;
  CupRaces cup{test};
  Recording printed;
  Druckschicht druck{[this](const Recording &recording) { printed = recording; }};
};

} // namespace

TEST_F(CupListTest, threeRacesWorkedOutByHand) {
  EXPECT_EQ(print(cupAuswerten(store, cup.all, 1).schluessel), expectedPrint("Cupliste.txt"));
  EXPECT_EQ(druck.Orientation, Druckschicht::Portrait);
}

TEST_F(CupListTest, pagesBreakByRowAndByClass) {
  for (const auto &[first, second, separate, pages, continued] :
       {std::tuple(36, 0, false, 1, 0), std::tuple(37, 0, false, 2, 1), std::tuple(36, 1, false, 2, 0),
        std::tuple(27, 1, false, 1, 0), std::tuple(28, 1, false, 2, 0), std::tuple(7, 1, true, 1, 0),
        std::tuple(8, 1, true, 2, 0), std::tuple(0, 0, false, 1, 0)}) {
    const QStringList lines = print(people(first, second), separate);
    EXPECT_EQ(printed.pages.size(), pages) << first << '+' << second;
    EXPECT_EQ(lines.count(QStringLiteral("|  - Fortsetzung|")), continued);
    EXPECT_EQ(lines.filter(QStringLiteral("Arial 9 bold | 1 |")).size(), first + second) << "a tie goes on";
  }
}
