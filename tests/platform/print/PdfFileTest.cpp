#include "platform/print/PdfFile.h"

#include "platform/Files.h"
#include "support/Print.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace {

const QDateTime When(QDate(2026, 1, 15), QTime(14, 30, 5));

Recording document() {
  Recording recording;
  recording.name = "Ergebnisliste/Übung";
  recording.race = 7;
  recording.title = "Jugendcup – Übung";
  const QString picture = ":/kopf1.jpg";
  const PrintPage page{TextOperation{20, 20, {"Times", 18}, "Größe Äöüß"},
                       TextOperation{20, 65, {"Fraktur BT", 85}, "Urkunde"},
                       PictureOperation{191, 11, 5.5, 18, picture, QImage(picture)}};
  recording.pages = {page, page, page};
  return recording;
}

QString outputOf(const char *tool, const QStringList &arguments) {
  QProcess process;
  process.start(tool, arguments);
  EXPECT_TRUE(process.waitForFinished()) << tool << " is not installed";
  return process.readAllStandardOutput();
}

} // namespace

TEST(PdfFileTest, IsNamedByRaceDocumentAndTimeAndWritesOverNothing) {
  const QTemporaryDir folder;
  const QString target = folder.path() + QString("/Ausdrucke");
  const QString first = target + QString("/7 Ergebnisliste-Übung 2026-01-15 14-30-05");
  EXPECT_EQ(pdfPrinter(target, [] { return When; }).print(document()), first + QString(".pdf"));
  EXPECT_EQ(pdfPrinter(target, [] { return When; }).print(document()), first + QString(" (2).pdf"));
  EXPECT_EQ(readFile(first + QString(".pdf")).count("/Subtype /Image"), 1) << "one picture for all pages";
  const QString second = first + QString(" (2).pdf");
  const QString text = outputOf("pdftotext", {second, "-"});
  EXPECT_TRUE(text.count("Größe Äöüß") == 3 && text.count("Urkunde") == 3);
  EXPECT_TRUE(outputOf("pdfinfo", {second}).contains(document().title));
}

TEST(PdfFileTest, AFullDiskIsAFaultOfPrintingAndLeavesNoCutOffFile) {
  const QTemporaryDir folder;
  Printers printers([] { return SystemPrinters(); }, {pdfPrinter(folder.path(), [] { return When; })});
  rlimit before;
  getrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{4096, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_THROW(printers.print(document()), PrintFault);
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_TRUE(QDir(folder.path()).isEmpty() && printers.outcome().files.isEmpty());
}
