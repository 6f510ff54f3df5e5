#include "core/RaceFiles.h"
#include "platform/Files.h"
#include "support/RealProgram.h"
#include "support/StoreTest.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

// The real program, with a person at its screens (see support/Operator.cpp), dies in many ways; the next start must
// bring every time back.

namespace {

constexpr int Patience = 20'000; // milliseconds, for a busy machine
const auto OpenTiming = QString("Form1.Command3 click\nForm4.Command6 click\n");
const auto TypeTime = OpenTiming + QString("Form7.List2 line 0\nForm7.Text1 type 63,45\nForm7.Text1 key\n");
const auto SaveOnWord = QString("Form7 await weiter\nForm7.Command3 click\n");
const auto CloseReport = QString("Fehlerbericht press Schließen\n");
const auto Exit = QString("Form1.Command4 click\n");

struct DyingProgram : testing::Test {
  DyingProgram() {
    test.addAthlete("BERGER Karl", 2010, 1);
    test.addRace("Kinderrennen");
    test.enter(1, 1);
    RennDatenSpeichern(test.store);
  }

  ~DyingProgram() override { kill(); }

  void start(const QString &steps) {
    program.setProcessEnvironment(realProgram(home.path(), steps));
    program.setWorkingDirectory(test.folder.path());
    program.start(VEXT_PROGRAM, QStringList());
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
    ASSERT_FALSE(test.file("R 1.dat").contains("63,45"));
  }

  void goOn() { test.writeFile("weiter", {}); }

  /// The R file of the running copy that stands.
  QByteArray runningCopy() const {
    QDirIterator files(home.path() + QString("/VEXT/Sicherung"), {"R 1.dat"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
      if (const QString path = files.next(); path.contains("/Laufend/0"))
        return readIfThere(path).value_or(QByteArray());
    return {};
  }

  QStringList rescues() const { return QDir(test.folder.path()).entryList({"Rettung *"}, QDir::Dirs); }

  /// The next start offers the rescue; taken over, the race opens with its time. The start after it offers nothing.
  void expectTimeComesBack() {
    run(QString("Rettung press Übernehmen\n") + Exit);
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

} // namespace

TEST_F(DyingProgram, AFullDiskIsReportedAndLosesNoTime) {
  typeUntilCopied(SaveOnWord + CloseReport);
  const QByteArray file = QFile::encodeName(test.folder.filePath("R 1.dat"));
  ASSERT_TRUE(::remove(file.constData()) == 0 && symlink("/dev/full", file.constData()) == 0);
  goOn();
  const QString report = end();
  EXPECT_EQ(program.exitCode(), 70);
  EXPECT_TRUE(report.contains("R 1.dat") && report.contains("kein Platz mehr")) << report.toStdString();
  ::remove(file.constData());
  expectTimeComesBack();
  EXPECT_EQ(rescues().size(), 1);
}

// Not even the rescue finds room: the running copy of two seconds ago is what is left.
TEST_F(DyingProgram, NoFileMayGrowAnyMore) {
  typeUntilCopied(SaveOnWord + CloseReport);
  const rlimit limit{50, 50};
  ASSERT_EQ(prlimit(pid_t(program.processId()), RLIMIT_FSIZE, &limit, nullptr), 0);
  goOn();
  const QString report = end();
  EXPECT_EQ(program.exitCode(), 70);
  EXPECT_TRUE(report.contains("darf nicht größer werden")) << report.toStdString();
  EXPECT_TRUE(report.contains("/Laufend/")) << report.toStdString();
  EXPECT_EQ(rescues(), QStringList());
  expectTimeComesBack();
}

TEST_F(DyingProgram, TheOperatorMayLeaveAllAsItIs) {
  typeUntilCopied({});
  kill();
  const QByteArray before = test.file("R 1.dat");
  run(QString("Rettung press Alles lassen, wie es ist\n") + Exit);
  run(Exit);
  EXPECT_EQ(program.exitCode(), 0);
  EXPECT_EQ(test.file("R 1.dat"), before);
  EXPECT_TRUE(test.file(rescues().value(0) + QString("/R 1.dat")).contains("63,45"));
}

TEST_F(DyingProgram, ARaceFileThatIsNoRaceFileIsLeftAlone) {
  const QByteArray r = test.file("R 1.dat").replace("\r\n0\r\n 0 \r\n", "\r\nabc\r\n 0 \r\n");
  test.writeFile("R 1.dat", r);
  const QString report = run(QString("Form1.Command3 click\n") + CloseReport);
  EXPECT_EQ(program.exitCode(), 70);
  EXPECT_TRUE(report.contains("R 1.dat“ steht in Zeile 8 „abc“")) << report.toStdString();
  EXPECT_EQ(test.file("R 1.dat"), r);
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
  EXPECT_TRUE(report.contains("BERGER Karl")) << report.toStdString();
}
