#include "safety/Safety.h"

#include "core/RaceFiles.h"
#include "core/StateFiles.h"
#include "exchange/TakeOver.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "raceprep/RaceCopy.h"
#include "support/StoreTest.h"

#include <QDir>

#include <sys/stat.h>

namespace {

/// A time in January 2026.
QDateTime at(const QString &time) {
  return QDateTime::fromString(QString("2026-01-") + time, "yyyy-MM-dd HH:mm:ss");
}

/// Copies with their running numbers: "7: 15 11:59:01, 8: …".
QList<SafetyCopies::Name> copies(const char *list) {
  QList<SafetyCopies::Name> all;
  for (const QString &copy : QString::fromLatin1(list).split(", ", Qt::SkipEmptyParts))
    all << SafetyCopies::Name{copy.section(": ", 0, 0).toInt(), at(copy.section(": ", 1))};
  return all;
}

/// The data location of the user and the data folder are folders of the test; `last` is the run that died.
struct SafetyOfARace : StoreTest {
  SafetyOfARace() {
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    test.addAthlete("BERGER Karl", 2010, 1);
    test.addRace("Kinderrennen");
    test.enter(1, 1);
    RennDatenSpeichern(store);
    run();
  }

  /// A run of the program that keeps its copies.
  void run() {
    again.reset();
    last.reset();
    last.emplace(store, worker);
    last->claim();
    last->start();
  }

  void type(double time) {
    store.Teilnehmer[1].Zeit1 = time;
    last->tick();
    last->wait();
  }

  static QList<Safety::Offer> offersOf(Safety &safety) {
    QList<Safety::Offer> all;
    safety.offerLeftBehind([&all](const Safety::Offer &offer) { all << offer; });
    return all;
  }

  /// The program dies without a word, and starts again in the same folder.
  QList<Safety::Offer> offers() {
    last.reset();
    again.reset();
    next.DatenOrdner = store.DatenOrdner;
    again.emplace(next, worker);
    again->claim();
    return offersOf(*again);
  }
  std::optional<Safety::Offer> startAgain() {
    const auto all = offers();
    EXPECT_LE(all.size(), 1);
    return all.isEmpty() ? std::nullopt : std::optional(all.first());
  }

  /// The folder of this safety, and a folder in it.
  QString safetyFolder(const QString &name = {}) const {
    const QString all = home.path() + QString("/VEXT/Sicherung/");
    return all + folders(all, "*").value(0) + u'/' + name;
  }
  QString runningCopy() const {
    const QString all = safetyFolder("Laufend/");
    return all + folders(all, "*").value(0);
  }

  void expectTakenOver() {
    const auto offer = startAgain();
    ASSERT_TRUE(offer);
    offer->accepted();
    EXPECT_EQ(timeInFile(), store.Teilnehmer[1].Zeit1);
  }

  double timeInFile() {
    Store read(test.umgebung);
    read.DatenOrdner = store.DatenOrdner;
    read.AktRennen = 1;
    RennDatenLaden(read);
    return read.Teilnehmer[1].Zeit1;
  }

  static QStringList folders(const QString &under, const QString &pattern) {
    return QDir(under).entryList({pattern}, QDir::Dirs | QDir::NoDotAndDotDot);
  }
  QStringList rescues() const { return folders(test.folder.path(), "Rettung *"); }

  QTemporaryDir home;
  Store next{test.umgebung};
  DiskWorker worker;
  std::optional<Safety> last, again;
};

} // namespace

