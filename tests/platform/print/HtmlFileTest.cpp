#include "platform/print/HtmlFile.h"

#include "platform/Csv.h"
#include "platform/print/CsvFile.h"
#include "support/Print.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace {

const QDateTime When(QDate(2026, 1, 15), QTime(14, 30, 5));

Recording list() {
  Recording recording;
  recording.title = "Jugend<cup> – \"Übung\" & mehr";
  recording.list.columns = {{"Rang", true}, {"Name"}, {"Zeit", true}};
  recording.list.sections = {
      {{"Klasse"},
       {"Kinder; <U8>"},
       {{"1.", "<script>alert(1)</script>", "1:02,30"}, {"2.", "=HYPERLINK(\"x\")", QString()}}}};
  QImage logo(4, 4, QImage::Format_RGB32);
  logo.fill(Qt::red);
  recording.pages = {{PictureOperation{0, 0, 10, 10, "Logo.jpg", logo}}};
  return recording;
}

Recording page() {
  Recording recording;
  recording.title = "Urkunde";
  recording.pages = {{TextOperation{20, 65, {"Fraktur BT", 85}, "Größe <1> & \"2\""},
                      LineOperation{0, 0, 10, 10, 3, 0x123456}, BoxOperation{10, 10, 0, 0, 1, 0},
                      FillOperation{0, 0, 5, 5, 0xC0C0C0}, list().pages[0][0]}};
  return recording;
}

/// What the validator says; empty if it finds nothing.
QString faultsOf(const QByteArray &html) {
  QProcess tidy;
  tidy.start("tidy", {"-q", "-e", "-utf8"});
  tidy.write(html);
  tidy.closeWriteChannel();
  EXPECT_TRUE(tidy.waitForFinished()) << "tidy is not installed";
  return tidy.readAllStandardError();
}

} // namespace

TEST(HtmlFileTest, IsValidEscapedAndNeedsNothingElse) {
  for (const QByteArray &html :
       {htmlOf(list(), When), htmlOf(page(), When), htmlIndex("Alle <Listen>", {{"A & B", "1 Ü \"x\".html"}}, When)}) {
    EXPECT_EQ(faultsOf(html), QString()) << html.toStdString();
    for (const char *foreign : {"<script", "http:", "https:", "url(", "@import", "<1>", "<U8>", "<cup>"})
      EXPECT_FALSE(html.contains(foreign)) << foreign;
  }
  const QString table = QString::fromUtf8(htmlOf(list(), When));
  for (const char *part :
       {"<h1>Jugend&lt;cup&gt; – &quot;Übung&quot; &amp; mehr</h1>", "15.01.2026, 14:30", "<th scope=\"col\">Name</th>",
        "data:image/jpeg;base64,", "colspan=\"3\">Kinder; &lt;U8&gt;</th>", "&lt;script&gt;alert(1)&lt;/script&gt;"})
    EXPECT_TRUE(table.contains(part)) << part;
}

TEST(CsvFile, IsQuotedAndHoldsNoFormula) {
  EXPECT_EQ(csvOf(list()), QByteArray("\uFEFFKlasse;Rang;Name;Zeit\r\n"
                                      "\"Kinder; <U8>\";1.;<script>alert(1)</script>;1:02,30\r\n"
                                      "\"Kinder; <U8>\";2.;\"'=HYPERLINK(\"\"x\"\")\";\r\n"));
  EXPECT_EQ(csvOf(page()), QByteArray("\uFEFF\"Größe <1> & \"\"2\"\"\"\r\n"));
  const std::pair<const char *, const char *> cases[] = {
      {"-2,5", "-2,5"}, {"+43 664", "'+43 664"}, {"@x", "'@x"}, {"a\nb", "\"a\nb\""}, {"-", "-"}, {"'x", "'x"}};
  for (const auto &[field, written] : cases) {
    EXPECT_EQ(csvLine({field}), written + QByteArray("\r\n")) << field;
    EXPECT_EQ(withoutGuard(QLatin1String(written).startsWith(u'"') ? field : written), field);
  }
}
