#include "printing/Druckschicht.h"

#include "support/Print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class DruckschichtTest : public testing::Test {
protected:
  Recording printed;
  int documents = 0;
  Druckschicht druck{[this](const Recording &recording) {
    printed = recording;
    ++documents;
  }};

  QStringList text() {
    druck.EndDoc();
    return asText(printed);
  }
};

} // namespace

TEST_F(DruckschichtTest, LineEndGoesToTheLeftAndDownByTheLineHeightOfTheFont) {
  druck.CurrentX = 20;
  druck.CurrentY = 40;
  druck.FontSize = 8;
  druck.Print(QStringLiteral("Ä"));
  EXPECT_EQ(druck.CurrentX, 0);
  EXPECT_NEAR(druck.CurrentY, 43.245, 0.001);
  druck.FontSize = 10;
  druck.Print(7);
  EXPECT_NEAR(druck.CurrentY, 43.245 + 4.057, 0.001);
  EXPECT_EQ(text(), (QStringList{QStringLiteral("page"), QStringLiteral("text 20.00 40.00 Arial 8 |Ä|"),
                                 QStringLiteral("text 0.00 43.25 Arial 10 | 7 |")}));
}

TEST_F(DruckschichtTest, ContinuedStandsBehindTheTextAndItemsInPrintZones) {
  druck.FontSize = 8;
  druck.CurrentX = 133;
  druck.Print({QStringLiteral("ok"), QStringLiteral("dis")}, Druckschicht::End::Continued);
  const float behind = druck.CurrentX;
  EXPECT_EQ(druck.CurrentY, 0);
  druck.Print(QStringLiteral("x"));
  const QStringList lines = text();
  EXPECT_EQ(lines.value(2), QStringLiteral("text 139.40 0.00 Arial 8 |dis|"));
  EXPECT_NEAR(behind, 139.395 + double(druck.TextWidth(QStringLiteral("dis"))), 0.01);
  EXPECT_EQ(lines.value(3), QStringLiteral("text %1 0.00 Arial 8 |x|").arg(double(behind), 0, 'f', 2));
}

TEST_F(DruckschichtTest, FontsStayOverPagesAndDocuments) {
  druck.FontName = QStringLiteral("Times");
  druck.FontSize = 6.5;
  druck.FontBold = druck.FontItalic = true;
  druck.Print(QStringLiteral("a"));
  druck.NewPage();
  EXPECT_EQ(druck.CurrentY, 0);
  druck.Print(QStringLiteral("b"));
  EXPECT_EQ(text(), (QStringList{QStringLiteral("page"), QStringLiteral("text 0.00 0.00 Times 6.5 bold italic |a|"),
                                 QStringLiteral("page"), QStringLiteral("text 0.00 0.00 Times 6.5 bold italic |b|")}));
  druck.Print(QStringLiteral("c"));
  EXPECT_EQ(text().value(1), QStringLiteral("text 0.00 0.00 Times 6.5 bold italic |c|"));
}

TEST_F(DruckschichtTest, ShapesDoNotMoveThePosition) {
  druck.CurrentX = 5;
  druck.CurrentY = 6;
  druck.DrawWidth = 3;
  druck.Line(1, 2, 3, 4, 0xC0C0C0);
  druck.Box(1, 2, 3, 4, 0x505050);
  druck.FilledBox(1, 2, 3, 4.005, 0xD0D0D0);
  druck.PaintPicture(druck.LoadPicture(QStringLiteral(":/kopf1.jpg")), 191, 11, 5.5, 18);
  EXPECT_EQ(druck.CurrentX, 5);
  EXPECT_EQ(druck.CurrentY, 6);
  EXPECT_FALSE(druck.LoadPicture(QStringLiteral(":/kopf1.jpg")).image.isNull());
  EXPECT_EQ(text(), (QStringList{QStringLiteral("page"), QStringLiteral("line 1.00 2.00 3.00 4.00 width 3 C0C0C0"),
                                 QStringLiteral("box 1.00 2.00 3.00 4.00 width 3 505050"),
                                 QStringLiteral("fill 1.00 2.00 3.00 4.00 D0D0D0"),
                                 QStringLiteral("picture 191.00 11.00 5.50 18.00 kopf1.jpg")}));
}

TEST_F(DruckschichtTest, NothingPrintedIsNoDocument) {
  druck.EndDoc();
  EXPECT_EQ(documents, 0);
  druck.Print(QString());
  druck.EndDoc();
  druck.EndDoc();
  EXPECT_EQ(documents, 1);
}

TEST_F(DruckschichtTest, WidthsComeFromTheFontsAskedForOrTheirLike) {
  EXPECT_FLOAT_EQ(druck.ScaleWidth(), 202);
  druck.Orientation = Druckschicht::Landscape;
  EXPECT_FLOAT_EQ(druck.ScaleWidth(), 289);
  const QString sample = QStringLiteral("nnnnnnnnnn");
  const struct {
    const char *name;
    double width;
  } cases[] = {{"Arial", 19.62}, {"Times", 17.64}};
  for (const auto &[name, width] : cases) {
    druck.FontName = QString::fromLatin1(name);
    EXPECT_NEAR(druck.TextWidth(sample), width, 0.02) << name;
  }
}
