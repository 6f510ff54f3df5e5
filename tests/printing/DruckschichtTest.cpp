#include "printing/PrintHelpers.h"

#include <gtest/gtest.h>

TEST(DruckschichtTest, PrintMovesThePositionAndShapesDoNot) {
  Druckschicht druck([](const Recording &) {});
  druck.CurrentX = 133;
  druck.CurrentY = 40;
  druck.FontSize = 8;
  druck.Print({QStringLiteral("ok"), QStringLiteral("dis")}, Druckschicht::End::Continued);
  const float behind = druck.CurrentX;
  EXPECT_NEAR(behind, 139.395 + double(druck.TextWidth(QStringLiteral("dis"))), 0.01);
  druck.Box(1, 2, 3, 4);
  druck.FilledBox(1, 2, 3, 4, 0xD0D0D0);
  EXPECT_TRUE(druck.CurrentX == behind && druck.CurrentY == 40);
  druck.Print(7);
  EXPECT_EQ(druck.CurrentX, 0);
  EXPECT_NEAR(druck.CurrentY, 43.245, 0.001);
  druck.NewPage();
  EXPECT_TRUE(druck.CurrentY == 0 && druck.FontSize == 8);
  TitelAnpassen(druck, QString(2000, QLatin1Char('M')), 98);
  EXPECT_EQ(druck.FontSize, 1) << "a title of any length stops at one point";
}
