#include "timing/Form18.h"

#include "platform/qt/Desk.h"
#include "support/TestStore.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

class Form18Test : public testing::Test {
protected:
  Form18Test() { desk.show(form); }

  QLineEdit *edit(const char *name) { return form.findChild<QLineEdit *>(QLatin1String(name)); }
  /// Types both readings, each with Enter, and presses Enter once more.
  void calculate(const char *start, const char *finish) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    edit("Text1")->setFocus();
    for (const auto &[box, text] : {std::pair("Text1", start), std::pair("Text6", finish)}) {
      edit(box)->clear();
      QTest::keyClicks(edit(box), QLatin1String(text));
      QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    }
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
  }

  TestStore test;
  Desk desk{test.store.Fenster, [] {}};
  Form18 form{desk};
  QSignalSpy taken{&form, &Form18::uebernommen};
};

TEST_F(Form18Test, carriesTheDifferenceOverAndCloses) {
  for (const auto &[start, finish] : {std::pair("100", "163,45"), std::pair("163.45", " 100 ")}) {
    desk.show(form);
    calculate(start, finish);
    EXPECT_EQ(edit("Text2")->text(), QStringLiteral("63,45"));
    EXPECT_FALSE(form.isVisible());
  }
  EXPECT_EQ(taken, (QList<QVariantList>{{QStringLiteral("63,45")}, {QStringLiteral("63,45")}}));
}

TEST_F(Form18Test, carriesNothingBelowASecondOver) {
  const std::tuple<const char *, const char *, const char *> cases[] = {
      {"50", "50", "0"}, {"", "0.75", "0,75"}, {"1.5.2", "3", "0,75"}};
  for (const auto &[start, finish, difference] : cases) {
    calculate(start, finish);
    EXPECT_EQ(edit("Text2")->text(), QLatin1String(difference));
  }
  EXPECT_EQ(edit("Text1")->text(), QStringLiteral("1,5,2"));
  EXPECT_TRUE(edit("Text6")->hasFocus());
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(taken.isEmpty());
}

} // namespace