TEST(SafetyCopies, FewerAreKeptTheOlderTheyAre) {
  const struct {
    const char *what, *copies, *gone;
  } cases[] = {
      {"the newest three of one minute", "1: 15 11:59:01, 2: 15 11:59:02, 3: 15 11:59:03, 4: 15 11:59:04",
       "1: 15 11:59:01"},
      {"many starts do not push out yesterday",
       "1: 14 18:00:00, 2: 14 18:30:00, 3: 15 11:01:00, 4: 15 11:02:00, 5: 15 11:03:00, 6: 15 11:04:00, 7: 15 11:05:00",
       "4: 15 11:02:00, 3: 15 11:01:00, 1: 14 18:00:00"},
      {"one an hour for a day, then one a day",
       "1: 14 10:10:00, 2: 14 11:10:00, 3: 14 12:10:00, 4: 14 13:10:00, 5: 15 11:57:00, 6: 15 11:58:00, 7: 15 11:59:00",
       "2: 14 11:10:00, 1: 14 10:10:00"},
      {"a fortnight", "1: 01 10:00:00, 2: 02 10:00:00, 3: 13 10:00:00, 4: 14 10:00:00, 5: 15 10:00:00",
       "1: 01 10:00:00"},
      {"a few old ones stay", "1: 01 10:00:00, 2: 01 10:00:01, 3: 01 10:00:02", ""},
      {"a clock set back by two hours",
       "1: 15 13:57:00, 2: 15 13:58:00, 3: 15 13:59:00, 4: 15 11:59:00, 5: 15 12:00:00",
       "2: 15 13:58:00, 1: 15 13:57:00"},
      {"those without a number are the oldest", "0: 15 11:59:00, 1: 15 11:58:00, 2: 15 11:58:01, 3: 15 11:58:02",
       "0: 15 11:59:00"}};
  for (const auto &[what, all, gone] : cases)
    EXPECT_EQ(outgrown(copies(all), at("15 12:00:00")), copies(gone)) << what;
}

TEST_F(SafetyOfARace, CopiesAreMadeOfWhatChangedAndFailuresAreTold) {
  std::mutex writing;
  SafetyCopies copies(test.folder.path(), home.path() + QString("/Kopien"));
  const QString all = home.path() + QString("/Kopien/");
  copies.make(at("15 10:00:00"), writing);
  copies.make(at("15 10:00:01"), writing);
  type(1);
  RennDatenSpeichern(store);
  mkfifo(QFile::encodeName(test.folder.filePath("R 9.dat")).constData(), 0600);
  EXPECT_THROW(copies.make(at("15 10:00:02"), writing), Fault);
  const QStringList made = folders(all, "*");
  ASSERT_EQ(made.size(), 2);
  EXPECT_NE(readFile(all + made[0] + QString("/R 1.dat")), test.file("R 1.dat"));
  for (const char *name : {"R 1.dat", "Laeufer.rec"})
    EXPECT_EQ(readFile(all + made[1] + u'/' + QLatin1String(name)), test.file(name));
  const QString taken = home.path() + QString("/besetzt");
  writeFile(taken, {});
  EXPECT_THROW(SafetyCopies(test.folder.path(), taken).make(at("15 10:00:03"), writing), Fault);
}

TEST_F(SafetyOfARace, TimesOfADeadRunAreOfferedOnceAndTakenOver) {
  const QByteArray before = test.file("R 1.dat");
  store.MannschaftName[3] = "Eisbären";
  store.Rennen.ZweiDurchgaenge = 1;
  last->screens = [] { return QList<SavedFile>{{"Cup.dat", "Cup\r\n"}, {noteName(), "Zeit „46,3“ bei Nr. 28\n"}}; };
  type(63.45);
  const auto offer = startAgain();
  ASSERT_TRUE(offer);
  for (const char *part : {"1 „Kinderrennen“", "Zeit „46,3“ bei Nr. 28", "Cup.dat", "M 1.lst"})
    EXPECT_TRUE(offer->text.contains(part)) << part << " in " << offer->text.toStdString();
  EXPECT_EQ(test.file("R 1.dat"), before);
  offer->accepted();
  EXPECT_EQ(timeInFile(), 63.45);
  EXPECT_TRUE(test.file("M 1.lst").startsWith("\r\n\r\nEisb\xe4ren\r\n"));
  EXPECT_EQ(test.file("Cup.dat"), "Cup\r\n");
  EXPECT_EQ(test.file("Rennen.rec").at(332), '\1');
  ASSERT_EQ(rescues().size(), 1);
  const QString folder = test.folder.filePath(rescues()[0]);
  EXPECT_EQ(readFile(folder + QString("/R 1.dat vorher")), before);
  EXPECT_FALSE(startAgain());
  EXPECT_EQ(rescues().size(), 1);
  // Birth dates and names are nobody else's business.
  for (const QString &path : {folder, safetyFolder()})
    EXPECT_FALSE(QFile::permissions(path) & (QFileDevice::ReadGroup | QFileDevice::ReadOther)) << path.toStdString();
  EXPECT_FALSE(QFile::permissions(folder + QString("/R 1.dat")) & QFileDevice::ReadOther);
}

