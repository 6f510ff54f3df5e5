#include "printing/PrintHelpers.h"

#include <gtest/gtest.h>

TEST(PrintHelpersTest, ATitleOfAnyLengthStopsAtOnePoint) {
  Druckschicht druck([](const Recording &) {});
  TitelAnpassen(druck, QString(2000, QLatin1Char('M')), 98);
  EXPECT_EQ(druck.FontSize, 1);
}
