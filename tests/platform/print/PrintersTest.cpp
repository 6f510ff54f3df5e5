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
  Printers exporting(ask, own, {fake.printer(QStringLiteral("CSV"))});
  EXPECT_EQ(exporting.DeviceName() + exporting.all().last().DeviceName, QStringLiteral("VorschauCSV"));
  EXPECT_THROW(Printers(ask, {}).print(Recording()), PrintFault);
}

TEST(PrintersTest, AnOutcomeNamesFilesAndPicturesThatAreMissing) {
  FakePrinters fake;
  Recording recording;
  recording.name = QStringLiteral("Liste");
  const PictureOperation banner{0, 0, 10, 10, QStringLiteral("werbung1.jpg"), QImage()};
  recording.pages = {{banner, banner}, {banner}};
  fake.printers->begin();
  fake.printers->print(recording);
  fake.printers->print(recording);
  EXPECT_EQ(fake.printers->outcome().files, QStringList(2, QStringLiteral("Ausdrucke/Liste.pdf")));
  EXPECT_EQ(fake.printers->outcome().unreadablePictures, QStringList(banner.path));
  fake.printers->begin();
  EXPECT_TRUE(fake.printers->outcome().files.isEmpty());
}

TEST(PrintersTest, AFaultInASeriesTellsWhoWasPrinted) {
  const auto report = [](qsizetype count, qsizetype failing) {
    try {
      printSeries(count, [failing](qsizetype i) {
        if (i == failing)
          throw PrintFault(QStringLiteral("Kein Papier."));
        return QStringLiteral("P%1").arg(i);
      });
    } catch (const PrintFault &fault) {
      return fault.report();
    }
    return QString();
  };
  EXPECT_EQ(report(3, 3), QString());
  EXPECT_EQ(report(1, 0), QStringLiteral("Kein Papier."));
  EXPECT_EQ(report(3, 0), QStringLiteral("Kein Papier. Von 3 Ausdrucken ist noch keiner gedruckt."));
  EXPECT_EQ(report(3, 2), QStringLiteral("Kein Papier. Gedruckt sind 2 von 3: P0, P1."));
  EXPECT_TRUE(report(99, 30).endsWith(QStringLiteral("30 von 99: P0 bis P29.")));
}
