#include "timing/TimeDifference.h"

#include "platform/Numbers.h"
#include "support/Print.h"

#include <gtest/gtest.h>

TEST(TimeDifference, OfTwoReadings) {
  const std::tuple<const char *, const char *, const char *, bool> cases[] = {{"100", "163,45", "63,45", true},
                                                                              {"163,45", " 100 ", "63,45", true},
                                                                              {"0", "0,75", "0,75", false},
                                                                              {"-1", "1", "2", true}};
  for (const auto &[start, finish, expected, taken] : cases) {
    const QString difference = plainText(timeDifference(start, finish).value());
    EXPECT_EQ(difference, expected);
    EXPECT_EQ(isTimeToTake(difference), taken) << expected;
  }
  EXPECT_FALSE(timeDifference("1,5,2", "3"));
}
