#include "printing/PrintHelpers.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace {

class DruckschichtTest : public testing::Test {
protected:
  QList<QStringList> documents;
  Druckschicht druck{[this](const Recording &recording) { documents << asText(recording); }};
};

} // namespace

TEST_F(DruckschichtTest, PrintMovesThePositionAndShapesDoNot) {
  druck.CurrentX = 133;
  druck.CurrentY = 40;
  druck.FontSize = 8;
  druck.Print({QStringLiteral("ok"), QStringLiteral("dis")}, Druckschicht::End::Continued);
  const float behind = druck.CurrentX;
  EXPECT_NEAR(behind, 139.395 + double(druck.TextWidth(QStringLiteral("dis"))), 0.01);
  druck.Box(1, 2, 3, 4);
  druck.FilledBox(1, 2, 3, 4, 0xD0D0D0);
  EXPECT_EQ(druck.CurrentX, behind);
  druck.Print(7);
  EXPECT_EQ(druck.CurrentX, 0);
  EXPECT_NEAR(druck.CurrentY, 43.245, 0.001);
}

TEST_F(DruckschichtTest, FontsStayOverPagesAndDocuments) {
  const QStringList page{QStringLiteral("page"), QStringLiteral("text 0.00 0.00 Times 6.5 bold italic |a|")};
  druck.FontName = QStringLiteral("Times");
  druck.FontSize = 6.5;
  druck.FontBold = druck.FontItalic = true;
  druck.Print(QStringLiteral("a"));
  druck.NewPage();
  druck.Print(QStringLiteral("a"));
  druck.EndDoc();
  druck.EndDoc(); // nothing printed is no document
  druck.Print(QStringLiteral("a"));
  druck.EndDoc();
  EXPECT_EQ(documents, QList<QStringList>({page + page, page}));
}

TEST_F(DruckschichtTest, ATitleOfAnyLengthStopsAtOnePoint) {
  TitelAnpassen(druck, QString(2000, QLatin1Char('M')), 98);
  EXPECT_EQ(druck.FontSize, 1);
}
