#include "raceprep/ParticipantList.h"

#include "platform/Numbers.h"
#include "support/TestStore.h"

#include <array>
#include <tuple>

namespace {

QString joined(const QStringList &lines) {
  QStringList heads;
  for (const auto &line : lines)
    heads.append(trimmedBlanks(line.chopped(10)));
  return heads.join(QLatin1Char('|'));
}

class ParticipantListTest : public testing::Test {
protected:
  TestStore test;
  Store &store = test.store;
};

} // namespace

TEST_F(ParticipantListTest, LineCarriesClubRowAndRecord) {
  test.addClub(QStringLiteral("Ein sehr langer Vereinsname"));
  test.enter(test.addAthlete(QStringLiteral("HUBER Anna"), 1990, 0, 1));
  const QStringList lines = TeilnehmerlisteFuellen(store, {}, ByName);
  EXPECT_EQ(lines, QStringList(QStringLiteral("HUBER Anna    --- Ein sehr langer Vere") +
                               QString(50, QLatin1Char(' ')) + QStringLiteral("0001000001")));
  EXPECT_EQ(rowOfLine(lines[0]), 1);
  for (const int slot : {0, 2, 4}) {
    store.Teilnehmer[1].VereinNr = slot;
    EXPECT_EQ(joined(TeilnehmerlisteFuellen(store, {}, ByName)), QStringLiteral("HUBER Anna")) << slot;
  }
}

TEST_F(ParticipantListTest, OrdersAndFilters) {
  for (const char *name : {"Maß", "MASER", "Abt", "D", "E", "F", "G", "H", "I", "J"})
    test.enter(test.addAthlete(QString::fromUtf8(name), 1990, 0));
  EXPECT_TRUE(joined(TeilnehmerlisteFuellen(store, {}, ByName)).startsWith(QStringLiteral("Abt|D")));
  EXPECT_TRUE(joined(TeilnehmerlisteFuellen(store, {}, ByEntry)).startsWith(QStringLiteral("1  Maß|10  J|2  MASER|3")));
  EXPECT_TRUE(joined(TeilnehmerlisteFuellen(store, {}, LatestFirst)).startsWith(QStringLiteral("990  J|991  I")));
  EXPECT_EQ(joined(TeilnehmerlisteFuellen(store, QStringLiteral("MA"), ByName)), QStringLiteral("MASER|Maß"));
  EXPECT_EQ(joined(TeilnehmerlisteFuellen(store, QStringLiteral("MAß"), ByName)), QStringLiteral("Maß"));
  EXPECT_EQ(joined(TeilnehmerlisteFuellen(store, QStringLiteral("ma"), ByName)), QString());
  EXPECT_EQ(athleteLines(store, QStringLiteral("MAS")),
            QStringList(QStringLiteral("MASER") + QString(20, QLatin1Char(' ')) + QLatin1Char('2')));
}

TEST_F(ParticipantListTest, ClubsAreCountedAndTheLastSlotKept) {
  test.addClub(QStringLiteral("A"));
  test.addClub(QStringLiteral("B"));
  const struct {
    std::array<qint16, 3> clubs;
    const char *text;
    int count, lastSlot;
  } cases[] = {
      {{0, 0, 0}, "", 0, 0}, {{0, 2, 0}, " - B", 1, 2}, {{0, 1, 2}, " - A - B", 2, 3}, {{-1, 3, 1}, " - A", 1, 3}};
  for (const auto &c : cases) {
    std::tie(store.Laeufer.Verein1, store.Laeufer.Verein2, store.Laeufer.Verein3) =
        std::tie(c.clubs[0], c.clubs[1], c.clubs[2]);
    const AthleteClubs clubs = clubsOfAthlete(store);
    EXPECT_EQ(clubs.text, QLatin1String(c.text));
    EXPECT_EQ(clubs.count, c.count) << c.text;
    EXPECT_EQ(clubs.lastSlot, c.lastSlot) << c.text;
  }
}

TEST_F(ParticipantListTest, AddingTakesTheFirstFreeRowUntilAllAreInUse) {
  store.Teilnehmer[1].LaeuferNr = 5;
  store.Teilnehmer[2].VereinNr = 4;
  addParticipant(store, 7, 2, 3);
  addParticipant(store, 8, 1, 3);
  EXPECT_EQ(store.Teilnehmer[2].LaeuferNr, 7);
  EXPECT_EQ(store.Teilnehmer[2].VereinNr, 4);
  EXPECT_EQ(store.Teilnehmer[3].VereinNr, 3);
  for (int n = 4; n <= 1000; ++n)
    addParticipant(store, 100 + n, 0, 0);
  EXPECT_EQ(test.beeps, 0);
  addParticipant(store, 9999, 0, 0);
  EXPECT_EQ(test.beeps, 1);
  EXPECT_FALSE(isParticipant(store, 9999));
}

TEST_F(ParticipantListTest, RemovingMovesTheParticipantsButNotWhatBelongsToTheRow) {
  for (int row = 1; row <= 1000; ++row) {
    auto &line = store.Teilnehmer[row];
    line.LaeuferNr = line.StartNr = line.ZeitReserve = line.KlasseReihe = row;
    line.Boarder = line.KlasseGenau = qint16(row);
  }
  removeParticipant(store, 3);
  const auto &moved = store.Teilnehmer[3];
  for (const int value : {moved.LaeuferNr, moved.StartNr, int(moved.Boarder)})
    EXPECT_EQ(value, 4);
  for (const int value : {moved.ZeitReserve, moved.KlasseReihe, int(moved.KlasseGenau)})
    EXPECT_EQ(value, 3);
  EXPECT_EQ(store.Teilnehmer[2].LaeuferNr, 2);
  EXPECT_EQ(store.Teilnehmer[999].LaeuferNr, 1000);
  EXPECT_EQ(store.Teilnehmer[1000].LaeuferNr, 1000);
}
