#include "core/ValueFormats.h"

#include "support/Print.h"

#include <gtest/gtest.h>

TEST(ValueFormatsTest, TimesAsPrinted) {
  const std::pair<double, const char *> cases[] = {
      {3725.5, "1:02:05,50"}, {7.4, "7,40"},           {0.4, ",40"},           {0, ",00"},
      {63.4, "1:03,40"},      {59.996, "60,00"},       {119.996, "1:60,00"},   {63.4549999, "1:03,45"},
      {-5, "-1:59:55,00"},    {59.999999999, "60,00"}, {36000, "10:00:00,00"}, {63.455, "1:03,46"}};
  for (const auto &[seconds, text] : cases)
    EXPECT_EQ(ZeitText(seconds), text) << seconds;
}

TEST(ValueFormatsTest, PartsOfATimeAsTyped) {
  const std::tuple<const char *, const char *, const char *, double> times[] = {
      {"1", "2", "3,5", 3723.5}, {"0", "-1", " 90 ", 30}, {"1,5", "0", "0", 5400}};
  for (const auto &[h, m, s, seconds] : times)
    EXPECT_EQ(joinedTime(h, m, s), seconds) << s;
  EXPECT_FALSE(joinedTime("0", {}, "5"));
  EXPECT_FALSE(joinedTime("0", "0", "5.5"));
  for (const auto &[typed, tidy] : {std::pair(" 3.5 ", "3,5"), {"  ", "0"}, {" 7 ", " 7 "}, {"1.5.2", "1,5.2"}})
    EXPECT_EQ(secondsEntry(typed), tidy);
}

TEST(ValueFormatsTest, ValuesInColumns) {
  EXPECT_EQ(WertText8(12.5), "   12,50");
  EXPECT_EQ(WertText10(12.5), "     12,50");
  EXPECT_EQ(WertText8(0.5), "    0,50");
  EXPECT_EQ(WertText8(0), "    0,00");
  EXPECT_EQ(WertText10(0), "     0,00"); // one character short, since only six blanks stand in front
  EXPECT_EQ(WertText8(-0.5), "    -,50");
  EXPECT_EQ(WertText8(1234567.89), "34567,89");
}
