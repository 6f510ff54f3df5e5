#include "core/Safety.h"

#include "core/RaceFiles.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "support/TestStore.h"

#include <QDir>

namespace {

/// A time in January 2026.
QDateTime at(const QString &time) {
  return QDateTime::fromString(QStringLiteral("2026-01-") + time, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QList<QDateTime> times(const char *list) {
  QList<QDateTime> all;
  for (const QString &time : QString::fromLatin1(list).split(QStringLiteral(", "), Qt::SkipEmptyParts))
    all << at(time);
  return all;
}

/// The data location of the user and the data folder are folders of the test; `last` is the run that died.
class SafetyOfARace : public StoreTest {
protected:
  SafetyOfARace() {
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    test.addAthlete(QStringLiteral("BERGER Karl"), 2010, 1);
    test.addRace(QStringLiteral("Kinderrennen"));
    test.enter(1, 1);
    RennDatenSpeichern(store);
    last.emplace(store);
  }

  void type(double time) {
    store.Teilnehmer[1].Zeit1 = time;
    last->tick();
  }

  /// The program dies without a word, and starts again in the same folder.
  std::optional<Safety::Rescue> startAgain() {
    last.reset();
    again.reset();
    next.DatenOrdner = store.DatenOrdner;
    again.emplace(next);
    return again->findRescue();
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
  QStringList rescues() const { return folders(test.folder.path(), QStringLiteral("Rettung *")); }

  QTemporaryDir home;
  Store next{test.umgebung};
  std::optional<Safety> last, again;
};

} // namespace

TEST(SafetyCopies, FewerAreKeptTheOlderTheyAre) {
  const struct {
    const char *what, *copies, *gone;
  } cases[] = {{"the newest three of one minute", "15 11:59:01, 15 11:59:02, 15 11:59:03, 15 11:59:04", "15 11:59:01"},
               {"many starts do not push out yesterday",
                "14 18:00:00, 14 18:30:00, 15 11:01:00, 15 11:02:00, 15 11:03:00, 15 11:04:00, 15 11:05:00",
                "15 11:02:00, 15 11:01:00, 14 18:00:00"},
               {"one an hour for a day, then one a day",
                "14 10:10:00, 14 11:10:00, 14 12:10:00, 14 13:10:00, 15 11:57:00, 15 11:58:00, 15 11:59:00",
                "14 11:10:00, 14 10:10:00"},
               {"a fortnight", "01 10:00:00, 02 10:00:00, 13 10:00:00, 14 10:00:00, 15 10:00:00", "01 10:00:00"},
               {"a few old ones stay", "01 10:00:00, 01 10:00:01, 01 10:00:02", ""}};
  for (const auto &[what, copies, gone] : cases)
    EXPECT_EQ(outgrown(times(copies), at(QStringLiteral("15 12:00:00"))), times(gone)) << what;
}

TEST_F(SafetyOfARace, CopiesAreMadeOfWhatChangedAndFailuresAreTold) {
  SafetyCopies copies(test.folder.path(), home.path() + QStringLiteral("/Kopien"));
  const QString all = home.path() + QStringLiteral("/Kopien/");
  copies.make(at(QStringLiteral("15 10:00:00")));
  copies.make(at(QStringLiteral("15 10:00:01")));
  type(1);
  RennDatenSpeichern(store);
  copies.make(at(QStringLiteral("15 10:00:02")));
  const QStringList made = folders(all, QStringLiteral("*"));
  ASSERT_EQ(made.size(), 2);
  EXPECT_NE(readFile(all + made[0] + QStringLiteral("/R 1.dat")), test.file(QStringLiteral("R 1.dat")));
  for (const char *name : {"R 1.dat", "Laeufer.rec"})
    EXPECT_EQ(readFile(all + made[1] + QLatin1Char('/') + QLatin1String(name)), test.file(QLatin1String(name)));
  const QString taken = home.path() + QStringLiteral("/besetzt");
  writeFile(taken, {});
  EXPECT_THROW(SafetyCopies(test.folder.path(), taken).make(at(QStringLiteral("15 10:00:03"))), FileFault);
}

TEST_F(SafetyOfARace, TimesOfADeadRunAreOfferedOnceAndTakenOver) {
  const QByteArray before = test.file(QStringLiteral("R 1.dat"));
  store.MannschaftName[3] = QStringLiteral("Eisbären");
  store.Rennen.ZweiDurchgaenge = 1;
  type(63.45);
  const auto rescue = startAgain();
  ASSERT_TRUE(rescue);
  EXPECT_TRUE(rescue->text.contains(rescue->folder) && rescue->text.contains(QStringLiteral("1 \"Kinderrennen\"")));
  EXPECT_EQ(test.file(QStringLiteral("R 1.dat")), before);
  again->takeOver(*rescue);
  again->settle();
  EXPECT_EQ(timeInFile(), 63.45);
  EXPECT_TRUE(test.file(QStringLiteral("M 1.lst")).startsWith("\r\n\r\nEisb\xe4ren\r\n"));
  EXPECT_EQ(test.file(QStringLiteral("Rennen.rec")).at(332), '\1');
  EXPECT_EQ(readFile(rescue->folder + QStringLiteral("/R 1.dat vorher")), before);
  again.reset();
  EXPECT_FALSE(startAgain());
  EXPECT_EQ(rescues().size(), 1);
}

TEST_F(SafetyOfARace, HalfASaveIsRescuedAndAHalfCopyIsNot) {
  type(63.45);
  test.writeFile(QStringLiteral("R 1.dat"), test.file(QStringLiteral("R 1.dat")).left(40));
  const QString all = home.path() + QStringLiteral("/VEXT/Sicherung/");
  const QString half = all + folders(all, QStringLiteral("*")).value(0) + QStringLiteral("/Laufend/99999998");
  QDir().mkpath(half);
  writeFile(half + QStringLiteral("/R 1.dat"), " 1 \r\n");
  const auto rescue = startAgain();
  ASSERT_TRUE(rescue);
  again->takeOver(*rescue);
  EXPECT_EQ(timeInFile(), 63.45);
}

TEST_F(SafetyOfARace, NothingIsOfferedWithoutNews) {
  const std::vector<std::pair<const char *, std::function<void()>>> cases = {
      {"saved", [&] { type(1), RennDatenSpeichern(store); }},
      {"clean end", [&] { type(2), last->finish(); }},
      {"only opened, without a class file",
       [&] {
         QFile::remove(store.DatenOrdner + QStringLiteral("K 1.lst"));
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
         test.writeFile(QStringLiteral("R 1.dat"), " 1 \r\n 7 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n0\r\nabc\r\n");
         EXPECT_THROW(RennDatenLaden(store), ConversionFault);
         EXPECT_TRUE(last->rescue().contains(QStringLiteral("nichts")));
       }},
  };
  for (const auto &[name, die] : cases) {
    SCOPED_TRACE(name);
    last.reset();
    last.emplace(store);
    die();
    EXPECT_FALSE(startAgain());
    again.reset();
  }
}

TEST_F(SafetyOfARace, AFaultRescuesAtOnceAndIsRescuedOnlyOnce) {
  store.Teilnehmer[1].Zeit1 = 63.45;
  EXPECT_TRUE(last->rescue().contains(rescues().value(0)));
  for (int start = 0; start < 2; ++start) {
    const auto rescue = startAgain();
    ASSERT_TRUE(rescue);
    EXPECT_EQ(rescues(), QStringList(QDir(rescue->folder).dirName()));
  }
  again->settle();
  EXPECT_FALSE(startAgain());
}

TEST_F(SafetyOfARace, FoldersAndRunningProgramsDoNotMixUp) {
  ASSERT_FALSE(last->findRescue());
  type(63.45);
  TestStore elsewhere;
  EXPECT_FALSE(Safety(elsewhere.store).findRescue());
  Safety second(store);
  QString line;
  second.hint = [&](const QString &text) { line = text; };
  EXPECT_FALSE(second.findRescue());
  second.start();
  EXPECT_TRUE(line.contains(QStringLiteral("läuft in diesem Ordner schon"))) << line.toStdString();
  second.finish();
  EXPECT_TRUE(startAgain());
}

TEST_F(SafetyOfARace, TroubleIsALineForTheMenuUntilItIsGone) {
  QStringList lines;
  last->hint = [&](const QString &text) { lines << text; };
  writeFile(home.path() + QStringLiteral("/VEXT"), {});
  type(1);
  QFile::remove(home.path() + QStringLiteral("/VEXT"));
  type(2);
  ASSERT_EQ(lines.size(), 2);
  EXPECT_TRUE(lines[0].startsWith(QStringLiteral("Die laufende Sicherung ist nicht gelungen.")));
  EXPECT_EQ(lines[1], QString());
}
