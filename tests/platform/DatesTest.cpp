#include "platform/Dates.h"

#include "support/Print.h"

#include <gtest/gtest.h>

#include <limits>

TEST(DatesTest, DaysCountFromTheEndOf1899) {
  EXPECT_EQ(toDays(QDate(1900, 1, 1)), 2);
  EXPECT_EQ(toDays(QDate(2005, 7, 20)), 38553);
  EXPECT_EQ(fromDays(38553.75), QDate(2005, 7, 20));
  EXPECT_EQ(yearOf(0), 1899);
  EXPECT_EQ(yearOf(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(yearOf(1e300), 0);
}

TEST(DatesTest, TypedDates) {
  const std::pair<QString, std::optional<QDate>> cases[] = {{"1.2.1983", QDate(1983, 2, 1)},
                                                            {"01.02.29", QDate(2029, 2, 1)},
                                                            {"1.2.30", QDate(1930, 2, 1)},
                                                            {"29.2.2025", {}},
                                                            {"1.2.983", {}},
                                                            {"1/2/1983", {}},
                                                            {"", {}},
                                                            {"2005", {}}};
  for (const auto &[text, date] : cases)
    EXPECT_EQ(typedDate(text), date) << text.toStdString();
  EXPECT_EQ(shortDate(QDate(2026, 3, 7)), "07.03.2026");
}
