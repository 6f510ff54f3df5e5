#include "evaluation/AllLists.h"

#include "core/RaceFiles.h"
#include "platform/Files.h"
#include "support/OtherMedia.h"
#include "support/StoreTest.h"
#include "timing/Ranking.h"

#include <QRegularExpression>
#include <QUrl>

TEST_F(StoreTest, AllListsAreWrittenWithAPageThatLeadsToThemAndNothingElseChanges) {
  test.takeOver(VEXT_BEISPIEL);
  store.RennenIdx = store.AktRennen = 2;
  RennenLesen(store);
  RennDatenLaden(store);
  ErgebnisRechnen(store, 1);
  const auto ranking = [this] {
    QList<int> all;
    for (int k = 1; k <= 1000; ++k)
      all << store.ranking.RangListe[k] << store.Teilnehmer[k].Rang << store.Teilnehmer[k].KlasseKopf;
    return all;
  };
  const auto before = ranking();
  const auto lists = allLists(store);
  EXPECT_EQ(ranking(), before);
  ASSERT_GE(lists.size(), 4);
  for (const Recording &list : lists)
    EXPECT_EQ(OtherMedia(list).differences(), QStringList()) << list.title.toStdString();
  Printers printers([] { return SystemPrinters(); }, {});
  const QString folder = test.folder.filePath("Ausdrucke");
  printAllLists(store, printers, folder, [] { return QDateTime(QDate(2026, 1, 15), QTime(12, 0)); });
  EXPECT_EQ(printers.outcome().files.size(), lists.size() + 1);
  const QString index = readFile(printers.outcome().files.last());
  static const QRegularExpression link("href=\"([^\"]+)\"");
  int links = 0;
  for (auto found = link.globalMatch(index); found.hasNext(); ++links)
    EXPECT_TRUE(fileExists(folder + u'/' + QUrl::fromPercentEncoding(found.next().captured(1).toLatin1())));
  EXPECT_EQ(links, lists.size());
}
