#include "printing/Form28.h"

#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/FakePrinters.h"
#include "support/TestStore.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

TEST(Form28Test, TheChosenPrinterBecomesTheCurrentOne) {
  TestStore test;
  Desk desk{test.store.Fenster, [] {}};
  FakePrinters fake;
  Form28 form(desk, *fake.printers);
  desk.show(form);
  auto *list = form.findChild<LineList *>(QStringLiteral("List1"));
  auto *take = form.findChild<QPushButton *>(QStringLiteral("Command2"));
  EXPECT_EQ(list->lines(), (QStringList{QStringLiteral("Laser"), QStringLiteral("Alt")}));
  EXPECT_FALSE(take->isEnabled());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 0)).center());
  EXPECT_TRUE(take->isEnabled());
  EXPECT_EQ(fake.printers->DeviceName(), QStringLiteral("Laser"));
  QTest::mouseClick(take, Qt::LeftButton);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(fake.printers->DeviceName(), QStringLiteral("Alt"));
}

TEST(Form28Test, ClosingChangesNothingAndAnotherOpeningAsksAnew) {
  TestStore test;
  Desk desk{test.store.Fenster, [] {}};
  FakePrinters fake;
  for (int opening = 1; opening <= 2; ++opening) {
    Form28 form(desk, *fake.printers);
    desk.show(form);
    auto *list = form.findChild<LineList *>(QStringLiteral("List1"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 0)).center());
    QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("Command1")), Qt::LeftButton);
    EXPECT_EQ(fake.asked, opening);
  }
  EXPECT_EQ(fake.printers->DeviceName(), QStringLiteral("Laser"));
}
