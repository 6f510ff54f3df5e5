#include "platform/CodePage.h"

#include "support/Print.h"

#include <gtest/gtest.h>

TEST(CodePage, AllByteValuesSurvive) {
  QByteArray all;
  for (int value = 0; value < 256; ++value) {
    all.append(char(value));
    const QByteArray one(1, char(value));
    EXPECT_EQ(toCodePage(fromCodePage(one)), one) << value;
  }
  EXPECT_EQ(toCodePage(fromCodePage(all)), all);
}

TEST(CodePage, ForeignCharactersBecomeQuestionMarks) {
  const struct {
    const char16_t *text;
    QByteArray bytes;
  } cases[] = {{u"u\u0308 \u0141uk \U0001F600 \u20ac", "\xfc ?uk ? \x80"},
               {u"\u001a\u0141", "\x1a?"},
               {u"a\u200bb\u0141", "a?b?"}};
  for (const auto &c : cases)
    EXPECT_EQ(toCodePage(QString::fromUtf16(c.text)), c.bytes);
  EXPECT_EQ(toField(QStringLiteral("Öd"), 4), "\xd6"
                                              "d  ");
  EXPECT_EQ(toField(QStringLiteral("lang"), 2), "la");
}
