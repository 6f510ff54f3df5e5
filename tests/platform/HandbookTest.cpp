#include "platform/Handbook.h"

#include "platform/Files.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

const QString Docs = QStringLiteral(VEXT_BEISPIEL "/../docs/"), Sources = QStringLiteral(VEXT_BEISPIEL "/../src/");

const QRegularExpression LineEnd(QStringLiteral(" *\n *"));

QString textOf(const QString &path) {
  return QString::fromUtf8(readFile(path));
}

const Handbook &handbook() {
  static const Handbook book(textOf(Docs + QStringLiteral("handbuch.md")));
  return book;
}

/// All that `pattern` captures in the handbook, lines joined.
QSet<QString> captured(const char *pattern) {
  QSet<QString> all;
  for (const auto &match : QRegularExpression(QString::fromUtf8(pattern)).globalMatch(handbook().wholeText()))
    all << match.captured(1).replace(LineEnd, QStringLiteral(" "));
  return all;
}

QStringList filesBelow(const QString &folder, const QStringList &names) {
  QStringList found;
  for (QDirIterator files(folder, names, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
    found << files.next();
  return found;
}

/// The sources with their texts as a person reads them.
QString readableSources() {
  QString all;
  for (const auto &path : filesBelow(Sources, {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")}))
    all += textOf(path);
  for (const auto &[written, read] :
       {std::pair("&gt;", ">"), {"&lt;", "<"}, {"&amp;", "&"}, {"\"&", "\""}, {">&", ">"}})
    all.replace(QLatin1String(written), QLatin1String(read));
  return all;
}

} // namespace

TEST(HandbookTest, HasAPlaceForEachScreen) {
  QSet<QString> screens{QStringLiteral("Vorschau"), QStringLiteral("Meldungen"), QStringLiteral("Rettung")};
  for (const auto &path : filesBelow(Sources, {QStringLiteral("*.ui")}))
    screens << QFileInfo(path).baseName();
  const QStringList found = handbook().screens();
  EXPECT_EQ(QSet(found.begin(), found.end()), screens);
  EXPECT_EQ(handbook().placeFor(QStringLiteral("Form13")).section, QStringLiteral("Vorläufiges Ergebnis"));
}

TEST(HandbookTest, ShowsEachPictureThatThereIs) {
  QSet<QString> pictures;
  for (const auto &path : filesBelow(Docs + QStringLiteral("bilder"), {QStringLiteral("*.png")}))
    pictures << QStringLiteral("bilder/") + QFileInfo(path).fileName();
  EXPECT_EQ(captured("!\\[[^]]+\\]\\(([^)]+)\\)"), pictures);
}

TEST(HandbookTest, LinksGoToHeadings) {
  for (const auto &link : captured("\\]\\(#([^)]+)\\)"))
    EXPECT_TRUE(handbook().placeOf(link)) << link.toStdString();
}

TEST(HandbookTest, QuotesOnlyCaptionsAndHeadings) {
  const QString sources = readableSources();
  const QSet<QString> headings = captured("\n##+ (?:\\d+\\. )?([^\n]+)");
  for (const auto &quoted : captured("„([^„“]+)“"))
    EXPECT_TRUE(headings.contains(quoted) || sources.contains(QLatin1Char('"') + quoted + QLatin1Char('"')) ||
                sources.contains(QLatin1Char('>') + quoted + QLatin1Char('<')))
        << quoted.toStdString();
}

TEST(HandbookTest, SearchGoesRound) {
  const Handbook book(QStringLiteral("# Titel\nfest\n## Eins\nSchi\n### Teil\n<!-- Form7 -->\n## Zwei\nschi\n"));
  EXPECT_EQ(book.pageWith(QStringLiteral("SCHI"), 0), 1);
  EXPECT_EQ(book.pageWith(QStringLiteral("SCHI"), 1), 2);
  EXPECT_EQ(book.pageWith(QStringLiteral("fest"), 1), 0);
  EXPECT_EQ(book.pageWith(QStringLiteral("Form7"), 0), -1);
  EXPECT_EQ(book.placeFor(QStringLiteral("Form7")), (Handbook::Place{1, QStringLiteral("Teil")}));
}
