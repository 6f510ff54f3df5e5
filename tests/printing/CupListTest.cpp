#include "printing/CupList.h"

#include "evaluation/Cup.h"
#include "evaluation/CupScoring.h"
#include "platform/print/PrintMetrics.h"
#include "support/CupRaces.h"

#include <map>

namespace {

class CupListTest : public testing::Test {
protected:
  CupListTest() { cupLaden(store); }

  /// The document as text; texts printed behind others have no position.
  QStringList print(const QStringList &keys, bool separate = false) {
    Cupliste(store, druck, {QStringLiteral("Talcup"), separate, keys});
    QStringList lines = asText(printed);
    for (QString &line : lines)
      if (line.contains(QStringLiteral("|, ")) || line.contains(QStringLiteral("|  - ")) ||
          line.endsWith(QStringLiteral("| |")))
        line = line.mid(line.indexOf(QLatin1Char('|')));
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
  qsizetype pages() const { return printed.pages.size(); }

  TestStore test;
  Store &store = test.store;
  CupRaces cup{test};
  Recording printed;
  Druckschicht druck{[this](const Recording &recording) { printed = recording; }};
};

} // namespace

TEST_F(CupListTest, threeRacesWorkedOutByHand) {
  const QStringList lines = print(cupAuswerten(store, cup.all, 1).schluessel);
  const QStringList expected = expectedPrint("Cupliste.txt");
  EXPECT_EQ(lines.mid(0, expected.size()), expected);
  for (const char *line : {"text 110.00 54.80 Arial 9 |       42,00|", "text 128.00 54.80 Arial 9 |X|",
                           "text 25.00 58.80 Arial 9 bold | 3 |", "text 175.00 58.80 Arial 9 |dis|",
                           "text 36.00 74.80 Arial 12 bold |Jugend|", "text 25.00 81.60 Arial 9 bold | 1 |"})
    EXPECT_TRUE(lines.contains(QLatin1String(line))) << line;
  EXPECT_EQ(druck.Orientation, Druckschicht::Portrait);
}

TEST_F(CupListTest, clubTakesTheRoomThatTheNameLeaves) {
  const int other = test.addClub(QStringLiteral("Union Skiklub Hinterberg an der Enge"));
  const auto clubOf = [&](const QString &name, int verein1, int verein2, int verein3) {
    store.Laeufer.Name = name;
    store.Laeufer.Verein1 = qint16(verein1);
    store.Laeufer.Verein2 = qint16(verein2);
    store.Laeufer.Verein3 = qint16(verein3);
    store.LaeuferIdx = 1;
    LaeuferSchreiben(store);
    return print(people(1, 0)).filter(QStringLiteral("|, ")).join(QString());
  };
  const QString name(30, QLatin1Char('N'));
  EXPECT_EQ(clubOf(name, other, 0, 0), QStringLiteral("|, Union Sk|"));
  EXPECT_EQ(clubOf(name, 0, other, cup.club), QStringLiteral("|, SC Alm|"));
  EXPECT_EQ(clubOf(name, 0, other, 0), QString());
  EXPECT_EQ(clubOf(name + QStringLiteral("NNNNNNNN"), other, 0, 0), QString());
}

TEST_F(CupListTest, pagesBreakByRowAndByClass) {
  print(people(36, 0));
  EXPECT_EQ(pages(), 1);
  QStringList lines = print(people(37, 0));
  EXPECT_EQ(lines.filter(QStringLiteral("Fortsetzung")), QStringList{QStringLiteral("|  - Fortsetzung|")});
  EXPECT_EQ(lines.count(QStringLiteral("text 25.00 50.80 Arial 9 bold | 1 |")), 2) << "the tie goes on";
  lines = print(people(36, 1));
  EXPECT_TRUE(pages() == 2 && lines.filter(QStringLiteral("Fortsetzung")).isEmpty());
  print(people(27, 1));
  EXPECT_EQ(pages(), 1);
  print(people(28, 1));
  EXPECT_EQ(pages(), 2) << "a class needs room";
  print(people(7, 1), true);
  EXPECT_EQ(pages(), 1) << "the page is nearly empty";
  print(people(8, 1), true);
  EXPECT_EQ(pages(), 2);
  EXPECT_TRUE(print({}).contains(QStringLiteral("text 260.00 12.00 Arial 8 italic |Seite -1|")));
  EXPECT_EQ(pages(), 1);
}

TEST_F(CupListTest, cellsOfManyRoundsDoNotRunIntoEachOther) {
  const QStringList keys = people(1, 0);
  store.CupRunden = 10;
  for (int round = 1; round <= 10; ++round) {
    store.CupZeit(1, round) = 3725.5;
    store.CupPunkte(1, round) = 100;
    store.CupStatus(1, round) = 0;
    store.CupStreich(1, round) = round % 2;
  }
  print(keys);
  std::map<double, std::map<double, double>> ends; // by line and left edge
  for (const PrintOperation &operation : printed.pages[0])
    if (const auto *text = std::get_if<TextOperation>(&operation);
        text && text->y > 31 && text->text.trimmed() != QString()) {
      EXPECT_GE(text->font.size, 5) << text->text.toStdString();
      ends[text->y][text->x] = text->x + PrintMetrics::textWidth(text->font, text->text);
    }
  for (const auto &[y, cells] : ends)
    for (auto cell = cells.begin(); std::next(cell) != cells.end(); ++cell)
      EXPECT_LE(cell->second, std::next(cell)->first + 0.01) << y;
}
