#include "platform/Dates.h"
#include "platform/Faults.h"
#include "platform/Numbers.h"
#include "support/StoreTest.h"

namespace {

struct RecordFilesTest : StoreTest {
  // A record of numbered bytes, so that every field and its place show.
  static QByteArray pattern(int length) {
    QByteArray bytes(length, ' ');
    for (int i = 0; i < length; ++i)
      bytes[i] = char('A' + i % 50);
    return bytes;
  }
};

} // namespace

TEST_F(RecordFilesTest, EveryByteSurvivesReadingAndWriting) {
  const QByteArray verein = pattern(VereinLaenge).replace(554, 4, QByteArray("\x00\x1a\x81\xff", 4));
  QByteArray laeufer = pattern(LaeuferLaenge).replace(0, 80, QByteArray("\xc4NGSTL \x80uro").leftJustified(80));
  laeufer.replace(80, 6, QByteArray("\x01\0\0\0\0\0", 6)).replace(94, 2, QByteArray("\x01\0", 2));
  const QByteArray rennen = pattern(RennenLaenge).replace(363, 1, "\x11");
  const std::pair<QString, QByteArray> files[] = {
      {"Verein.rec", verein}, {"Laeufer.rec", laeufer}, {"Rennen.rec", rennen}};
  for (const auto &[name, bytes] : files)
    test.writeFile(name, bytes);
  store.VereinAnzahl = store.LaeuferAnzahl = store.RennenAnzahl = 1;
  store.RennenIdx = 1;
  openRecordFiles(store);
  const VereinSatz club = VereinLesen(store, 1);
  const LaeuferSatz athlete = LaeuferLesen(store, 1);
  RennenLesen(store);
  for (const auto &[name, bytes] : files)
    test.writeFile(name, {});
  openRecordFiles(store);
  VereinSchreiben(store, 1, club);
  LaeuferSchreiben(store, 1, athlete);
  RennenSchreiben(store);
  for (const auto &[name, bytes] : files)
    EXPECT_EQ(test.file(name), bytes);
}

TEST_F(RecordFilesTest, FieldsLieWhereTheyAreTold) {
  test.addClub(QString(81, u'x'));
  test.addAthlete("MÜLLER Änne", 2005, 1, 1);
  store.Rennen.Sponsor6 = "letzter";
  store.Rennen.Startzeit = "10:30";
  store.Rennen.WertBoarder = 1;
  store.RennenIdx = 1;
  RennenSchreiben(store);
  const struct {
    const char *file;
    int place;
    QByteArray bytes;
  } cases[] = {{"Verein.rec", 79, "xx"}, // cut at 80, then the short name
               {"Laeufer.rec", 0, "M\xdcLLER \xc4nne "},
               {"Laeufer.rec", 80, QByteArray("\x01\0", 2)},
               {"Laeufer.rec", 86, QByteArray::fromHex("00000000c0d0e240")}, // 1 July 2005 = 38534.0
               {"Rennen.rec", 362, QByteArray("\x01\0", 2) + "10:30"},
               {"Rennen.rec", 723, "letzter "}};
  for (const auto &[file, place, bytes] : cases)
    EXPECT_EQ(test.file(file).mid(place, bytes.size()), bytes) << file << ' ' << place;
  EXPECT_EQ(test.file("Verein.rec").size(), 798);
}

TEST_F(RecordFilesTest, ReadingHoldsValuesInRange) {
  test.addClub("SK");
  store.RennenIdx = 1;
  for (const auto &[sex, expected] : {std::pair(5, 2), {-1, 0}, {1, 1}}) {
    LaeuferSatz athlete;
    athlete.Geschlecht = qint16(sex);
    athlete.Verein2 = 12;
    LaeuferSchreiben(store, 1, athlete);
    EXPECT_EQ(LaeuferLesen(store, 1).Geschlecht, expected);
    EXPECT_EQ(LaeuferLesen(store, 1).Verein2, 0);
  }
  store.Rennen.BestzeitAbKlasse = 18;
  RennenSchreiben(store);
  RennenLesen(store);
  EXPECT_EQ(store.Rennen.BestzeitAbKlasse, 0);
}

TEST_F(RecordFilesTest, ReadingOutsideTheFileBeepsAndEmptiesTheName) {
  test.addClub("SK");
  test.addRace("Lauf");
  for (const auto &[index, kurz] : {std::pair(2, "SK"), {0, ""}, {1, "SK"}}) {
    const VereinSatz club = VereinLesen(store, index);
    store.RennenIdx = index;
    RennenLesen(store);
    EXPECT_EQ(trimmedBlanks(club.VereinKurz), kurz) << index;
    EXPECT_EQ(club.VereinName.isEmpty() && store.Rennen.RennenName.isEmpty(), index != 1) << index;
  }
  EXPECT_EQ(test.beeps, 4);
}

TEST_F(RecordFilesTest, NewRaceInheritsTheCriteriaAndNothingElse) {
  test.addRace("Erstes");
  store.Rennen.ZweiDurchgaenge = 1;
  store.Rennen.UrkundeBild = 5;
  store.Rennen.ZuschlagGast = 3;
  RennenLeeren(store);
  EXPECT_EQ(store.Rennen.ZweiDurchgaenge, 1);
  EXPECT_EQ(store.Rennen.UrkundeBild, 5);
  EXPECT_EQ(store.Rennen.ZuschlagGast, 0);
  EXPECT_EQ(store.Rennen.RennenName, QString());
  EXPECT_EQ(fromDays(store.Rennen.RennenDatum), QDate(2005, 7, 20));
}

TEST_F(RecordFilesTest, WritesBelowOneFaultButForAthletes) {
  store.RennenIdx = 0;
  LaeuferSchreiben(store, 0, {});
  EXPECT_EQ(test.file("Laeufer.rec"), QByteArray());
  EXPECT_THROW(VereinSchreiben(store, 0, {}), FileFault);
  EXPECT_THROW(RennenSchreiben(store), FileFault);
}

TEST_F(RecordFilesTest, RecordNotYetWrittenReadsAsEmptyAndAGapAsZeros) {
  store.LaeuferAnzahl = 1;
  const LaeuferSatz athlete = LaeuferLesen(store, 1);
  EXPECT_EQ(athlete.Geschlecht, 2);
  EXPECT_EQ(test.beeps, 0);
  LaeuferSchreiben(store, 3, athlete);
  EXPECT_EQ(LaeuferLesen(store, 2).Name, QString(80, QChar(0)));
  EXPECT_EQ(LaeuferListeFuellen(store).size(), 2); // the gap counts as named
}

TEST_F(RecordFilesTest, CountsAreWrittenWhenTheLastRecordChanges) {
  store.VextReserve = 9;
  test.addAthlete("A", 2001, 0);
  test.addAthlete("B", 2001, 0);
  EXPECT_EQ(test.file("Vext.dat"), " 2 \r\n 0 \r\n 0 \r\n 9 \r\n");
  QFile::remove(store.DatenOrdner + QString("Vext.dat"));
  for (const int n : {1, 2}) {
    LaeuferSchreiben(store, n, {});
    EXPECT_EQ(test.hasFile("Vext.dat"), n == 2);
  }
}

TEST_F(RecordFilesTest, ListsAreInGermanOrderWithTheNumberAtTheEnd) {
  for (const char *name : {"Zeller", "öhler", "OHLER", "", "Öhler"})
    test.addAthlete(name, 2001, 0);
  EXPECT_EQ(LaeuferListeFuellen(store),
            QStringList({"öhler        2", "OHLER        3", "Öhler        5", "Zeller        1"}));
}
