#include "core/Form1.h"

#include "platform/qt/Desk.h"
#include "support/TestStore.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

class Form1Test : public testing::Test {
protected:
  Form1Test() {
    test.store.OrganisationName = QStringLiteral("Skiklub");
    test.store.LaeuferAnzahl = 123;
    form = std::make_unique<Form1>(desk, test.store);
    desk.show(*form);
  }

  QLabel *label(int n) { return form->findChild<QLabel *>(QStringLiteral("Label%1").arg(n)); }
  QString shownPictures() {
    QString shown;
    for (int n = 1; n <= 8; ++n)
      if (form->findChild<QWidget *>(QStringLiteral("Image%1").arg(n))->isVisible())
        shown += QString::number(n);
    return shown;
  }

  TestStore test;
  Desk desk{test.store.Fenster, [this] { FensterSpeichern(test.store); }};
  std::unique_ptr<Form1> form;
};

TEST_F(Form1Test, ShowsTheCountsAndOnePictureEachTime) {
  EXPECT_EQ(label(2)->text(), QStringLiteral("123"));
  QString seen;
  for (int i = 0; i < 200; ++i) {
    form->becomeActive();
    ASSERT_EQ(shownPictures().size(), 1);
    if (!seen.contains(shownPictures()))
      seen += shownPictures();
  }
  EXPECT_EQ(seen.size(), 8);
}

TEST_F(Form1Test, TheMouseOverTheNameShowsTheAddressForAMoment) {
  auto *timer = form->findChild<QTimer *>(QStringLiteral("Timer1"));
  EXPECT_FALSE(timer->isActive());
  QTest::mouseMove(label(1), {10, 10});
  EXPECT_EQ(label(1)->text(), QString::fromLatin1(WebAdresse));
  EXPECT_EQ(timer->interval(), 2000);
  EXPECT_TRUE(timer->isActive());
  timer->setInterval(0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return label(1)->text() == QStringLiteral("Skiklub"); }));
  EXPECT_FALSE(timer->isActive());
}

} // namespace