TEST_F(SafetyOfARace, ADamagedCopyIsKeptAndOfferedAsFarAsItCanBeRead) {
  const std::pair<const char *, QString> cases[] = {{"a flipped bit", "K 1.lst"}, {"no manifest", "Inhalt.txt"}};
  for (const auto &[name, file] : cases) {
    SCOPED_TRACE(name);
    RennDatenLaden(store);
    run();
    store.KlasseGenauName[3] = QString::fromLatin1(name);
    type(store.Teilnehmer[1].Zeit1 + 1);
    const QString path = runningCopy() + u'/' + file;
    const QByteArray whole = readFile(path);
    writeFile(path, QByteArray(whole).replace("1", "2"));
    for (int start = 0; start < 2; ++start) {
      const auto offer = startAgain();
      ASSERT_TRUE(offer);
      EXPECT_TRUE(offer->text.contains(file)) << offer->text.toStdString();
    }
    offers().first().accepted();
    EXPECT_EQ(timeInFile() == store.Teilnehmer[1].Zeit1, file != "Inhalt.txt");
    EXPECT_FALSE(startAgain());
    // Later the disk reads it after all.
    const QString aside = safetyFolder("Beschaedigt/");
    writeFile(aside + folders(aside, "*").last() + u'/' + file, whole);
    expectTakenOver();
    EXPECT_EQ(folders(aside, "*"), QStringList());
  }
}

TEST_F(SafetyOfARace, WhatCannotBeReadAtAllIsPutAside) {
  writeFile(safetyFolder("Laufend"), "kein Ordner");
  EXPECT_FALSE(startAgain());
  run();
  type(63.45);
  EXPECT_TRUE(startAgain());
  EXPECT_EQ(filesIn(safetyFolder("Beschaedigt")).size(), 1);
}

TEST_F(SafetyOfARace, NothingIsOfferedWithoutNews) {
  const std::vector<std::pair<const char *, std::function<void()>>> cases = {
      {"saved", [&] { type(1), RennDatenSpeichern(store); }},
      {"clean end", [&] { type(2), last->finish(); }},
      {"only opened, without a class file",
       [&] {
         QFile::remove(store.DatenOrdner + QString("K 1.lst"));
         store.KlasseReihenfolge(3, 1, 0, 0) = 7;
         RennDatenLaden(store);
         last->tick();
       }},
      {"deleted",
       [&] {
         type(3);
         for (const char letter : {'R', 'K'})
           QFile::remove(raceFileName(store, letter, 1));
         RennenLeeren(store);
         RennenSchreiben(store);
       }},
      {"half loaded",
       [&] {
         test.writeFile("R 1.dat", " 1 \r\n 7 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n0\r\nabc\r\n");
         EXPECT_THROW(RennDatenLaden(store), ConversionFault);
         EXPECT_TRUE(last->rescue().contains("nichts"));
       }},
  };
  for (const auto &[name, die] : cases) {
    SCOPED_TRACE(name);
    run();
    die();
    EXPECT_FALSE(startAgain());
    again.reset();
  }
}

TEST_F(SafetyOfARace, AFaultRescuesAtOnceAndIsRescuedOnlyOnce) {
  store.Teilnehmer[1].Zeit1 = 63.45;
  EXPECT_TRUE(last->rescue().contains(rescues().value(0)));
  std::optional<Safety::Offer> offer;
  for (int start = 0; start < 2; ++start) {
    offer = startAgain();
    ASSERT_TRUE(offer);
    ASSERT_EQ(rescues().size(), 1);
    EXPECT_TRUE(offer->text.contains(rescues()[0]));
  }
  offer->declined();
  EXPECT_FALSE(startAgain());
}

