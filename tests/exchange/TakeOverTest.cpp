#include "exchange/TakeOver.h"

#include "masterdata/AthleteRegister.h"
#include "masterdata/ClubRegister.h"
#include "platform/Files.h"
#include "platform/ListTable.h"
#include "raceprep/ParticipantList.h"
#include "support/StoreTest.h"

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

namespace {

/// Clubs 1 "SC Eins" and 2 "SC Zwei"; athletes 1 HUBER Anna of 2012, 2 a record without a name, 3 MAIR Eva of 2010.
struct TakeOverTest : RaceTest {
  TakeOverTest() { fill(test); }

  static void fill(TestStore &place) {
    place.addClub("SC Eins");
    place.addClub("SC Zwei");
    place.addAthlete("HUBER Anna", 2012, 0, 1);
    place.addAthlete(QString(), 1950, 1, 2);
    place.addAthlete("MAIR Eva", 2010, 0, 2);
  }

  EntryPlan plan(const char *csv) const {
    const Table table = tableFrom(csv, "M.csv");
    return planFor(store, entriesOf(table, recognisedColumns(table), QDate(2026, 1, 15)));
  }
  QString verdicts(const EntryPlan &plan) const {
    QStringList words;
    for (const PlannedEntry &line : plan.lines)
      words << wordsFor(store, plan, line, false);
    return words.join(" | ");
  }
  static void makeClubs(EntryPlan &plan) {
    for (auto &answer : plan.unknownClubs)
      answer.club = ClubAnswer::MakeNew;
  }
  QByteArray files() const {
    QByteArray all;
    for (const char *name : {"Laeufer.rec", "Verein.rec", "Vext.dat"})
      all += test.file(name);
    return all;
  }
};

constexpr char Three[] = "Name;geb.;m/w;Verein;ÖSV-Nr;Punkte\n"
                         "Neu Udo;1.2.2012;m;SC Drei;12345;2.5\n"
                         "Alt Ida;2011;w;SC Eins;;\n"
                         "Lang Max;3.4.2009;m;;;\n";

} // namespace

TEST_F(TakeOverTest, TellsWhatALineIsBesideTheRegister) {
  const std::pair<const char *, const char *> cases[] = {
      {"Name;Jg;Verein\nHuber Anna;2012;SC Eins\n", "schon im Register"},
      {"Name;geb\nHuber Anna;1.7.2012\n", "schon im Register"},
      {"Name;geb\nHuber Anna;2.7.2012\n", "fast gleich wie „HUBER Anna, 01.07.2012, SC Eins“"},
      {"Name\nHuber Anna\n", "fast gleich wie „HUBER Anna, 01.07.2012, SC Eins“"},
      {"Name;Jg\nAnna Huber;2012\n", "fast gleich wie „HUBER Anna, 01.07.2012, SC Eins“"},
      {"Name;Jg\nHuber Ana;2012\nMaier Eva;2010\n",
       "fast gleich wie „HUBER Anna, 01.07.2012, SC Eins“ | fast gleich wie „MAIR Eva, 01.07.2010, SC Zwei“"},
      {"Name;Jg\nHuber Ana;1990\n", "neu"},
      {"Name;Jg;Verein\nNeu Udo;2012;sc-eins\nBerg Ida;2012;SC Drei\n", "neu | unbekannter Verein „SC Drei“"},
      {"Name;Jg\nNeu Udo;2012\nNEU Udo;2012\n;2012\nBerg Ida;31.2.12\n",
       "neu | geht nicht: steht schon in Zeile 2 | geht nicht: kein Name | geht nicht: kein mögliches Geburtsdatum: "
       "„31.2.12“"},
  };
  for (const auto &[csv, words] : cases)
    EXPECT_EQ(verdicts(plan(csv)), words) << csv;
}

TEST_F(TakeOverTest, GivesTheFilesThatTypingWouldGive) {
  EntryPlan three = plan(Three);
  makeClubs(three);
  takeOver(store, three, false);
  TestStore typed;
  typed.addRace("Rennen");
  fill(typed);
  Store &hand = typed.store;
  nextClub(hand, 2, "SC Zwei");
  storeClubField(hand, 3, &VereinSatz::VereinName, "SC Drei");
  storeClubField(hand, 3, &VereinSatz::VereinKurz, "SC Drei");
  const struct {
    int record;
    const char *name, *birth, *number;
    qint16 sex, club;
    float points;
  } persons[] = {{2, "NEU Udo", "1.2.2012", "12345", 1, 3, 2.5F},
                 {4, "ALT Ida", "1.1.2011", "", 0, 1, 0},
                 {5, "LANG Max", "3.4.2009", "", 1, 0, 0}};
  for (const auto &person : persons) {
    if (person.record > 3)
      nextAthlete(hand, person.record - 1, "x", "1.2.2012");
    changeAthlete(hand, person.record, [&](LaeuferSatz &athlete) { athlete.Name = person.name; });
    storeBirthDate(hand, person.record, person.birth);
    changeAthlete(hand, person.record, [&](LaeuferSatz &athlete) {
      athlete.OesvNr = person.number;
      athlete.Geschlecht = person.sex;
      athlete.Verein1 = person.club;
      athlete.LaeuferPunkte = person.points;
    });
  }
  for (const char *name : {"Laeufer.rec", "Verein.rec", "Vext.dat"})
    EXPECT_EQ(test.file(name), typed.file(name)) << name;
}

