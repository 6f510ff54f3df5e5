#include "platform/print/Printers.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace {

struct FakePrinters {
  SystemPrinters system;
  int asked = 0;
  QStringList printed;

  Printer printer(const char *name) {
    const QString deviceName = QString::fromLatin1(name);
    return {deviceName, [this, deviceName](const Recording &recording) {
              printed.append(deviceName + QLatin1Char(':') + recording.name);
              return QString();
            }};
  }
  std::function<SystemPrinters()> ask() {
    return [this] {
      ++asked;
      return system;
    };
  }
};

QStringList names(const QList<Printer> &printers) {
  QStringList result;
  for (const Printer &printer : printers)
    result.append(printer.DeviceName);
  return result;
}

} // namespace

TEST(PrintersTest, OwnPrintersStandBehindTheSystemsAndTheSystemIsAskedLate) {
  FakePrinters fake;
  fake.system = {{fake.printer("Laser"), fake.printer("Alt")}, QStringLiteral("Alt")};
  Printers printers(fake.ask(), {fake.printer("PDF-Datei"), fake.printer("Vorschau")});
  EXPECT_FALSE(printers.isEmpty());
  EXPECT_EQ(fake.asked, 0);
  EXPECT_EQ(printers.DeviceName(), QStringLiteral("Alt"));
  EXPECT_EQ(names(printers.all()), (QStringList{QStringLiteral("Laser"), QStringLiteral("Alt"),
                                                QStringLiteral("PDF-Datei"), QStringLiteral("Vorschau")}));
  printers.makeCurrent(printers.all().at(2));
  Recording recording;
  recording.name = QStringLiteral("Liste");
  printers.print(recording);
  printers.all();
  printers.print(recording);
  EXPECT_EQ(fake.printed, (QStringList{QStringLiteral("PDF-Datei:Liste"), QStringLiteral("PDF-Datei:Liste")}));
}

TEST(PrintersTest, WithoutADefaultTheLastOfOursIsCurrent) {
  FakePrinters fake;
  fake.system.printers = {fake.printer("Laser")};
  Printers printers(fake.ask(), {fake.printer("PDF-Datei"), fake.printer("Vorschau")});
  EXPECT_EQ(printers.DeviceName(), QStringLiteral("Vorschau"));
}

TEST(PrintersTest, NoPrinterAtAllIsAFaultOfPrinting) {
  FakePrinters fake;
  Printers printers(fake.ask(), {});
  EXPECT_TRUE(printers.isEmpty());
  EXPECT_TRUE(printers.DeviceName().isEmpty());
  EXPECT_THROW(printers.print(Recording()), PrintFault);
}
