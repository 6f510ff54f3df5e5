#include "printing/Protokoll.h"

#include "platform/Files.h"
#include "support/OtherMedia.h"
#include "support/StoreTest.h"

TEST_F(RaceTest, TheJournalOfARaceIsPrintedNewestFirst) {
  makeFolder(store.DatenOrdner + QString("Protokoll"));
  const QByteArray head = "\xEF\xBB\xBFUhrzeit;Veranstaltung;Startnummer;Name;Was;vorher;nachher\r\n";
  test.writeFile(QStringLiteral("Protokoll/2026-01-14.csv"),
                 head + "09:00:00;1;28;\"A;B\";Zeit 1;;45,98\r\n10:42:07;1;28;WEI");
  test.writeFile(QStringLiteral("Protokoll/2026-01-15.csv"),
                 head + "09:59:58;1;28;\"WEI\r\n09:59:59;1;28;WEI\xC3\r\n10:00:00;1;28;HUBER Anna;Zeit "
                        "1;45,98;46,38\r\n10:00:01;2;28;HUBER Anna;Zeit 1;1,00;2,00\r\n"
                        "10:00:02;;;HUBER Anna;Verein 1;a;b\r\n10:00:03;1;28;HUBER Anna;Status 1;ok;dis\r\n");
  Recording printed;
  Druckschicht druck([&](const Recording &done) { printed = done; });
  Protokoll(store, druck, 1);
  QStringList when;
  for (const QStringList &row : printed.list.sections.value(0).rows)
    when << row.value(0) + QLatin1Char(' ') + row.value(5);
  EXPECT_EQ(when, (QStringList{QStringLiteral("15.01. 10:00:03 dis"), QStringLiteral("15.01. 10:00:00 46,38"),
                               QStringLiteral("15.01. 09:59:59 "), QStringLiteral("14.01. 10:42:07 "),
                               QStringLiteral("14.01. 09:00:00 45,98")}));
  EXPECT_EQ(OtherMedia(printed).differences(), QStringList());
  EXPECT_EQ(printed.title, "Rennen – Protokoll");
}