TEST_F(TakeOverTest, EntersIntoTheRaceWithTheClubOfTheTable) {
  changeAthlete(store, 1, [](LaeuferSatz &athlete) { athlete.Verein3 = 2; });
  test.enter(3);
  EntryPlan all =
      plan("Name;Jg;Verein\nHuber Anna;2012;SC Zwei\nMair Eva;2010;SC Zwei\nNeu Udo;2012;SC Drei\nBerg Ida;2012;\n");
  makeClubs(all);
  takeOver(store, all, true);
  const std::pair<int, int> rows[] = {{3, 1}, {1, 3}, {2, 1}, {4, 0}, {0, 0}}; // athlete, club
  for (int row = 1; row <= 5; ++row) {
    const auto &participant = store.Teilnehmer[row];
    EXPECT_EQ(std::pair(participant.LaeuferNr, participant.VereinNr), rows[row - 1]) << row;
  }
}

TEST_F(TakeOverTest, WhatWasChosenIsDone) {
  EntryPlan all = plan("Name;Jg;Verein\nHuber Ana;2012;\nMaier Eva;2010;\nNeu Udo;2012;SC Drei\nBerg Ida;2011;\n");
  all.lines[0].choice = Choice::New;
  all.lines[1].choice = Choice::Same;
  all.lines[3].choice = Choice::LeaveOut;
  const EntryCount told = count(all);
  EXPECT_EQ(std::tuple(told.newPersons, told.known, told.open, told.leftOut), std::tuple(1, 1, 1, 1));
  takeOver(store, all, true);
  EXPECT_EQ(store.LaeuferAnzahl, 3);
  EXPECT_EQ(store.VereinAnzahl, 2);
  EXPECT_EQ(store.Teilnehmer[1].LaeuferNr, 2);
  EXPECT_EQ(store.Teilnehmer[2].LaeuferNr, 3);
  EXPECT_EQ(store.Teilnehmer[3].LaeuferNr, 0);
}

TEST_F(TakeOverTest, AFullRaceOrDiskLeavesAllAsItWas) {
  EntryPlan three = plan(Three);
  makeClubs(three);
  for (int row = 1; row <= 998; ++row)
    store.Teilnehmer[row].LaeuferNr = 3;
  const QByteArray before = files();
  EXPECT_THROW(takeOver(store, three, true), TableFault);
  EXPECT_EQ(files(), before);
  for (int n = 4; n <= 9; ++n)
    test.addAthlete(QString("X %1").arg(n), 1990, 1);
  rlimit usual;
  getrlimit(RLIMIT_FSIZE, &usual);
  std::signal(SIGXFSZ, SIG_IGN);
  const QByteArray athletes = test.file(QStringLiteral("Laeufer.rec"));
  for (const rlim_t most : {2 * 798, 9 * 349, 10 * 349 + 10}) { // no club, no athlete, one and a bit
    const rlimit small{most, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(takeOver(store, three, false), Fault) << most;
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_EQ(test.file("Laeufer.rec"), athletes) << most;
    EXPECT_EQ(verdicts(plan(Three)), "unbekannter Verein „SC Drei“ | neu | neu");
    EXPECT_EQ(test.file("Vext.dat"), " 9 \r\n 2 \r\n 1 \r\n 0 \r\n");
  }
  takeOver(store, three, false);
  EXPECT_EQ(store.LaeuferAnzahl, 11);
  EXPECT_EQ(store.VereinAnzahl, 3);
}

TEST_F(TakeOverTest, TheRegisterOutAsATableAndInAgainIsTheSame) {
  TestStore example, empty;
  example.takeOver(VEXT_BEISPIEL);
  const QByteArray out = csvOf(athleteTable(example.store));
  const Table table = tableFrom(out, "Liste.csv");
  EntryPlan all = planFor(empty.store, entriesOf(table, recognisedColumns(table), QDate(2026, 11, 15)));
  makeClubs(all);
  lastAthlete(empty.store);
  lastClub(empty.store);
  takeOver(empty.store, all, false);
  EXPECT_GT(empty.store.LaeuferAnzahl, 50);
  EXPECT_EQ(csvOf(athleteTable(empty.store)), out);
}
