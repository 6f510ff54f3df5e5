#include "printing/TeamList.h"

#include "support/TeamRace.h"

namespace {

class TeamListTest : public testing::Test {
protected:
  /// Prints what the evaluation gives, as the screen does.
  QStringList print(const Wertung &wertung) {
    wertungVorbereiten(store);
    const TeamListe liste{wertung, teamWertung(store, wertung)};
    Mannschaftsliste(store, druck, liste, [&](int line) {
      return mitgliederZeilen(store, wertung, einheitAmEnde(liste.einheiten[line]), MitgliederOrdnung::NachZeit);
    });
    return asText(printed);
  }

  TestStore test;
  Store &store = test.store;
  TeamRace race{test};
  Recording printed;
  Druckschicht druck{[this](const Recording &recording) { printed = recording; }};
};

QStringList of(std::initializer_list<const char *> lines) {
  QStringList list;
  for (const char *line : lines)
    list << QString::fromUtf8(line);
  return list;
}

} // namespace

TEST_F(TeamListTest, teamsWithTheirMembers) {
  EXPECT_EQ(print({Einheit::Mannschaft, WertungsArt::ZeitsummeDerBesten, WertungsFilter::Gemischt, 3}),
            of({"page",
                "text 22.00 12.00 Arial 24 bold italic |Vereinslauf|",
                "text 22.00 22.00 Arial 18 italic |Mannschaftswertung|",
                "text 22.00 30.00 Arial 12 italic |Auswertung nach: Zeitsumme der besten3|",
                "text 175.00 12.00 Arial 8 italic |Seite -1|",
                "text 175.00 32.00 Arial 7 italic |15.01.2026|",
                "line 20.00 10.00 190.00 10.00 width 5 000000",
                "line 190.00 10.00 190.00 37.00 width 5 000000",
                "line 190.00 37.00 20.00 37.00 width 5 000000",
                "line 20.00 37.00 20.00 10.00 width 5 000000",
                "text 174.00 22.00 Arial 7 italic |www.vext.example|",
                "text 20.00 43.00 Arial 10 bold |Rang|",
                "text 38.00 43.00 Arial 10 bold |Mannschaft|",
                "text 60.00 43.00 Arial 10 bold |Läufer|",
                "text 108.00 43.00 Arial 10 bold |Zeit|",
                "fill 20.00 50.50 190.00 55.50 D0D0D0",
                "text 20.00 51.00 Arial 10 bold | 1 |",
                "text 38.00 51.00 Arial 10 bold |Die Schnellen|",
                "text 100.00 51.00 Arial 10 bold |Zeitsumme:   1:22,00|",
                "text 60.00 56.85 Arial 8 bold |CERNY Ida|",
                "text 100.00 56.85 Arial 8 bold |         40,00|",
                "text 60.00 61.35 Arial 8 bold |DORN Uwe|",
                "text 100.00 61.35 Arial 8 bold |         42,00|",
                "fill 20.00 69.85 190.00 74.85 D0D0D0",
                "text 20.00 70.35 Arial 10 bold | 2 |",
                "text 38.00 70.35 Arial 10 bold |Älter|",
                "text 100.00 70.35 Arial 10 bold |Zeitsumme:   2:00,00|",
                "text 60.00 76.20 Arial 8 bold |ADAM Ada|",
                "text 100.00 76.20 Arial 8 bold |         40,00|",
                "text 60.00 80.70 Arial 8 bold |BERG Bo|",
                "text 100.00 80.70 Arial 8 bold |      1:20,00|",
                "fill 20.00 89.20 190.00 94.20 D0D0D0",
                "text 20.00 89.70 Arial 10 bold | 3 |",
                "text 38.00 89.70 Arial 10 bold |niemand|",
                "text 100.00 89.70 Arial 10 bold |Zeitsumme:          ,00|"}));
}

TEST_F(TeamListTest, clubsOfARaceWithTwoRuns) {
  store.Rennen.ZweiDurchgaenge = 1;
  store.Rennen.RennenKurz = QStringLiteral("Kurz");
  store.Teilnehmer[3].Zeit2 = 39;
  const QStringList lines = print({});
  EXPECT_EQ(lines[1], QStringLiteral("text 22.00 12.00 Arial 24 bold italic |Kurz|"));
  EXPECT_EQ(lines.mid(15),
            of({"text 144.00 43.00 Arial 10 bold |1.DG|", "text 181.00 43.00 Arial 10 bold |2.DG|",
                "fill 20.00 50.50 190.00 55.50 D0D0D0", "text 20.00 51.00 Arial 10 bold | 1 |",
                "text 38.00 51.00 Arial 10 bold |TV Berg     TV Berg|",
                "text 100.00 51.00 Arial 10 bold |Bestzeit:   1:19,00|", "text 60.00 56.85 Arial 8 |CERNY Ida|",
                "text 100.00 56.85 Arial 8 |      1:19,00|", "text 138.00 56.85 Arial 8 |         40,00|",
                "text 175.00 56.85 Arial 8 |         39,00|"}));
}

TEST_F(TeamListTest, pagesBreakByTheLastPrintedRow) {
  const QString unit = QStringLiteral("     40,00 Die Schnellen      3"), member = QStringLiteral("CERNY Ida        3");
  const TeamListe one{{Einheit::Mannschaft}, {unit}}, many{{Einheit::Mannschaft}, QStringList(20, unit)};
  Mannschaftsliste(store, druck, one, [&](int) { return QStringList(42, member); });
  ASSERT_EQ(printed.pages.size(), 2);
  EXPECT_EQ(asText(printed).last().left(18), QStringLiteral("text 100.00 46.50 "));
  EXPECT_TRUE(asText(printed).contains(QStringLiteral("text 60.00 236.85 Arial 8 |CERNY Ida|")));
  Mannschaftsliste(store, druck, many, [](int) { return QStringList(); });
  ASSERT_EQ(printed.pages.size(), 2);
  EXPECT_TRUE(asText(printed).contains(QStringLiteral("text 20.00 46.50 Arial 10 bold | 20 |")));
  Mannschaftsliste(store, druck, {{Einheit::Gruppe}, {}}, [](int) { return QStringList(); });
  EXPECT_EQ(printed.pages.size(), 1);
}
