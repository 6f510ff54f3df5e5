#include "timing/Form18.h"

#include "support/ScreenTest.h"

#include <QSignalSpy>

namespace {

struct Form18Test : ScreenTest<Form18> {
  /// Opens the screen, types both readings, each with Enter, and presses Enter once more; gives the difference.
  QString calculate(const char *start, const char *finish) {
    show(std::make_unique<Form18>(desk));
    QObject::connect(form.get(), &Form18::differenceTaken, [this](const QString &time) { taken << time; });
    keys(start);
    key(Qt::Key_Return);
    keys(finish);
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    return text("Text2");
  }

  QStringList taken;
};

TEST_F(Form18Test, CarriesTheDifferenceOverUnlessItIsBelowASecond) {
  const std::tuple<const char *, const char *, const char *, bool> cases[] = {
      {"100", "163,45", "63,45", true}, {"163.45", " 100 ", "63,45", true},
      {"50", "50", "0", false},         {"", "0.75", "0,75", false},
      {"-1", "1", "2", true},           {"1.5.2", "3", "", false}};
  for (const auto &[start, finish, difference, over] : cases) {
    EXPECT_EQ(calculate(start, finish), difference);
    EXPECT_EQ(form->isVisible(), !over) << start;
  }
  EXPECT_EQ(taken, (QStringList{"63,45", "63,45", "2"}));
  EXPECT_EQ(text("Text1"), "1,5,2");
  EXPECT_TRUE(focused("Text6"));
}

} // namespace
