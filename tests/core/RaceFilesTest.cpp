#include "core/RaceFiles.h"

#include "platform/Faults.h"
#include "support/StoreTest.h"

namespace {

QByteArray participant(const char *zeit1, const char *status1 = " 0 ") {
  QByteArray block = " 5 \r\n 12 \r\n 3 \r\n 1 \r\n 2 \r\n 1 \r\n4\r\n";
  block += QByteArray(zeit1) + "\r\n 0 \r\n" + status1 + "\r\n 1 \r\n 3 \r\n64,5\r\n 2 \r\n 1 \r\n 21 \r\n";
  return block + QByteArray("\r\n").repeated(7);
}

struct RaceFilesTest : RaceTest {
  RaceFilesTest() { test.addAthlete("MÜLLER Änne", 2010, 0); }

  void load(const QByteArray &participants) {
    test.writeFile("R 1.dat", participants);
    RennDatenLaden(store);
  }
};

} // namespace

TEST_F(RaceFilesTest, LoadedAndSavedAgainAreTheSameBytes) {
  const QByteArray r = participant("63,45") + participant("1E-05") + participant("-5").replace(" 21 ", "-21 ");
  QByteArray k;
  for (int i = 1; i <= 20; ++i) {
    k += "Klasse, " + QByteArray::number(i) + "\xfc\r\n 2000 \r\n 2010 \r\n";
    for (int j = 0; j < 8; ++j)
      k += " " + QByteArray::number(i * 10 + j) + " \r\n";
  }
  for (int i = 0; i < 160; ++i)
    k += "genau\x80 " + QByteArray::number(i) + "\r\n";
  const QByteArray m = "eins, zwei\r\n" + QByteArray("\r\n").repeated(98) + "hundert\r\n";
  test.writeFile("K 1.lst", k);
  test.writeFile("M 1.lst", m);
  test.writeFile("G 1.lst", "Gruppe " + m);
  load(r);
  for (const char *name : {"R 1.dat", "K 1.lst", "M 1.lst", "G 1.lst"})
    QFile::remove(store.DatenOrdner + QLatin1String(name));
  RennDatenSpeichern(store);
  EXPECT_EQ(test.file("R 1.dat"), r);
  EXPECT_EQ(test.file("K 1.lst"), k);
  EXPECT_EQ(test.file("M 1.lst"), m);
  EXPECT_EQ(test.file("G 1.lst"), "Gruppe " + m);
}

TEST_F(RaceFilesTest, ALoadWithoutFilesLeavesTheResultsAndTheExactClassOfARow) {
  const TeilnehmerZeile full{7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7};
  store.Teilnehmer[1] = store.Teilnehmer[1000] = full;
  for (auto *text : {&store.KlasseGenauName[0], &store.KlasseGenauName[159], &store.MannschaftName[1],
                     &store.GruppeName[100], &store.KlasseName[20]})
    *text = "alt";
  RennDatenLaden(store);
  for (const int n : {1, 1000}) {
    const auto &row = store.Teilnehmer[n];
    EXPECT_EQ(row.LaeuferNr + row.StartNr + row.Zeit1 + row.Status2 + row.Boarder + row.KlasseReihe, 0) << n;
    EXPECT_EQ(row.KlasseGenau + row.WertZeit1 + row.WertZeit2 + row.WertSumme + row.Rang + row.KlasseKopf, 42) << n;
  }
  EXPECT_EQ(store.KlasseGenauName[0] + store.KlasseGenauName[159] + store.MannschaftName[1] + store.GruppeName[100] +
                store.KlasseName[20],
            "AK 6");
}

TEST_F(RaceFilesTest, ASaveIsAnnouncedBeforeItsFirstFileAndAfterItsLast) {
  QStringList seen;
  const auto look = [&] {
    for (const char *name : {"R 1.dat", "K 1.lst"})
      seen << (test.hasFile(name) ? "da" : "fehlt");
  };
  store.beforeSaving = store.afterSaving = look;
  RennDatenSpeichern(store);
  EXPECT_EQ(seen.join(u' '), "fehlt fehlt da da");
}

