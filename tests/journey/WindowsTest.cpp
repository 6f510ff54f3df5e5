#include "support/RealProgram.h"
#include "support/StoreTest.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

// The real program at a window manager, with a person at its screens (see support/Operator.cpp).

namespace {

constexpr int Patience = 60'000; // milliseconds, for a busy machine

/// A window manager, with what it is started by.
struct Manager {
  const char *name, *command;
};
void PrintTo(const Manager &manager, std::ostream *out) {
  *out << manager.name;
}

bool isInstalled(const QString &program) {
  return !QStandardPaths::findExecutable(program).isEmpty();
}

class Windows : public testing::TestWithParam<Manager> {
protected:
  void SetUp() override {
    QStringList command = QString::fromLatin1(GetParam().command).split(QLatin1Char(' '));
    if (!isInstalled(QLatin1String(GetParam().name)) || !isInstalled(command[0]) ||
        !isInstalled(QStringLiteral("Xvfb")))
      GTEST_SKIP() << "needs Xvfb and " << GetParam().name;
    server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                                          QStringLiteral("0"), QStringLiteral("1366x768x24")});
    ASSERT_TRUE(server.waitForReadyRead(Patience));
    display = u':' + QString::fromLatin1(server.readLine()).trimmed();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    manager.setProcessEnvironment(environment);
    manager.start(command.takeFirst(), command);
    ASSERT_TRUE(manager.waitForStarted(Patience));
    test.takeOver(QStringLiteral(VEXT_BEISPIEL));
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
    for (const auto &[name, value] : std::initializer_list<std::pair<const char *, QString>>{
             {"DISPLAY", display}, {"QT_QPA_PLATFORM", "xcb"}, {"OPERATOR_PACE", "300"}})
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

/// Opens and closes every screen; Form6 does `more` in between.
QString round(const QString &more = {}) {
  const auto pair = [](const char *opener, const char *button, const char *screen) {
    return QStringLiteral("%1.%2 click\n%3 close\n")
        .arg(QLatin1String(opener), QLatin1String(button), QLatin1String(screen));
  };
  QString steps = pair("Form1", "Command1", "Form3") + pair("Form1", "Command2", "Form2") +
                  QStringLiteral("Form1.Command3 click\nForm4.Command5 click\n") + more +
                  QStringLiteral("Form6 close\n"
                                 "Form4.Command6 click\nForm7.List2 line 1\nForm7.Check1 click\nForm7.Command7 click\n"
                                 "Form18 close\nForm13 close\nForm7 close\nForm4.Command8 click\n") +
                  pair("Form8", "Command6", "Form28") + pair("Form8", "Command10", "Form21") +
                  QStringLiteral("Form8 close\n");
  for (const auto &[button, screen] :
       {std::pair("Command4", "Form5"), std::pair("Command9", "Form9"), std::pair("Command13", "Form10"),
        std::pair("Command10", "Form11"), std::pair("Command11", "Form12"), std::pair("Command14", "Form14"),
        std::pair("Command15", "Form15"), std::pair("Command12", "Form16"), std::pair("Command18", "Form19"),
        std::pair("Command17", "Form20"), std::pair("Command16", "CupKopie")})
    steps += pair("Form4", button, screen);
  return steps + QStringLiteral("Form4 close\n");
}

// A place taken for that of the contents would put the screen lower by its title bar each time.
TEST_P(Windows, OpenedAndClosedUnmovedTheyStayWhereTheyAreAndAMovedOneComesBack) {
  const auto exit = QStringLiteral("Form1.Command4 click\n");
  const QByteArray first = places(round(QStringLiteral("Form6 move 137 31\n")) + exit);
  ASSERT_EQ(first.split('\n').mid(10, 2), (QList<QByteArray>{" 465 \r", " 2055 \r"})); // 15 a pixel
  EXPECT_EQ(places(round() + exit), first);
}

INSTANTIATE_TEST_SUITE_P(Managers, Windows,
                         testing::Values(Manager{"openbox", "openbox"}, Manager{"icewm", "icewm"},
                                         Manager{"xfwm4", "dbus-run-session xfwm4 --compositor=off"}),
                         [](const auto &manager) { return std::string(manager.param.name); });

} // namespace
