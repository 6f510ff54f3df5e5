#include "core/RaceFiles.h"
#include "platform/Files.h"
#include "support/RealProgram.h"
#include "support/TestStore.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

// The real program, with a person at its screens (see support/Operator.cpp), dies in many ways; the next start must
// bring every time back.

namespace {

constexpr int Patience = 20'000; // milliseconds, for a busy machine
const auto OpenTiming = QStringLiteral("Form1.Command3 click\nForm4.Command6 click\n");
const auto TypeTime = OpenTiming + QStringLiteral("Form7.List2 line 0\nForm7.Text1 type 63,45\nForm7.Text1 key\n");
const auto SaveOnWord = QStringLiteral("Form7 await weiter\nForm7.Command3 click\n");
const auto CloseReport = QStringLiteral("Fehlerbericht press Schließen\n");
const auto Exit = QStringLiteral("Form1.Command4 click\n");

class DyingProgram : public testing::Test {
protected:
  DyingProgram() {
    test.addAthlete(QStringLiteral("BERGER Karl"), 2010, 1);
    test.addRace(QStringLiteral("Kinderrennen"));
    test.enter(1, 1);
    RennDatenSpeichern(test.store);
  }

  ~DyingProgram() override { kill(); }

  void start(const QString &steps) {
    program.setProcessEnvironment(realProgram(home.path(), steps));
    program.setWorkingDirectory(test.folder.path());
    program.start(QStringLiteral(VEXT_PROGRAM), QStringList());
  }

  /// Runs the program to its end; gives what it reported. The exit code is in `program`.
  QString run(const QString &steps) {
    start(steps);
    return end();
  }

  QString end() {
    EXPECT_TRUE(program.waitForFinished(Patience));
    return QString::fromLocal8Bit(program.readAllStandardError());
  }

  void kill() {
    program.kill();
    program.waitForFinished(Patience);
  }

  /// Types a time at the screen and waits until the running copy has it; the file of the race has not.
  void typeUntilCopied(const QString &then) {
    start(TypeTime + then);
    ASSERT_TRUE(QTest::qWaitFor([this] { return runningCopy().contains("\r\n63,45\r\n"); }, Patience));
    ASSERT_FALSE(test.file(QStringLiteral("R 1.dat")).contains("63,45"));
  }

  void goOn() { test.writeFile(QStringLiteral("weiter"), {}); }

