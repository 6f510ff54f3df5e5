#include "core/ValueFormats.h"

#include "support/Print.h"

#include <gtest/gtest.h>

TEST(ValueFormats, TimesAsPrinted) {
  const std::pair<double, const char *> cases[] = {
      {3725.5, "1:02:05,50"}, {7.4, "7,40"},           {0.4, ",40"},           {0, ",00"},
      {63.4, "1:03,40"},      {59.996, "60,00"},       {119.996, "1:60,00"},   {63.4549999, "1:03,45"},
      {-5, "-1:59:55,00"},    {59.999999999, "60,00"}, {36000, "10:00:00,00"}, {63.455, "1:03,46"}};
  for (const auto &[seconds, text] : cases)
    EXPECT_EQ(ZeitText(seconds), QString::fromUtf8(text)) << seconds;
}

TEST(ValueFormats, ValuesInColumns) {
  EXPECT_EQ(WertText8(12.5), QStringLiteral("   12,50"));
  EXPECT_EQ(WertText10(12.5), QStringLiteral("     12,50"));
  EXPECT_EQ(WertText8(0.5), QStringLiteral("    0,50"));
  EXPECT_EQ(WertText8(0), QStringLiteral("    0,00"));
  EXPECT_EQ(WertText10(0), QStringLiteral("     0,00")); // one character short, since only six blanks stand in front
  EXPECT_EQ(WertText8(-0.5), QStringLiteral("    -,50"));
  EXPECT_EQ(WertText8(1234567.89), QStringLiteral("34567,89"));
}
