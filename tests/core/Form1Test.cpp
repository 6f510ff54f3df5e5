#include "core/Form1.h"

#include "platform/qt/Picture.h"
#include "support/ScreenTest.h"

#include <QSet>
#include <QTimer>

using Form1Test = ScreenTest<Form1>;

TEST_F(Form1Test, ShowsTheCountsAndOnePictureEachTime) {
  store.LaeuferAnzahl = 123;
  open();
  EXPECT_EQ(label("Label2"), QStringLiteral("123"));
  QSet<Picture *> seen;
  for (int i = 0; i < 200; ++i) {
    form->becomeActive();
    QList<Picture *> shown = form->findChildren<Picture *>();
    shown.removeIf([](const Picture *picture) { return !picture->isVisible(); });
    ASSERT_EQ(shown.size(), 1);
    seen.insert(shown.first());
  }
  EXPECT_EQ(seen.size(), 8);
}

TEST_F(Form1Test, TheMouseOverTheNameShowsTheAddressForAMoment) {
  store.OrganisationName = QStringLiteral("Skiklub");
  open();
  auto *timer = form->findChild<QTimer *>(QStringLiteral("Timer1"));
  EXPECT_FALSE(timer->isActive());
  QTest::mouseMove(find("Label1"), {10, 10});
  EXPECT_EQ(label("Label1"), QString::fromLatin1(WebAdresse));
  EXPECT_EQ(timer->interval(), 2000);
  timer->setInterval(0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return label("Label1") == QStringLiteral("Skiklub"); }));
  EXPECT_FALSE(timer->isActive());
}
