#include "platform/print/PdfFile.h"

#include "platform/Files.h"
#include "support/Print.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QDateTime When(QDate(2026, 1, 15), QTime(14, 30, 5));

Recording document() {
  Recording recording;
  recording.name = QStringLiteral("Ergebnisliste/Übung");
  recording.race = 7;
  const PrintPicture picture{QStringLiteral(":/kopf1.jpg"), QImage(QStringLiteral(":/kopf1.jpg"))};
  const PrintFont font{QStringLiteral("Times"), 18, true, false},
      fraktur{QStringLiteral("Fraktur BT"), 85, true, false};
  const PrintPage page{TextOperation{20, 20, font, QStringLiteral("Größe Äöüß")},
                       TextOperation{20, 65, fraktur, QStringLiteral("Urkunde")},
                       FillOperation{4, 40, 200, 44.6, 0xC0C0C0}, PictureOperation{191, 11, 5.5, 18, picture}};
  recording.pages = {page, page, page};
  return recording;
}

QByteArray outputOf(const QString &program, const QStringList &arguments) {
  QProcess process;
  process.start(program, arguments);
  return process.waitForFinished() ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

TEST(PdfFileTest, IsNamedByRaceDocumentAndTimeAndWritesOverNothing) {
  const QTemporaryDir folder;
  const QString target = folder.path() + QStringLiteral("/Ausdrucke");
  const QString first = writePdf(target, When, document());
  const QString second = writePdf(target, When, document());
  EXPECT_EQ(first, target + QStringLiteral("/7 Ergebnisliste-Übung 2026-01-15 14-30-05.pdf"));
  EXPECT_EQ(second, target + QStringLiteral("/7 Ergebnisliste-Übung 2026-01-15 14-30-05 (2).pdf"));
  EXPECT_TRUE(readFile(first).startsWith("%PDF"));
  EXPECT_TRUE(readFile(second).startsWith("%PDF"));
}

TEST(PdfFileTest, TextStaysTextFontsAreEmbeddedAndAPictureStandsInItOnce) {
  const QTemporaryDir folder;
  const QString path = writePdf(folder.path(), When, document());
  EXPECT_EQ(readFile(path).count("/Subtype /Image"), 1);
  if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
    GTEST_SKIP() << "pdftotext is not installed";
  const QString text = QString::fromUtf8(outputOf(QStringLiteral("pdftotext"), {path, QStringLiteral("-")}));
  EXPECT_EQ(text.count(QStringLiteral("Größe Äöüß")), 3);
  EXPECT_EQ(text.count(QStringLiteral("Urkunde")), 3);
  const QByteArray info = outputOf(QStringLiteral("pdfinfo"), {path});
  EXPECT_TRUE(info.contains("A4")) << info.toStdString();
  for (const QByteArray &font : outputOf(QStringLiteral("pdffonts"), {path}).split('\n').mid(2))
    EXPECT_TRUE(font.isEmpty() || font.contains("Identity-H       yes")) << font.toStdString();
}

TEST(PdfFileTest, AFailureIsReportedAndLeavesNoFile) {
  const QTemporaryDir folder;
  const QString blocked = folder.path() + QStringLiteral("/Ausdrucke");
  writeFile(blocked, "a file stands where the folder must go");
  EXPECT_THROW(writePdf(blocked, When, document()), FileFault);
  Printers printers([] { return SystemPrinters(); }, {pdfPrinter(blocked, [] { return When; })});
  try {
    printers.print(document());
    ADD_FAILURE();
  } catch (const PrintFault &fault) {
    EXPECT_TRUE(fault.report().contains(blocked)) << fault.what();
  }
  EXPECT_TRUE(printers.lastFile().isEmpty());
}
