#include "platform/Numbers.h"

#include "support/Print.h"

#include <gtest/gtest.h>

#include <limits>

TEST(NumbersTest, LeadingNumberStopsAtWhatDoesNotFit) {
  const std::pair<QString, double> cases[] = {{"12,5", 12}, {"12.5", 12.5}, {".5", 0.5}, {"-2.5", -2.5}, {"-----", 0},
                                              {"7abc", 7},  {"", 0},        {"  +3", 3}, {"1e3", 1},     {"1.2.3", 1.2},
                                              {"0x10", 0},  {"5.", 5},      {"\t7", 0},  {"1 2", 1}};
  for (const auto &[text, value] : cases)
    EXPECT_EQ(leadingNumber(text), value) << text.toStdString();
}

TEST(NumbersTest, WholeNumberRoundsHalvesToEven) {
  EXPECT_EQ(wholeNumber(u"12.5"), 12);
  EXPECT_EQ(wholeNumber(u"13.5"), 14);
  EXPECT_EQ(wholeNumber(u"13,5"), 13);
  EXPECT_EQ(wholeNumber(u"99999999999999999999"), 1'000'000'000'000'000);
  for (const auto &[line, number] : {std::pair(u"0007  MAIER Anna           12", 12),
                                     {u"7 A 1000", 1000},
                                     {u"A    0007000123", 123},
                                     {u"--- U8 ---", 0},
                                     {u"", 0}})
    EXPECT_EQ(numberAtEnd(line), number);
}

TEST(NumbersTest, RegionalNumberTakesAllOrNothing) {
  const std::pair<QString, std::optional<double>> cases[] = {
      {"63,45", 63.45},   {" 5, ", 5.0}, {",5", 0.5},   {"-7", -7.0}, {"1E+15", 1e15}, {"1E-05", 1e-5},
      {"", std::nullopt}, {"1.5", {}},   {"1,2,3", {}}, {",", {}},    {"1e3", {}},     {"inf", {}},
      {"1.234,5", {}},    {"12,5a", {}}, {"1 234", {}}, {"5\n", {}},  {"1E+999", {}}};
  for (const auto &[text, value] : cases)
    EXPECT_EQ(regionalNumber(text), value) << text.toStdString();
}

TEST(NumbersTest, PlainTextOfDoublesAndSingles) {
  const std::pair<double, const char *> cases[] = {{63.45, "63,45"},           {0.1 + 0.2, "0,3"}, {-0.0, "0"},
                                                   {41.125 + 40.33, "81,455"}, {1e15, "1E+15"},    {0.00001, "1E-05"}};
  for (const auto &[value, text] : cases)
    EXPECT_EQ(plainText(value), text);
  EXPECT_EQ(plainText(12.3F), "12,3");
  EXPECT_EQ(plainText(12345678.F), "12345680");
  EXPECT_EQ(spacedText(7) + spacedText(-0.5), " 7-0,5");
}

// What is typed and taken is the same number when it is read again.
TEST(NumbersTest, WhatIsTakenIsReadAgain) {
  for (const char *text : {"63,45", "-0,5", "1E+15", "1E-05", "1,7976931348623E+308", "4,94065645841247E-324"}) {
    const double time = *regionalNumber(QString(text));
    EXPECT_TRUE(readsBack(time)) << text;
    EXPECT_DOUBLE_EQ(*regionalNumber(fileText(time)), time) << text;
  }
  constexpr double Endless = std::numeric_limits<double>::infinity();
  for (const double time : {std::numeric_limits<double>::max(), -Endless, Endless - Endless}) {
    EXPECT_FALSE(readsBack(time)) << time;
    EXPECT_EQ(fileText(time), "0");
  }
  for (const QString &text : QStringList{QString(400, u'9'), "1000000000000000", "-.00009"})
    EXPECT_FALSE(typedSingle(text) || typedNumber(text)) << text.toStdString();
  for (const char *text : {"999999000000000", "-12345678", "0", "abc"}) {
    const QString typed = text, single = plainText(*typedSingle(typed));
    EXPECT_EQ(leadingNumber(plainText(*typedNumber(typed))), leadingNumber(typed)) << text;
    EXPECT_EQ(plainText(float(leadingNumber(single))), single) << text;
  }
  EXPECT_EQ(typedSingle(u".0001"), 0.0001F);
}

TEST(NumbersTest, MasksRoundTheDecimalText) {
  const struct {
    const char *mask;
    QList<double> values;
    const char *texts;
  } cases[] = {{"0#", {7, 63.456, 2.5}, "07 63 03"},
               {"0##", {7, 0.999, 123456}, "007 001 123456"},
               {"0###", {63.456}, "0063"},
               {"0#.00", {7, 63.456, 63.455, 1.005, 0.285}, "07,00 63,46 63,46 01,01 00,29"},
               {"0####.#0", {7, 63.456, -7, 99999.995}, "00007,00 00063,46 -00007,00 100000,00"},
               {"#.#0", {7, 0, -0.001, 0.4, 0.004, 0.005, 9.999, 0.00049}, "7,00 ,00 ,00 ,40 ,00 ,01 10,00 ,00"}};
  for (const auto &[mask, values, expected] : cases) {
    QStringList texts;
    for (const double value : values)
      texts << masked(value, mask);
    EXPECT_EQ(texts.join(u' '), expected) << mask;
  }
  EXPECT_EQ(masked(1234.565F, "0#.00"), "1234,57"); // 1234,5649 by eight digits
}
