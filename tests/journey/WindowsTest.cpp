#include "support/RealProgram.h"
#include "support/StoreTest.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

// The real program at a window manager, with a person at its screens (see support/Operator.cpp).

namespace {

constexpr int Patience = 60'000; // milliseconds, for a busy machine

struct WindowsTest : testing::Test {
  void SetUp() override {
    if (QStandardPaths::findExecutable("openbox").isEmpty() || QStandardPaths::findExecutable("Xvfb").isEmpty())
      GTEST_SKIP() << "needs openbox and Xvfb";
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1366x768x24"});
    ASSERT_TRUE(server.waitForReadyRead(Patience));
    display = u':' + QString::fromLatin1(server.readLine()).trimmed();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    manager.setProcessEnvironment(environment);
    manager.start("openbox", QStringList());
    ASSERT_TRUE(manager.waitForStarted(Patience));
    test.addRace("Kinderrennen");
  }

  ~WindowsTest() override {
    for (auto *process : {&manager, &server}) {
      process->kill();
      process->waitForFinished(Patience);
    }
  }

  /// The places after the program has run with these steps.
  QByteArray places(const QString &steps) {
    auto environment = realProgram(home.path(), steps);
    for (const auto &[name, value] : std::initializer_list<std::pair<const char *, QString>>{
             {"DISPLAY", display}, {"QT_QPA_PLATFORM", "xcb"}, {"OPERATOR_PACE", "200"}})
      environment.insert(name, value);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(test.folder.path());
    program.start(VEXT_PROGRAM, QStringList());
    EXPECT_TRUE(program.waitForFinished(Patience));
    EXPECT_EQ(program.exitCode(), 0);
    return test.file("TopLeft.dat");
  }

  QTemporaryDir home;
  TestStore test;
  QString display;
  QProcess server, manager;
};

// A place taken for that of the contents would put the screen lower by its title bar each time.
TEST_F(WindowsTest, OpenedAndClosedUnmovedTheyStayWhereTheyAre) {
  const auto round = QString("Form1.Command3 click\nForm4.Command5 click\nForm6 close\n"
                             "Form4.Command6 click\nForm7.Check1 click\nForm13 close\nForm7 close\n"
                             "Form4.Command15 click\nForm15 close\nForm4 close\n");
  const auto exit = QString("Form1.Command4 click\n");
  const QByteArray first = places(round + exit);
  ASSERT_FALSE(first.isEmpty());
  EXPECT_EQ(places(round + round + exit), first);
}

} // namespace
