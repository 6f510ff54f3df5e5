#include "support/FakePrinters.h"

#include <gtest/gtest.h>

TEST(PrintersTest, OwnPrintersStandBehindTheSystemsWhichIsAskedLate) {
  FakePrinters fake;
  EXPECT_EQ(fake.asked, 0);
  EXPECT_EQ(fake.printers->DeviceName(), QStringLiteral("Laser"));
  SystemPrinters system{{fake.printer(QStringLiteral("Laser")), fake.printer(QStringLiteral("Alt"))},
                        QStringLiteral("Alt")};
  const QList<Printer> own{fake.printer(QStringLiteral("PDF")), fake.printer(QStringLiteral("Vorschau"))};
  const auto ask = [&system] { return system; };
  Printers printers(ask, own);
  EXPECT_EQ(printers.DeviceName(), QStringLiteral("Alt"));
  ASSERT_EQ(printers.all().size(), 4);
  printers.makeCurrent(printers.all().at(2));
  printers.print(Recording());
  EXPECT_EQ(fake.usedPrinters, QStringList{QStringLiteral("PDF")});
  system = {};
  EXPECT_EQ(Printers(ask, own).DeviceName(), QStringLiteral("Vorschau"));
  EXPECT_THROW(Printers(ask, {}).print(Recording()), PrintFault);
}
