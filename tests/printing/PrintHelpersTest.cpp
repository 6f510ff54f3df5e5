#include "printing/PrintHelpers.h"

#include <gtest/gtest.h>

TEST(PrintHelpersTest, ATitleOfAnyLengthStopsAtOnePoint) {
  Druckschicht druck([](const Recording &) {});
  fitTitle(druck, QString(2000, u'M'), 98);
  EXPECT_EQ(druck.FontSize, 1);
}
