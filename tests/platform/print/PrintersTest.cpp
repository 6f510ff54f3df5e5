#include "support/FakePrinters.h"

#include <gtest/gtest.h>

TEST(PrintersTest, OwnPrintersStandBehindTheSystemsWhichIsAskedLate) {
  FakePrinters fake;
  EXPECT_EQ(fake.asked, 0);
  EXPECT_EQ(fake.printers->DeviceName(), "Laser");
  SystemPrinters system{{fake.printer("Laser"), fake.printer("Alt")}, "Alt"};
  const QList<Printer> own{fake.printer("PDF"), fake.printer("Vorschau")};
  const auto ask = [&system] { return system; };
  Printers printers(ask, own);
  EXPECT_EQ(printers.DeviceName(), "Alt");
  ASSERT_EQ(printers.all().size(), 4);
  printers.makeCurrent(printers.all().at(2));
  printers.print(Recording());
  EXPECT_EQ(fake.usedPrinters, QStringList{"PDF"});
  system = {};
  EXPECT_EQ(Printers(ask, own).DeviceName(), "Vorschau");
  Printers exporting(ask, own, {fake.printer("CSV")});
  EXPECT_EQ(exporting.DeviceName() + exporting.all().last().DeviceName, "VorschauCSV");
  EXPECT_THROW(Printers(ask, {}).print(Recording()), PrintFault);
}

TEST(PrintersTest, AnOutcomeNamesFilesAndPicturesThatAreMissing) {
  FakePrinters fake;
  Recording recording;
  recording.name = "Liste";
  const PictureOperation banner{0, 0, 10, 10, "werbung1.jpg", QImage()};
  recording.pages = {{banner, banner}, {banner}};
  fake.printers->begin();
  fake.printers->print(recording);
  fake.printers->print(recording);
  EXPECT_EQ(fake.printers->outcome().files, QStringList(2, "Ausdrucke/Liste.pdf"));
  EXPECT_EQ(fake.printers->outcome().unreadablePictures, QStringList(banner.path));
  fake.printers->begin();
  EXPECT_TRUE(fake.printers->outcome().files.isEmpty());
}

TEST(PrintersTest, AFaultInASeriesTellsWhoWasPrinted) {
  const auto report = [](qsizetype count, qsizetype failing) {
    try {
      printSeries(count, [failing](qsizetype i) {
        if (i == failing)
          throw PrintFault("Kein Papier.");
        return QString("P%1").arg(i);
      });
    } catch (const PrintFault &fault) {
      return fault.report();
    }
    return QString();
  };
  EXPECT_EQ(report(3, 3), QString());
  EXPECT_EQ(report(1, 0), "Kein Papier.");
  EXPECT_EQ(report(3, 0), "Kein Papier. Von 3 Ausdrucken ist noch keiner gedruckt.");
  EXPECT_EQ(report(3, 2), "Kein Papier. Gedruckt sind 2 von 3: P0, P1.");
  EXPECT_TRUE(report(99, 30).endsWith("30 von 99: P0 bis P29."));
}