TEST_F(RaceFilesTest, OddParticipantFiles) {
  const auto &row = store.Teilnehmer[1], &next = store.Teilnehmer[2];
  load(participant("1", " 7 ").replace("\r\n 3 \r\n64,5\r\n 2 ", "\r\n-3 \r\n64,5\r\n 7 "));
  EXPECT_EQ(row.Status1, 0);
  EXPECT_EQ(row.Status2, 7);
  EXPECT_EQ(row.MannschaftNr, 0);
  load(participant("63,45").replace("\r\n4\r\n", "\r\n12,5\r\n")); // the lines slip by one
  EXPECT_EQ(row.Punkte, 12);
  EXPECT_EQ(row.Zeit1, 5);
  EXPECT_EQ(row.ZeitReserve, 63);
  load(participant("63,45") + " 9 \r\n 4 "); // cut short
  EXPECT_EQ(next.LaeuferNr, 9);
  EXPECT_EQ(next.StartNr, 4);
  EXPECT_EQ(next.Zeit1, 0);
  EXPECT_EQ(store.Teilnehmer[3].LaeuferNr, 0);
  load(participant("1").repeated(1001));
  EXPECT_EQ(store.Teilnehmer[1000].LaeuferNr, 5);
  EXPECT_EQ(participantFile(store).count('\n'), 23000);
}

TEST_F(RaceFilesTest, SavingDropsFreeRowsAndNamesInRowThreeAlone) {
  test.enter(1, 8);
  store.Teilnehmer[5].LaeuferNr = 1;
  store.MannschaftName[3] = "allein";
  RennDatenSpeichern(store);
  EXPECT_FALSE(test.hasFile("M 1.lst"));
  RennDatenLaden(store);
  EXPECT_EQ(store.Teilnehmer[2].LaeuferNr, 1);
  EXPECT_EQ(store.Teilnehmer[5].LaeuferNr, 0);
}

TEST_F(RaceFilesTest, APastedLineBreakMovesNoLine) {
  store.KlasseGenauName[1] = store.GruppeName[1] = "oben\nunten";
  store.GruppeName[2] = store.KlasseGenauName[2] = "zwei";
  RennDatenSpeichern(store);
  RennDatenLaden(store);
  EXPECT_EQ(store.GruppeName[1] + store.GruppeName[2], "oben untenzwei");
  EXPECT_EQ(store.KlasseGenauName[1] + store.KlasseGenauName[2], "oben untenzwei");
}

TEST_F(RaceFilesTest, RemindsOfAthletesWithoutSexOrBirthDate) {
  QStringList reminder;
  test.umgebung.remind = [&](const QStringList &lines) { reminder = lines; };
  LaeuferSatz max;
  max.Name = "HUBER Max";
  LaeuferSchreiben(store, 2, max);
  test.enter(1);
  test.enter(2);
  RennDatenSpeichern(store);
  EXPECT_EQ(reminder, QStringList({"2   HUBER Max m/w ?", "2   HUBER Max Geburtsdatum ?"}));
}

TEST_F(RaceFilesTest, FaultsNameFileAndLine) {
  const std::pair<QByteArray, const char *> cases[] = {
      {participant(""), "Zeile 8 "},
      {participant("1") + participant("1.5"), "Zeile 31 "},
      {participant("1").replace(" 3 \r\n64,5", " 40000 \r\n64,5"), "Zeile 12 "},
      {participant("1").replace(" 5 ", " 3000000000 "), "Zeile 1 "}};
  for (const auto &[bytes, where] : cases) {
    try {
      load(bytes);
      ADD_FAILURE() << "no fault: " << where;
    } catch (const ConversionFault &fault) {
      EXPECT_TRUE(fault.report().contains(where)) << fault.what();
      EXPECT_TRUE(fault.report().contains("R 1.dat")) << fault.what();
    }
  }
}
