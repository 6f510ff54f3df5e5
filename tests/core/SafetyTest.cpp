#include "core/Safety.h"

#include "core/RaceFiles.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "support/TestStore.h"

#include <QDir>

namespace {

QDateTime at(const char *time) {
  return QDateTime::fromString(QString::fromLatin1(time), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

struct Ageing {
  const char *name;
  QList<const char *> copies, gone;
};
void PrintTo(const Ageing &ageing, std::ostream *out) {
  *out << ageing.name;
}

class SafetyCopiesAge : public testing::TestWithParam<Ageing> {};

/// The data location of the user and the data folder are folders of the test; `last` is the run that died.
class SafetyOfARace : public testing::Test {
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

  QStringList folders(const QString &under, const QString &pattern) const {
    return QDir(under).entryList({pattern}, QDir::Dirs | QDir::NoDotAndDotDot);
  }

  QString safetyFolder() const {
    const QString all = home.path() + QStringLiteral("/VEXT/Sicherung/");
    return all + folders(all, QStringLiteral("*")).value(0);
  }

  QTemporaryDir home;
  TestStore test;
  Store &store = test.store;
  Store next{test.umgebung};
  std::optional<Safety> last, again;
};

} // namespace

TEST_P(SafetyCopiesAge, KeepsFewerTheOlderTheyAre) {
  QList<QDateTime> copies, gone;
  for (const char *time : GetParam().copies)
    copies << at(time);
  for (const char *time : GetParam().gone)
    gone << at(time);
  EXPECT_EQ(outgrown(copies, at("2026-01-15 12:00:00")), gone);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SafetyCopiesAge,
    testing::Values(Ageing{"newestThreeOfOneMinute",
                           {"2026-01-15 11:59:01", "2026-01-15 11:59:02", "2026-01-15 11:59:03", "2026-01-15 11:59:04"},
                           {"2026-01-15 11:59:01"}},
                    Ageing{"tenStartsDoNotPushOutYesterday",
                           {"2026-01-14 18:00:00", "2026-01-14 18:30:00", "2026-01-15 11:01:00", "2026-01-15 11:02:00",
                            "2026-01-15 11:03:00", "2026-01-15 11:04:00", "2026-01-15 11:05:00"},
                           {"2026-01-15 11:02:00", "2026-01-15 11:01:00", "2026-01-14 18:00:00"}},
                    Ageing{"anHourEachForADayThenADayEach",
                           {"2026-01-14 10:10:00", "2026-01-14 11:10:00", "2026-01-14 12:10:00", "2026-01-14 13:10:00",
                            "2026-01-15 11:57:00", "2026-01-15 11:58:00", "2026-01-15 11:59:00"},
                           {"2026-01-14 11:10:00", "2026-01-14 10:10:00"}},
                    Ageing{"aFortnight",
                           {"2026-01-01 10:00:00", "2026-01-02 10:00:00", "2026-01-13 10:00:00", "2026-01-14 10:00:00",
                            "2026-01-15 10:00:00"},
                           {"2026-01-01 10:00:00"}},
                    Ageing{
                        "fewOldOnesStay", {"2020-01-01 10:00:00", "2020-01-01 10:00:01", "2020-01-01 10:00:02"}, {}}),
    [](const auto &ageing) { return std::string(ageing.param.name); });

TEST_F(SafetyOfARace, CopiesAreMadeOfWhatChangedAndFailuresAreTold) {
  SafetyCopies copies(test.folder.path(), home.path() + QStringLiteral("/Kopien"));
  copies.make(at("2026-01-15 10:00:00"));
  copies.make(at("2026-01-15 10:00:01"));
  type(1);
  RennDatenSpeichern(store);
  copies.make(at("2026-01-15 10:00:02"));
  const QString all = home.path() + QStringLiteral("/Kopien");
  ASSERT_EQ(folders(all, QStringLiteral("*")).size(), 2);
  const auto in = [&](int i, const char *name) {
    return readFile(all + QLatin1Char('/') + folders(all, QStringLiteral("*"))[i] + QLatin1String(name));
  };
  EXPECT_NE(in(0, "/R 1.dat"), in(1, "/R 1.dat"));
  EXPECT_EQ(in(1, "/R 1.dat"), test.file(QStringLiteral("R 1.dat")));
  EXPECT_EQ(in(1, "/Laeufer.rec"), test.file(QStringLiteral("Laeufer.rec")));
  writeFile(home.path() + QStringLiteral("/besetzt"), {});
  EXPECT_THROW(
      SafetyCopies(test.folder.path(), home.path() + QStringLiteral("/besetzt")).make(at("2026-01-15 10:00:03")),
      FileFault);
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
  EXPECT_EQ(folders(test.folder.path(), QStringLiteral("Rettung *")).size(), 1);
}

TEST_F(SafetyOfARace, HalfASaveIsRescuedAndAHalfCopyIsNot) {
  type(63.45);
  test.writeFile(QStringLiteral("R 1.dat"), test.file(QStringLiteral("R 1.dat")).left(40));
  const QString running = safetyFolder() + QStringLiteral("/Laufend/");
  QDir().mkpath(running + QStringLiteral("99999998"));
  writeFile(running + QStringLiteral("99999998/R 1.dat"), " 1 \r\n");
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
  EXPECT_TRUE(last->rescue().contains(folders(test.folder.path(), QStringLiteral("Rettung *")).value(0)));
  for (int start = 0; start < 2; ++start) {
    const auto rescue = startAgain();
    ASSERT_TRUE(rescue);
    EXPECT_EQ(folders(test.folder.path(), QStringLiteral("Rettung *")), QStringList(QDir(rescue->folder).dirName()));
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
