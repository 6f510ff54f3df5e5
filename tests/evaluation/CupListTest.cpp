#include "evaluation/CupList.h"

#include "evaluation/Cup.h"
#include "evaluation/CupScoring.h"
#include "platform/print/PrintMetrics.h"
#include "support/CupRaces.h"
#include "support/OtherMedia.h"

#include <QRegularExpression>

namespace {

struct CupListTest : testing::Test {
  CupListTest() { loadCup(store); }

  /// The document as text; texts printed behind others have no position.
  QStringList print(const QStringList &keys, bool separate = false) {
    Cupliste(store, druck, {"Talcup", separate, keys});
    static const QRegularExpression behind("^[^|]*(?=\\|(, |  - | \\|))");
    EXPECT_EQ(OtherMedia(printed).differences(), QStringList());
    QStringList lines = asText(printed);
    lines.replaceInStrings(behind, QString());
    return lines;
  }
  /// That many persons of the classes 0 and 8, all with the same total.
  QStringList people(int first, int second) {
    QStringList names;
    store.cup.CupRunden = 1;
    for (int person = 1; person <= first + second; ++person) {
      store.cup.CupLaeufer[person] = 1;
      store.cup.CupKlasse[person] = person <= first ? 0 : 8;
      names << QString("Name %1").arg(person, 3);
    }
    return cupKeys(store.cup, names);
  }

  TestStore test;
  Store &store = test.store;
  CupRaces cup{test};
  Recording printed;
  Druckschicht druck{[this](const Recording &recording) { printed = recording; }};
};

} // namespace

TEST_F(CupListTest, ThreeRacesWorkedOutByHand) {
  EXPECT_EQ(print(evaluateCup(store, cup.all, 1).keys), expectedPrint("Cupliste.txt"));
  EXPECT_EQ(druck.Orientation, Druckschicht::Portrait);
}

TEST_F(CupListTest, PagesBreakByRowAndByClass) {
  for (const auto &[first, second, separate, pages, continued] :
       {std::tuple(36, 0, false, 1, 0), std::tuple(37, 0, false, 2, 1), std::tuple(36, 1, false, 2, 0),
        std::tuple(27, 1, false, 1, 0), std::tuple(28, 1, false, 2, 0), std::tuple(7, 1, true, 1, 0),
        std::tuple(8, 1, true, 2, 0), std::tuple(0, 0, false, 1, 0)}) {
    const QStringList lines = print(people(first, second), separate);
    EXPECT_EQ(printed.pages.size(), pages) << first << '+' << second;
    EXPECT_EQ(lines.count("|  - Fortsetzung|"), continued);
    EXPECT_EQ(lines.filter("Arial 9 bold | 1 |").size(), first + second) << "a tie goes on";
  }
}

// With hours, of one round more than fit as told up to the most there can be.
TEST_F(CupListTest, ManyRoundsStayReadableAndInsideTheFrame) {
  const QStringList keys = people(30, 0);
  for (store.cup.CupRunden = 6; store.cup.CupRunden <= 10; ++store.cup.CupRunden) {
    for (int round = 1; round <= store.cup.CupRunden; ++round) {
      store.cup.CupZeit(1, round) = 36000 + round;
      store.cup.CupPunkte(1, round) = 100;
    }
    print(keys);
    double right = 0;
    for (const PrintOperation &operation : printed.pages[0])
      if (const auto *text = std::get_if<TextOperation>(&operation)) {
        EXPECT_GE(text->font.size, 7) << text->text.toStdString();
        const double end = text->x + PrintMetrics::textWidth(text->font, text->text);
        EXPECT_LT(end, 275);
        if (text->text.contains(u':')) {
          EXPECT_GT(text->x, right) << "a time runs into the one before";
          right = end;
        }
      }
    EXPECT_GT(right, 240) << store.cup.CupRunden;
    EXPECT_EQ(printed.pages.size(), 2);
  }
}
