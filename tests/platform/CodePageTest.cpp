#include "platform/CodePage.h"

#include "support/Print.h"

#include <gtest/gtest.h>

TEST(CodePageTest, AllByteValuesSurvive) {
  for (int value = 0; value < 256; ++value) {
    const QByteArray one(1, char(value));
    EXPECT_EQ(toCodePage(fromCodePage(one)), one) << value;
  }
}

TEST(CodePageTest, ForeignCharactersBecomeQuestionMarks) {
  const std::pair<const char16_t *, QByteArray> cases[] = {{u"u\u0308 \u0141uk \U0001F600 \u20ac", "\xfc ?uk ? \x80"},
                                                           {u"\u001a\u0141", "\x1a?"},
                                                           {u"a\u200bb\u0141", "a?b?"}};
  for (const auto &[text, bytes] : cases)
    EXPECT_EQ(toCodePage(QString::fromUtf16(text)), bytes);
  EXPECT_EQ(toField("Öl", 4), "\xd6l  ");
  EXPECT_EQ(toField("lang", 2), "la");
}