  /// The R file of the running copy that stands.
  QByteArray runningCopy() const {
    QDirIterator files(home.path() + QStringLiteral("/VEXT/Sicherung"), {QStringLiteral("R 1.dat")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
      if (const QString path = files.next(); path.contains(QStringLiteral("/Laufend/0")))
        return readIfThere(path).value_or(QByteArray());
    return {};
  }

  QStringList rescues() const { return QDir(test.folder.path()).entryList({QStringLiteral("Rettung *")}, QDir::Dirs); }

  /// The next start offers the rescue; taken over, the race opens with its time. The start after it offers nothing.
  void expectTimeComesBack() {
    run(QStringLiteral("Rettung press Übernehmen\n") + Exit);
    EXPECT_EQ(program.exitCode(), 0);
    RennDatenLaden(test.store);
    EXPECT_EQ(test.store.Teilnehmer[1].Zeit1, 63.45);
    run(Exit);
    EXPECT_EQ(program.exitCode(), 0);
  }

  QTemporaryDir home;
  TestStore test;
  QProcess program;
};

struct BadPlace {
  const char *name, *reason;
  void (*spoil)(const QByteArray &path);
};
void PrintTo(const BadPlace &place, std::ostream *out) {
  *out << place.name;
}

class SaveThatFails : public DyingProgram, public testing::WithParamInterface<BadPlace> {};

} // namespace

TEST_P(SaveThatFails, IsReportedAndLosesNoTime) {
  typeUntilCopied(SaveOnWord + CloseReport);
  const QString file = test.folder.filePath(QStringLiteral("R 1.dat"));
  QFile::remove(file);
  GetParam().spoil(QFile::encodeName(file));
  goOn();
  const QString report = end();
  EXPECT_EQ(program.exitCode(), 70);
  EXPECT_TRUE(report.contains(QStringLiteral("R 1.dat"))) << report.toStdString();
  EXPECT_TRUE(report.contains(QString::fromUtf8(GetParam().reason))) << report.toStdString();
  EXPECT_EQ(rescues().size(), 1);
  ::remove(QFile::encodeName(file).constData());
  expectTimeComesBack();
  EXPECT_EQ(rescues().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Places, SaveThatFails,
    testing::Values(BadPlace{"fullDisk", "kein Platz mehr",
                             [](const QByteArray &path) { ASSERT_EQ(symlink("/dev/full", path.constData()), 0); }},
                    BadPlace{"folderInTheWay", "liegt ein Ordner",
                             [](const QByteArray &path) { ASSERT_EQ(mkdir(path.constData(), 0700), 0); }},
                    BadPlace{
                        "noSuchPlace", "gibt es nicht",
                        [](const QByteArray &path) { ASSERT_EQ(symlink("/nowhere/at/all", path.constData()), 0); }}),
    [](const auto &place) { return std::string(place.param.name); });

// Not even the rescue finds room: the running copy of two seconds ago is what is left.
TEST_F(DyingProgram, NoFileMayGrowAnyMore) {
  typeUntilCopied(SaveOnWord + CloseReport);
  const rlimit limit{50, 50};
  ASSERT_EQ(prlimit(pid_t(program.processId()), RLIMIT_FSIZE, &limit, nullptr), 0);
  goOn();
  const QString report = end();
  EXPECT_EQ(program.exitCode(), 70);
  EXPECT_TRUE(report.contains(QStringLiteral("darf nicht größer werden"))) << report.toStdString();
  EXPECT_TRUE(report.contains(QStringLiteral("/Laufend/"))) << report.toStdString();
  EXPECT_EQ(rescues(), QStringList());
  expectTimeComesBack();
}

TEST_F(DyingProgram, KilledWhileTimesAreOnlyInMemory) {
  typeUntilCopied({});
  kill();
  expectTimeComesBack();
}

TEST_F(DyingProgram, TheOperatorMayLeaveAllAsItIs) {
  typeUntilCopied({});
  kill();
  const QByteArray before = test.file(QStringLiteral("R 1.dat"));
  run(QStringLiteral("Rettung press Alles lassen, wie es ist\n") + Exit);
  run(Exit);
  EXPECT_EQ(program.exitCode(), 0);
  EXPECT_EQ(test.file(QStringLiteral("R 1.dat")), before);
  EXPECT_TRUE(test.file(rescues().value(0) + QStringLiteral("/R 1.dat")).contains("63,45"));
}

// A pipe in place of the file takes 64 KiB and then holds the program up in the middle of its write.
TEST_F(DyingProgram, KilledInTheMiddleOfASave) {
  for (int number = 2; number <= 1000; ++number)
    test.enter(test.addAthlete(QStringLiteral("LÄUFER %1").arg(number), 2010, 1), number);
  RennDatenSpeichern(test.store);
  typeUntilCopied(SaveOnWord);
  const QByteArray file = QFile::encodeName(test.folder.filePath(QStringLiteral("R 1.dat")));
  ASSERT_TRUE(::remove(file.constData()) == 0 && mkfifo(file.constData(), 0600) == 0);
  goOn();
  QByteArray written(100'000, '\0');
  const int pipe = open(file.constData(), O_RDONLY);
  const auto first = read(pipe, written.data(), 1000);
  kill();
  auto size = first;
  for (auto more = first; more > 0; size += more)
    more = read(pipe, written.data() + size, size_t(written.size() - size));
  close(pipe);
  ASSERT_GT(first, 0);
  ASSERT_LT(size, 100'000);
  ::remove(file.constData());
  writeFile(QFile::decodeName(file), written.left(size));
  expectTimeComesBack();
  EXPECT_EQ(test.store.Teilnehmer[1000].StartNr, 1000);
}

TEST_F(DyingProgram, ARaceFileThatIsNoRaceFileIsLeftAlone) {
  const QByteArray r = test.file(QStringLiteral("R 1.dat")).replace("\r\n0\r\n 0 \r\n", "\r\nabc\r\n 0 \r\n");
  test.writeFile(QStringLiteral("R 1.dat"), r);
  const QString report = run(QStringLiteral("Form1.Command3 click\n") + CloseReport);
  EXPECT_EQ(program.exitCode(), 70);
  EXPECT_TRUE(report.contains(QStringLiteral("R 1.dat“ steht in Zeile 8 „abc“"))) << report.toStdString();
  EXPECT_EQ(test.file(QStringLiteral("R 1.dat")), r);
  EXPECT_EQ(rescues(), QStringList());
}

TEST_F(DyingProgram, AnAthleteWithoutSexIsNamed) {
  test.store.Rennen.WertGeschlecht = 1;
  RennenSchreiben(test.store);
  LaeuferSatz karl = LaeuferLesen(test.store, 1);
  karl.Geschlecht = 2;
  LaeuferSchreiben(test.store, 1, karl);
  const QString report = run(OpenTiming + CloseReport);
  EXPECT_EQ(program.exitCode(), 70);
  EXPECT_TRUE(report.contains(QStringLiteral("BERGER Karl"))) << report.toStdString();
}
