#include "support/RealProgram.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// A start of the real program and what came of it; the places are below the user's folder.
struct StartCase {
  const char *name;
  const char *workingDirectory;
  QStringList arguments;
  const char *steps;
  int code;
  /// A file that there is afterwards.
  const char *file;
  /// What the settings tell, or what was printed.
  const char *settings, *output;
};

class StartTest : public testing::TestWithParam<StartCase> {};

QByteArray textOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_P(StartTest, FindsItsFolder) {
  const auto &start = GetParam();
  const QTemporaryDir home;
  ASSERT_TRUE(QDir(home.path()).mkpath(QLatin1String(start.workingDirectory)));
  auto environment = realProgram(home.filePath(QStringLiteral("data")), QString::fromUtf8(start.steps));
  environment.insert(QStringLiteral("HOME"), home.path());
  QProcess program;
  program.setProcessEnvironment(environment);
  program.setWorkingDirectory(home.filePath(QLatin1String(start.workingDirectory)));
  program.setProcessChannelMode(QProcess::MergedChannels);
  program.start(QStringLiteral(VEXT_PROGRAM), start.arguments);
  ASSERT_TRUE(program.waitForFinished(60'000));
  const QByteArray output = program.readAll(), settings = textOf(home.filePath(QStringLiteral("data/VEXT/VEXT.ini")));
  EXPECT_EQ(program.exitCode(), start.code);
  EXPECT_TRUE(QFile::exists(home.filePath(QString::fromUtf8(start.file)))) << start.file;
  EXPECT_TRUE(settings.contains(start.settings)) << settings.toStdString();
  EXPECT_TRUE(output.contains(start.output)) << output.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Starts, StartTest,
    testing::Values(
        StartCase{"InAnEmptyFolder", "leer", {}, "Form1 close", 0, "leer/TopLeft.dat", "/leer", ""},
        StartCase{"InTheFolderOfTheCall",
                  ".",
                  {QStringLiteral("."), QStringLiteral("--organisation"), QStringLiteral("SC A, B")},
                  "Form1 close",
                  0,
                  "TopLeft.dat",
                  "1\\OrganisationName=\"SC A, B\"",
                  ""},
        StartCase{"FromTheDesktop",
                  ".",
                  {},
                  "Mappenwahl.neu click\nNeueMappe.veranstalter type SC Neu\nNeueMappe.anlegen click\nForm1 close",
                  0,
                  "Dokumente/VEXT/TopLeft.dat",
                  "1\\OrganisationName=SC Neu",
                  ""},
        StartCase{"WithTheExample",
                  "leer",
                  {QStringLiteral("--auswahl")},
                  "Mappenwahl.beispiel click\nForm1 close",
                  0,
                  "data/VEXT/Beispiel/R 1.dat",
                  "Schiclub Tannberg",
                  ""},
        StartCase{"InNoFolder",
                  "leer",
                  {QStringLiteral("fort")},
                  "Mappenwahl.beenden click",
                  1,
                  "leer",
                  "",
                  "/leer/fort“ gibt es nicht."},
        StartCase{"ToTellItsVersion", "leer", {QStringLiteral("--version")}, "", 0, "leer", "", "VEXT 2.00"},
        StartCase{"Misspelled", "leer", {QStringLiteral("--organisaton")}, "", 2, "leer", "", "Aufruf: vext"}),
    [](const auto &each) { return each.param.name; });

} // namespace
