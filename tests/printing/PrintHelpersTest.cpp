#include "printing/PrintHelpers.h"

#include "printing/Seitenkopf.h"
#include "support/TestStore.h"

#include <gtest/gtest.h>

namespace {

class PrintHelpersTest : public testing::Test {
protected:
  QStringList printed;
  Druckschicht druck{[this](const Recording &recording) { printed = asText(recording); }};

  QStringList text() {
    druck.EndDoc();
    return printed.mid(1);
  }
  static TextOperation textOf(const Recording &recording, int index) {
    return std::get<TextOperation>(recording.pages[0][index]);
  }
};

} // namespace

TEST_F(PrintHelpersTest, CentresOnItsPartOfThePage) {
  const struct {
    void (*print)(Druckschicht &, const QString &);
    double middle;
  } cases[] = {{MitteDrucken, 101}, {ViertelDrucken, 57.5}, {DreiviertelDrucken, 154.5}};
  const QString sample = QStringLiteral("Für die Rennleitung");
  for (const auto &[print, middle] : cases) {
    Recording recording;
    Druckschicht layer([&recording](const Recording &done) { recording = done; });
    layer.FontName = QStringLiteral("Times");
    layer.CurrentY = 40;
    print(layer, sample);
    EXPECT_FLOAT_EQ(layer.CurrentX, 0);
    EXPECT_GT(layer.CurrentY, 40);
    layer.EndDoc();
    EXPECT_NEAR(textOf(recording, 0).x + double(layer.TextWidth(sample)) / 2, middle, 0.001);
  }
}

TEST_F(PrintHelpersTest, RightEndedTextKeepsThePosition) {
  druck.CurrentX = 58;
  RechtsDrucken(druck, QStringLiteral("Ort:"));
  EXPECT_FLOAT_EQ(druck.CurrentX, 58);
  const double start = 58 - double(druck.TextWidth(QStringLiteral("Ort:")));
  EXPECT_EQ(text().value(0), QStringLiteral("text %1 0.00 Arial 10 |Ort:|").arg(start, 0, 'f', 2));
}

TEST_F(PrintHelpersTest, TimesFillTheirFieldInThePresentFont) {
  for (const double size : {6.5, 9.0, 18.0}) {
    druck.FontSize = size;
    for (const double seconds : {0.0, 0.4, 59.996, 3725.5}) {
      const QString time = ZeitDruckText(druck, seconds);
      EXPECT_GE(druck.TextWidth(time), 14);
      EXPECT_TRUE(!time.startsWith(QLatin1Char(' ')) || druck.TextWidth(time.sliced(1)) < 14) << size << ' ' << seconds;
    }
  }
  EXPECT_EQ(ZeitDruckText(druck, 3725.5), QStringLiteral("1:02:05,50"));
}

TEST_F(PrintHelpersTest, TitleShrinksByWholePointsAndStopsAtOne) {
  TitelAnpassen(druck, QStringLiteral("Vereinsmeisterschaft"), 98);
  EXPECT_EQ(druck.FontSize, 24);
  const QString longer(40, QLatin1Char('M'));
  TitelAnpassen(druck, longer, 98);
  EXPECT_LE(druck.TextWidth(longer), 98);
  ++druck.FontSize;
  EXPECT_GT(druck.TextWidth(longer), 98);
  TitelAnpassen(druck, QString(2000, QLatin1Char('M')), 98);
  EXPECT_EQ(druck.FontSize, 1);
}

TEST_F(PrintHelpersTest, HeadOfAListWithPictures) {
  TestStore test;
  test.store.Rennen.RennenName = QStringLiteral("Vereinsmeisterschaft im Riesentorlauf");
  test.store.Rennen.RennenKurz = QStringLiteral("VM");
  int seite = 2;
  Seitenkopf(test.store, druck, Listenkoepfe::ergebnislisteKombination(), {{6, QStringLiteral("Rang")}}, seite,
             QStringLiteral(" SK"));
  EXPECT_EQ(seite, 3);
  EXPECT_FALSE(druck.FontBold || druck.FontItalic);
  const QStringList lines = text();
  EXPECT_EQ(lines.first(4),
            (QStringList{QStringLiteral("text 22.00 12.00 Arial 24 bold italic |VM|"),
                         QStringLiteral("text 22.00 22.00 Arial 18 italic |Ergebnisliste Kombination SK|"),
                         QStringLiteral("text 175.00 12.00 Arial 9 italic |Seite -3|"),
                         QStringLiteral("text 175.00 25.00 Arial 7 italic |15.01.2026|")}));
  EXPECT_EQ(lines.value(4), QStringLiteral("line 20.00 10.00 190.00 10.00 width 5 000000"));
  EXPECT_EQ(lines.value(8), QStringLiteral("picture 191.00 11.00 5.50 18.00 kopf1.jpg"));
  EXPECT_EQ(lines.value(13), QStringLiteral("picture 4.00 10.00 15.50 20.00 kopf2.jpg"));
  EXPECT_EQ(lines.value(14), QStringLiteral("text 6.00 38.00 Arial 10 bold |Rang|"));
  EXPECT_EQ(lines.size(), 15);
}
