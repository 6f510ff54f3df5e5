#include "evaluation/TeamList.h"

#include "support/OtherMedia.h"
#include "support/TeamRace.h"

namespace {

struct TeamListTest : testing::Test {
  /// Prints what the evaluation gives, as the screen does.
  QStringList print(const Wertung &wertung) {
    prepareUnits(store);
    const TeamPrint print{wertung, evaluateUnits(store, wertung)};
    Mannschaftsliste(store, druck, print, [&](int line) {
      return memberLines(store, wertung, numberAtEnd(print.units[line]), MemberOrder::ByTime);
    });
    EXPECT_EQ(OtherMedia(printed).differences(), QStringList());
    return asText(printed);
  }

  TestStore test;
  Store &store = test.store;
  TeamRace race{test};
  Recording printed;
  Druckschicht druck{[this](const Recording &recording) { printed = recording; }};
};

} // namespace

TEST_F(TeamListTest, TeamsWithTheirMembers) {
  EXPECT_EQ(print({Einheit::Mannschaft, WertungsArt::ZeitsummeDerBesten, WertungsFilter::Gemischt, 3}),
            expectedPrint("Mannschaftsliste.txt"));
}

TEST_F(TeamListTest, PagesBreakByTheLastPrintedRow) {
  const QString unit = "     40,00 Die Schnellen      3", member = "CERNY Ida        3";
  Mannschaftsliste(store, druck, {{Einheit::Mannschaft}, {unit}}, [&](int) { return QStringList(42, member); });
  EXPECT_EQ(printed.pages.size(), 2);
  EXPECT_EQ(asText(printed).last().left(18), "text 100.00 46.50 ");
  Mannschaftsliste(store, druck, {{Einheit::Mannschaft}, QStringList(20, unit)}, [](int) { return QStringList(); });
  EXPECT_EQ(printed.pages.size(), 2);
  EXPECT_TRUE(asText(printed).contains("text 20.00 46.50 Arial 10 bold | 20 |"));
}