// A copy over race 2 dies before its last file.
TEST_F(SafetyOfARace, AHalfCopyOverARaceIsFinishedOrTakenBack) {
  for (const bool finish : {true, false}) {
    SCOPED_TRACE(finish);
    copyRace(store, 2, "alt", true);
    last->wait();
    QList<QByteArray> before, after;
    const QStringList names{"R 2.dat", "K 2.lst", "Rennen.rec"};
    for (const auto &name : names)
      before << test.file(name);
    store.Teilnehmer[1].Zeit1 += 1;
    store.KlasseName[3] += "neu";
    store.afterReplacing = [] {};
    copyRace(store, 2, "neu", true);
    for (const auto &name : names)
      after << test.file(name);
    test.writeFile("K 2.lst", before[1].left(100));
    const auto offer = startAgain();
    ASSERT_TRUE(offer);
    (finish ? offer->accepted : offer->declined)();
    for (qsizetype i = 0; i < names.size(); ++i)
      EXPECT_EQ(test.file(names[i]), (finish ? after : before)[i]) << names[i].toStdString();
    EXPECT_FALSE(startAgain());
    again.reset();
    openRecordFiles(store);
    run();
  }
}

// Entries fill a free record, add one behind it and a club, and die at any point; a time that was typed before is
// offered all the same.
TEST_F(SafetyOfARace, HalfTakenEntriesAreFinishedOrTakenBack) {
  test.addAthlete(QString(), 1950, 1);
  const QStringList names{QStringLiteral("Verein.rec"), QStringLiteral("Laeufer.rec"), QStringLiteral("Vext.dat")};
  const auto files = [&] { return QList{test.file(names[0]), test.file(names[1]), test.file(names[2])}; };
  const auto put = [&](const QList<QByteArray> &bytes) {
    for (qsizetype i = 0; i < names.size(); ++i)
      test.writeFile(names[i], bytes[i]);
  };
  const auto before = files();
  const auto take = [&] {
    const Table table = tableFrom("Name;Jg;Verein\nNeu Udo;2012;SC X\nAlt Ida;2011;SC X\n", QStringLiteral("M.csv"));
    EntryPlan plan = planFor(store, entriesOf(table, recognisedColumns(table), QDate(2026, 1, 15)));
    plan.unknownClubs.first().club = ClubAnswer::MakeNew;
    store.afterReplacing = [] {};
    takeOver(store, plan, false);
  };
  take();
  const auto after = files();
  const QByteArray appended = before[1] + after[1].mid(before[1].size());
  const QList<QList<QByteArray>> deaths{before,
                                        {after[0], before[1], before[2]},
                                        {after[0], appended.chopped(100), before[2]},
                                        {after[0], appended, before[2]},
                                        {after[0], after[1], before[2]},
                                        after};
  double time = 60;
  for (const auto &death : deaths)
    for (const bool finish : {true, false}) {
      SCOPED_TRACE(testing::Message() << deaths.indexOf(death) << finish);
      put(before);
      ZustandLesen(store);
      openRecordFiles(store);
      run();
      type(++time);
      take();
      put(death);
      const auto asked = offers();
      const bool half = death != before && death != after;
      ASSERT_EQ(asked.size(), half ? 2 : 1);
      EXPECT_TRUE(asked.last().text.contains(QStringLiteral("R 1.dat"))) << asked.last().text.toStdString();
      asked.last().declined();
      if (half)
        (finish ? asked[0].accepted : asked[0].declined)();
      EXPECT_EQ(files(), half ? finish ? after : before : death);
      EXPECT_FALSE(startAgain());
    }
}

