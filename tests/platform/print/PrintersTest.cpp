#include "platform/print/Printers.h"

#include "support/FakePrinters.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace {

QStringList names(const QList<Printer> &printers) {
  QStringList result;
  for (const Printer &printer : printers)
    result.append(printer.DeviceName);
  return result;
}

} // namespace

TEST(PrintersTest, OwnPrintersStandBehindTheSystemsAndTheSystemIsAskedLate) {
  FakePrinters fake;
  int asked = 0;
  const auto system = [&] {
    ++asked;
    return SystemPrinters{{fake.printer(QStringLiteral("Laser")), fake.printer(QStringLiteral("Alt"))},
                          QStringLiteral("Alt")};
  };
  Printers printers(system, {fake.printer(QStringLiteral("PDF")), fake.printer(QStringLiteral("Vorschau"))});
  EXPECT_FALSE(printers.isEmpty());
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(printers.DeviceName(), QStringLiteral("Alt"));
  EXPECT_EQ(names(printers.all()), (QStringList{QStringLiteral("Laser"), QStringLiteral("Alt"), QStringLiteral("PDF"),
                                                QStringLiteral("Vorschau")}));
  printers.makeCurrent(printers.all().at(2));
  printers.all();
  printers.print(Recording());
  EXPECT_EQ(fake.usedPrinters, QStringList{QStringLiteral("PDF")});
}

TEST(PrintersTest, WithoutADefaultTheLastOfOursIsCurrent) {
  FakePrinters fake;
  Printers printers([] { return SystemPrinters(); },
                    {fake.printer(QStringLiteral("PDF")), fake.printer(QStringLiteral("Vorschau"))});
  EXPECT_EQ(printers.DeviceName(), QStringLiteral("Vorschau"));
}

TEST(PrintersTest, NoPrinterAtAllIsAFaultOfPrinting) {
  FakePrinters none{QStringList()};
  EXPECT_TRUE(none.printers->isEmpty());
  EXPECT_TRUE(none.printers->DeviceName().isEmpty());
  EXPECT_THROW(none.printers->print(Recording()), PrintFault);
}
