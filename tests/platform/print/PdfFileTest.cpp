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
  recording.name = QStringLiteral("Ergebnisliste/Übung");
  recording.race = 7;
  recording.title = QStringLiteral("Jugendcup – Übung");
  const QString picture = QStringLiteral(":/kopf1.jpg");
  const PrintPage page{TextOperation{20, 20, {QStringLiteral("Times"), 18}, QStringLiteral("Größe Äöüß")},
                       TextOperation{20, 65, {QStringLiteral("Fraktur BT"), 85}, QStringLiteral("Urkunde")},
                       PictureOperation{191, 11, 5.5, 18, picture, QImage(picture)}};
  recording.pages = {page, page, page};
  return recording;
}

QString outputOf(const char *tool, const QStringList &arguments) {
  QProcess process;
  process.start(QLatin1String(tool), arguments);
  EXPECT_TRUE(process.waitForFinished()) << tool << " is not installed";
  return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

TEST(PdfFileTest, IsNamedByRaceDocumentAndTimeAndWritesOverNothing) {
  const QTemporaryDir folder;
  const QString target = folder.path() + QStringLiteral("/Ausdrucke");
  const QString first = target + QStringLiteral("/7 Ergebnisliste-Übung 2026-01-15 14-30-05");
  EXPECT_EQ(pdfPrinter(target, [] { return When; }).print(document()), first + QStringLiteral(".pdf"));
  EXPECT_EQ(pdfPrinter(target, [] { return When; }).print(document()), first + QStringLiteral(" (2).pdf"));
  EXPECT_EQ(readFile(first + QStringLiteral(".pdf")).count("/Subtype /Image"), 1) << "one picture for all pages";
  const QString second = first + QStringLiteral(" (2).pdf");
  const QString text = outputOf("pdftotext", {second, QStringLiteral("-")});
  EXPECT_TRUE(text.count(QStringLiteral("Größe Äöüß")) == 3 && text.count(QStringLiteral("Urkunde")) == 3);
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
