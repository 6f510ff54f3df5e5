#include "support/RealProgram.h"
#include "support/TestStore.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

// The real program at a window manager, with a person at its screens (see support/Operator.cpp).

namespace {

constexpr int Patience = 60'000; // milliseconds, for a busy machine

class Windows : public testing::Test {
protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable(QStringLiteral("openbox")).isEmpty() ||
        QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty())
      GTEST_SKIP() << "needs openbox and Xvfb";
    server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                                          QStringLiteral("0"), QStringLiteral("1366x768x24")});
    ASSERT_TRUE(server.waitForReadyRead(Patience));
    display = QLatin1Char(':') + QString::fromLatin1(server.readLine()).trimmed();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display);
    manager.setProcessEnvironment(environment);
    manager.start(QStringLiteral("openbox"), QStringList());
    ASSERT_TRUE(manager.waitForStarted(Patience));
    test.addRace(QStringLiteral("Kinderrennen"));
  }

  ~Windows() override {
    for (auto *process : {&manager, &server}) {
      process->kill();
      process->waitForFinished(Patience);
    }
  }

  /// The places after the program has run with these steps.
  QByteArray places(const QString &steps) {
    auto environment = realProgram(home.path(), steps);
    for (const auto &[name, value] :
         std::initializer_list<std::pair<const char *, QString>>{{"DISPLAY", display},
                                                                 {"QT_QPA_PLATFORM", QStringLiteral("xcb")},
                                                                 {"OPERATOR_PACE", QStringLiteral("200")}})
      environment.insert(QLatin1String(name), value);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(test.folder.path());
    program.start(QStringLiteral(VEXT_PROGRAM), QStringList());
    EXPECT_TRUE(program.waitForFinished(Patience));
    EXPECT_EQ(program.exitCode(), 0);
    return test.file(QStringLiteral("TopLeft.dat"));
  }

  QTemporaryDir home;
  TestStore test;
  QString display;
  QProcess server, manager;
};

// A place taken for that of the contents would put the screen lower by its title bar each time.
TEST_F(Windows, OpenedAndClosedUnmovedTheyStayWhereTheyAre) {
  const auto round = QStringLiteral("Form1.Command3 click\nForm4.Command5 click\nForm6 close\n"
                                    "Form4.Command6 click\nForm7.Check1 click\nForm13 close\nForm7 close\n"
                                    "Form4.Command15 click\nForm15 close\nForm4 close\n");
  const auto exit = QStringLiteral("Form1.Command4 click\n");
  const QByteArray first = places(round + exit);
  ASSERT_FALSE(first.isEmpty());
  EXPECT_EQ(places(round + round + exit), first);
}

} // namespace
