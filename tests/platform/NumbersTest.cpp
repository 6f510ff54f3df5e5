#include "platform/Numbers.h"

#include "support/Print.h"

#include <gtest/gtest.h>

TEST(Numbers, LeadingNumberStopsAtWhatDoesNotFit) {
  const struct {
    const char *text;
    double value;
  } cases[] = {{"12,5", 12}, {"12.5", 12.5}, {".5", 0.5},    {"-2.5", -2.5}, {"-----", 0}, {"7abc", 7}, {"", 0},
               {"  +3", 3},  {"1e3", 1},     {"1.2.3", 1.2}, {"0x10", 0},    {"5.", 5},    {"\t7", 0},  {"1 2", 1}};
  for (const auto &c : cases)
    EXPECT_EQ(leadingNumber(QString::fromUtf8(c.text)), c.value) << c.text;
}

TEST(Numbers, WholeNumberRoundsHalvesToEven) {
  EXPECT_EQ(wholeNumber(u"12.5"), 12);
  EXPECT_EQ(wholeNumber(u"13.5"), 14);
  EXPECT_EQ(wholeNumber(u"13,5"), 13);
  EXPECT_EQ(wholeNumber(u"99999999999999999999"), 1'000'000'000'000'000);
  EXPECT_EQ(rowAtEnd(u"0007  MAIER Anna           12", 5), 12);
}

TEST(Numbers, RegionalNumberTakesAllOrNothing) {
  const struct {
    const char *text;
    std::optional<double> value;
  } cases[] = {{"63,45", 63.45},   {" 5, ", 5.0}, {",5", 0.5},   {"-7", -7.0}, {"1E+15", 1e15}, {"1E-05", 1e-5},
               {"", std::nullopt}, {"1.5", {}},   {"1,2,3", {}}, {",", {}},    {"1e3", {}},     {"inf", {}},
               {"1.234,5", {}},    {"12,5a", {}}, {"1 234", {}}, {"5\n", {}},  {"1E+999", {}}};
  for (const auto &c : cases)
    EXPECT_EQ(regionalNumber(QString::fromUtf8(c.text)), c.value) << c.text;
}

TEST(Numbers, PlainTextOfDoublesAndSingles) {
  EXPECT_EQ(plainText(63.45), QStringLiteral("63,45"));
  EXPECT_EQ(plainText(0.1 + 0.2), QStringLiteral("0,3"));
  EXPECT_EQ(plainText(41.125 + 40.33), QStringLiteral("81,455"));
  EXPECT_EQ(plainText(-0.0), QStringLiteral("0"));
  EXPECT_EQ(plainText(1e15), QStringLiteral("1E+15"));
  EXPECT_EQ(plainText(0.00001), QStringLiteral("1E-05"));
  EXPECT_EQ(plainText(12.3F), QStringLiteral("12,3"));
  EXPECT_EQ(plainText(12345678.F), QStringLiteral("12345680"));
  EXPECT_EQ(spacedText(7), QStringLiteral(" 7"));
  EXPECT_EQ(spacedText(-0.5), QStringLiteral("-0,5"));
}

TEST(Numbers, MasksRoundTheDecimalText) {
  const struct {
    double value;
    const char *mask, *text;
  } cases[] = {{7, "0#", "07"},
               {63.456, "0#", "63"},
               {7, "0##", "007"},
               {63.456, "0###", "0063"},
               {7, "0#.00", "07,00"},
               {63.456, "0#.00", "63,46"},
               {7, "0####.#0", "00007,00"},
               {63.456, "0####.#0", "00063,46"},
               {7, "#.#0", "7,00"},
               {63.455, "0#.00", "63,46"},
               {1.005, "0#.00", "01,01"},
               {0.285, "0#.00", "00,29"},
               {-7, "0####.#0", "-00007,00"},
               {-0.001, "#.#0", ",00"},
               {0, "#.#0", ",00"},
               {0.4, "#.#0", ",40"},
               {0.004, "#.#0", ",00"},
               {0.005, "#.#0", ",01"},
               {99999.995, "0####.#0", "100000,00"},
               {9.999, "#.#0", "10,00"},
               {0.999, "0##", "001"},
               {2.5, "0#", "03"},
               {123456, "0##", "123456"},
               {0.00049, "#.#0", ",00"}};
  for (const auto &c : cases)
    EXPECT_EQ(masked(c.value, c.mask), QString::fromUtf8(c.text)) << c.value << ' ' << c.mask;
  EXPECT_EQ(masked(0.285F, "0#.00"), QStringLiteral("00,29"));
}

TEST(Numbers, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(trimmedBlanks(u"  a b\t "), QStringLiteral("a b\t"));
  EXPECT_EQ(trimmedBlanks(QString(3, QChar(0))).size(), 3);
  EXPECT_EQ(rightAligned(QStringLiteral("123456"), 4), QStringLiteral("3456"));
  EXPECT_EQ(padded(QStringLiteral("abc"), 5), QStringLiteral("abc  "));
}
