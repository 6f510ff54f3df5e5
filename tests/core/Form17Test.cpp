#include "core/Form17.h"

#include "support/ScreenTest.h"

#include <QTimer>

using Form17Test = ScreenTest<Form17>;

TEST_F(Form17Test, ComesForwardWithoutLeavingTheFieldOfAnotherScreenAndThePressLeavesItOnce) {
  QWidget work;
  QLineEdit field(&work);
  int left = 0;
  desk.guard().onLeave(&field, [&left] { ++left; });
  work.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&work));
  field.setFocus();
  form = std::make_unique<Form17>(desk);
  form->remind({"7   BERGER Eva m/w ?"});
  EXPECT_TRUE(form->isVisible() && form->testAttribute(Qt::WA_ShowWithoutActivating));
  form->hide();
  auto *timer = form->findChild<QTimer *>("Timer1");
  EXPECT_EQ(timer->interval(), 15000);
  timer->setInterval(0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return form->isVisible(); }));
  EXPECT_EQ(left, 0);
  clickLine("List1", 0);
  EXPECT_EQ(left, 1);
  QTest::mouseClick(form.get(), Qt::LeftButton, {}, {2, 2});
  EXPECT_EQ(left, 1);
}