TEST_F(SafetyOfARace, CountsThatVextDatLostComeFromTheSafetyCopy) {
  last->copyAll();
  last->wait();
  const std::pair<const char *, bool> cases[] = {
      {"", true}, {" 1 \r\n", true}, {" 1 \r\n 0 \r\n 1 \r\n 0 \r\n", false}, {" 0 \r\n 0 \r\n 0 \r\n 0 \r\n", false}};
  for (const auto &[state, asked] : cases) {
    SCOPED_TRACE(state);
    test.writeFile("Vext.dat", state);
    offers();
    const auto offer = again->lostCounts();
    ASSERT_EQ(offer.has_value(), asked);
    if (!asked)
      continue;
    offer->accepted();
    EXPECT_EQ(test.file("Vext.dat"), " 1 \r\n 0 \r\n 1 \r\n 0 \r\n");
  }
  QFile::remove(store.DatenOrdner + QString("Vext.dat"));
  offers();
  EXPECT_FALSE(again->lostCounts());
}

TEST_F(SafetyOfARace, FoldersAndRunningProgramsDoNotMixUp) {
  type(63.45);
  TestStore elsewhere;
  Safety other(elsewhere.store, worker);
  EXPECT_TRUE(other.claim());
  EXPECT_TRUE(offersOf(other).isEmpty());
  Safety second(store, worker);
  QString line;
  second.hint = [&](const QString &text) { line = text; };
  EXPECT_FALSE(second.claim());
  EXPECT_TRUE(offersOf(second).isEmpty());
  second.start();
  EXPECT_TRUE(line.contains("läuft in diesem Ordner schon")) << line.toStdString();
  second.finish();
  EXPECT_TRUE(startAgain());
}

TEST_F(SafetyOfARace, ALockOfADeadProgramHoldsNobodyWhateverItHolds) {
  for (const char *content : {"", "1\nvext\nhost\n"}) {
    type(63.45);
    last.reset();
    writeFile(safetyFolder("VEXT.lock"), content);
    EXPECT_TRUE(startAgain());
    again.reset();
    run();
  }
}

TEST_F(SafetyOfARace, AFolderThatWasRenamedFindsItsCopies) {
  type(63.45);
  const QString moved = test.folder.path() + QString(" umbenannt");
  last.reset();
  ASSERT_TRUE(QDir().rename(test.folder.path(), moved));
  store.DatenOrdner = moved + u'/';
  expectTakenOver();
  QDir().rename(moved, test.folder.path());
}

TEST_F(SafetyOfARace, TroubleIsALineForTheScreensUntilItIsGone) {
  QStringList lines;
  last->hint = [&](const QString &text) { lines << text; };
  const QString running = safetyFolder("Laufend");
  writeFile(running, {});
  type(1);
  QFile::remove(running);
  type(2);
  ASSERT_EQ(lines.size(), 2);
  EXPECT_TRUE(lines[0].startsWith("Die laufende Sicherung ist nicht gelungen.")) << lines[0].toStdString();
  EXPECT_EQ(lines[1], QString());
}

TEST_F(SafetyOfARace, TheJournalNotesRecordsAndTheLastTimesAndTellsTheMenuOfItsTrouble) {
  QStringList lines, menu;
  last->hint = [&](const QString &text) { lines << text; };
  last->journalHint = [&](const QString &text) { menu << text; };
  const QString folder = test.folder.filePath("Protokoll");
  last->wait(); // for the first look at the registers
  writeFile(folder, {});
  test.addAthlete("NEU Eva", 2012, 0);
  type(1);
  QFile::remove(folder);
  type(2);
  ASSERT_EQ(menu.size(), 2);
  EXPECT_TRUE(menu[0].startsWith("Der Eintrag ins Protokoll")) << menu[0].toStdString();
  EXPECT_EQ(menu[1], QString());
  EXPECT_EQ(lines, QStringList());
  store.Teilnehmer[1].Zeit1 = 63.45;
  last->finish();
  const QByteArray all = readFile(folder + u'/' + filesIn(folder).value(0));
  for (const char *part : {";;;NEU Eva;Name;;NEU Eva\r\n", ";1;1;BERGER Karl;Zeit 1;;1,00\r\n", "2,00;1:03,45\r\n"})
    EXPECT_TRUE(all.contains(part)) << part << " in " << all.toStdString();
}
