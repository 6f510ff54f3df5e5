#include "core/Form17.h"

#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/TestStore.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// A screen with a field, to see when it is left.
class Work : public Screen {
public:
  explicit Work(Desk &desk) : Screen(desk, QStringLiteral("Work"), 0) {
    (new QVBoxLayout(this))->addWidget(field);
    setUp();
    onLeave(field, [this] { ++left; });
  }
  QLineEdit *field = new QLineEdit;
  int left = 0;
};

class Form17Test : public testing::Test {
protected:
  Form17Test() {
    desk.show(work);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&work));
    work.field->setFocus();
  }

  TestStore test;
  Desk desk{test.store.Fenster, [this] { FensterSpeichern(test.store); }};
  Work work{desk};
  Form17 form{desk};
  LineList *list = form.findChild<LineList *>(QStringLiteral("List1"));
  QTimer *timer = form.findChild<QTimer *>(QStringLiteral("Timer1"));
};

TEST_F(Form17Test, ComesForwardWithoutLeavingTheFieldOfAnotherScreen) {
  form.erinnern({QStringLiteral("7   BERGER Eva m/w ?")});
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(form.testAttribute(Qt::WA_ShowWithoutActivating));
  form.hide();
  EXPECT_EQ(timer->interval(), 15000);
  timer->setInterval(0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.isVisible(); }));
  EXPECT_EQ(work.left, 0);
}

TEST_F(Form17Test, ThePressOfTheOperatorLeavesTheFieldOnce) {
  form.erinnern({QStringLiteral("7   BERGER Eva m/w ?")});
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->viewport()->rect().center());
  EXPECT_EQ(work.left, 1);
  QTest::mouseClick(&form, Qt::LeftButton, {}, {2, 2});
  EXPECT_EQ(work.left, 1);
}

} // namespace
