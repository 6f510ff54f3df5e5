#include "raceprep/ParticipantList.h"

#include "core/RaceFiles.h"
#include "platform/Numbers.h"
#include "support/StoreTest.h"

namespace {

struct ParticipantListTest : StoreTest {
  /// The lines without the numbers at their ends.
  std::string shown(const char *beginning, int order) {
    QStringList heads;
    for (const auto &line : TeilnehmerlisteFuellen(store, beginning, order))
      heads.append(trimmedBlanks(line.chopped(10)));
    return heads.join(u'|').toStdString();
  }
};

} // namespace

TEST_F(ParticipantListTest, LineCarriesClubRowAndRecord) {
  test.addClub("Ein sehr langer Vereinsname");
  test.enter(test.addAthlete("HUBER Anna", 1990, 0, 1));
  const QStringList lines = TeilnehmerlisteFuellen(store, {}, ByName);
  EXPECT_EQ(lines,
            QStringList(QString("HUBER Anna    --- Ein sehr langer Vere") + QString(50, u' ') + QString("0001000001")));
  EXPECT_EQ(rowOfLine(lines[0]), 1);
}

TEST_F(ParticipantListTest, OrdersAndFilters) {
  for (const char *name : {"Maß", "MASER", "Abt", "D", "E", "F", "G", "H", "I", "J"})
    test.enter(test.addAthlete(name, 1990, 0));
  EXPECT_EQ(shown("", ByName), "Abt|D|E|F|G|H|I|J|MASER|Maß");
  EXPECT_EQ(shown("", ByEntry).substr(0, 22), "1  Maß|10  J|2  MASER");
  EXPECT_EQ(shown("", LatestFirst).substr(0, 13), "990  J|991  I");
  EXPECT_EQ(shown("MA", ByName), "MASER|Maß");
  EXPECT_EQ(shown("MAß", ByName), "Maß");
  EXPECT_EQ(shown("ma", ByName), "");
  EXPECT_EQ(athleteLines(store, "MAS"), QStringList("MASER                    2"));
}

TEST_F(ParticipantListTest, SearchesKeepLengthAndBlanksInside) {
  const std::tuple<const char *, const char *, const char *> cases[] = {
      {"  hub an ", "HUB AN", "Hub an"}, {"groß", "GROß", "Groß"}, {"öller", "ÖLLER", "Öller"}, {" ", "", ""}};
  for (const auto &[typed, searched, shown] : cases) {
    EXPECT_EQ(athleteSearch(typed), searched);
    EXPECT_EQ(participantSearch(typed), searched);
    EXPECT_EQ(athleteSearchShown(typed), shown);
  }
}

TEST_F(ParticipantListTest, AddingTakesTheFirstFreeRowUntilAllAreInUse) {
  store.Teilnehmer[1].LaeuferNr = 5;
  store.Teilnehmer[2].VereinNr = 4;
  addParticipant(store, 7, 2, 3);
  for (int n = 3; n <= 1000; ++n)
    addParticipant(store, 100 + n, 1, 3);
  EXPECT_EQ(store.Teilnehmer[2].LaeuferNr, 7);
  EXPECT_EQ(store.Teilnehmer[2].VereinNr, 4); // which of the two clubs is not known
  EXPECT_EQ(store.Teilnehmer[1000].VereinNr, 3);
  EXPECT_EQ(test.beeps, 0);
  addParticipant(store, 9999, 0, 0);
  EXPECT_EQ(test.beeps, 1);
  EXPECT_FALSE(isParticipant(store, 9999));
  EXPECT_TRUE(isParticipant(store, 1100)); // in the last row
  EXPECT_EQ(TeilnehmerlisteFuellen(store, {}, ByName).size(), 1000);
}

TEST_F(ParticipantListTest, RemovingMovesTheParticipantsButNotWhatBelongsToTheRow) {
  for (int row = 1; row <= 1000; ++row) {
    const auto n = qint16(row);
    store.Teilnehmer[row] = {n, n, n, n, n, n, float(n), double(n), n, n, n, n, double(n), n, n, n, n};
  }
  removeParticipant(store, 3);
  const QByteArrayList moved = raceFiles(store).first().bytes.split('\n').mid(2 * 23, 16);
  EXPECT_EQ(moved.join().simplified(), "4 4 4 4 4 4 4 4 3 4 4 4 4 4 4 3"); // the reserve and the exact class stay
  EXPECT_EQ(store.Teilnehmer[3].KlasseReihe, 3);
  for (const auto &[row, athlete] : {std::pair(2, 2), {999, 1000}, {1000, 1000}})
    EXPECT_EQ(store.Teilnehmer[row].LaeuferNr, athlete);
}
