#include "exchange/Entries.h"

#include "exchange/Likeness.h"
#include "platform/Dates.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace {

const QDate Today(2026, 1, 15);

QString kindsOf(const char *lines) {
  const Columns columns = recognisedColumns(tableFrom(lines, "M.csv"));
  QStringList names;
  for (const ColumnKind kind : columns.kinds)
    names << nameOf(kind);
  return (columns.heading ? QString() : "ohne: ") + names.join(u' ');
}

Entry entry(const char *lines) {
  const Table table = tableFrom(lines, "M.csv");
  return entriesOf(table, recognisedColumns(table), Today).value(0);
}

} // namespace

TEST(EntryColumns, AreKnownByTheirHeadingsOrByWhatStandsInThem) {
  const std::pair<const char *, const char *> cases[] = {
      {"Nachname;Vorname;Jg.;m/w;Verein;ÖSV-Nr.;Punkte\n", "Familienname Vorname Geburtsdatum Geschlecht Verein "
                                                           "ÖSV-Nummer Punkte"},
      {"Name;Vorname;geb.\n", "Familienname Vorname Geburtsdatum"},
      {"Startnr;NAME;Geburts-Datum;Klub;Verein 2;Name\n", "– Name Geburtsdatum Verein Verein 2 –"},
      {"HUBER Anna;1.2.2012;w;SC X\nMAIR Eva;3.4.2011;w;\n", "ohne: Name Geburtsdatum Geschlecht Verein"},
      {"Huber;Anna;2012;SC X\nMair;Eva;2011;SC Y\n", "ohne: Familienname Vorname Geburtsdatum Verein"},
      {"Huber Anna\n", "ohne: Name"},
      {"Nr.;Vor- und Nachname;Geschlecht (m/w);Geburtsdatum [TT.MM.JJJJ]\n",
       "– Vor- und Familienname Geschlecht Geburtsdatum"},
      {"St.Nr.;Name;Verein/Mannschaft;Jahrg.\n", "– Name Verein Geburtsdatum"},
      {"HUBER Anna;12,50;2012-02-01\n", "ohne: Name Punkte Geburtsdatum"},
  };
  for (const auto &[lines, kinds] : cases)
    EXPECT_EQ(kindsOf(lines), kinds) << lines;
}

TEST(EntriesTest, Names) {
  const std::pair<const char *, const char *> cases[] = {
      {"HUBER Anna", "HUBER Anna"},
      {"Anna HUBER", "HUBER Anna"},
      {"Huber Anna", "HUBER Anna"},
      {"HUBER ANNA", "HUBER Anna"},
      {"Jan van der BERG", "VAN DER BERG Jan"},
      {"van der Berg Jan", "VAN DER BERG Jan"},
      {"HUBER MAIR Anna-Lena", "HUBER MAIR Anna-Lena"},
      {"Weißkirchner, ANTONIA EVA", "WEIßKIRCHNER Antonia Eva"},
      {"HUBER-MAIR ANNA-LENA", "HUBER-MAIR Anna-Lena"},
      {"Huber", "HUBER"},
      {"", ""},
  };
  for (const auto &[typed, name] : cases)
    EXPECT_EQ(nameFromWhole(QString::fromUtf8(typed)), QString::fromUtf8(name)) << typed;
  EXPECT_EQ(nameFromWhole(QStringLiteral("Anna Lena Huber"), true), QStringLiteral("HUBER Anna Lena"));
  EXPECT_EQ(nameFromWhole(QStringLiteral("Jan van der Berg"), true), QStringLiteral("VAN DER BERG Jan"));
}

TEST(EntriesTest, BirthDatesAndSexes) {
  const std::pair<const char *, QDate> dates[] = {{"1.2.2012", {2012, 2, 1}},
                                                  {"01/02/12", {2012, 2, 1}},
                                                  {"1. 2. 1999", {1999, 2, 1}},
                                                  {"2012-02-01", {2012, 2, 1}},
                                                  {"2012", {2012, 1, 1}},
                                                  {"12", {2012, 1, 1}},
                                                  {"27", {1927, 1, 1}},
                                                  {"29.2.2012", {2012, 2, 29}},
                                                  {"29.2.2013", {}},
                                                  {"1.2.2027", {}},
                                                  {"1.2.1899", {}},
                                                  {"1.2.2012 00:00", {2012, 2, 1}},
                                                  {"1.2.2012 x", {}},
                                                  {"abc", {}},
                                                  {"2012-02-01 00:00:00", {2012, 2, 1}},
                                                  {"1.13.2012", {}},
                                                  {"99999", {}}};
  for (const auto &[text, date] : dates) {
    const auto birth = birthFrom(text, Today);
    EXPECT_EQ(birth ? fromDays(birth->days) : QDate(), date) << text;
  }
  const std::pair<const char *, int> sexes[] = {{"m", 1}, {"W", 0}, {"Herren", 1}, {"Mädchen", 0}, {"männlich", 1},
                                                {"f", 0}, {"d", 0}, {"Bub", 1},    {"x", 2},       {"", 2}};
  for (const auto &[text, sex] : sexes)
    EXPECT_EQ(sexFrom(text), sex) << text;
}

TEST(EntriesTest, AreShownAsTheRegisterWillKeepThem) {
  const Entry cut = entry("Name;ÖSV-Nr;Verein;Punkte;geb\nHuber Zoë Łucja;1234567890;SC;2.5;2012\n");
  EXPECT_EQ(cut.athlete.Name, "HUBER Zoë ?ucja");
  EXPECT_EQ(cut.athlete.OesvNr, "123456789");
  EXPECT_EQ(cut.athlete.LaeuferPunkte, 2.5F);
  EXPECT_EQ(cut.remarks.size(), 3) << cut.remarks.join(u'|').toStdString(); // and no sex
  EXPECT_EQ(entry(("Name;Jg\n" + QByteArray(200, 'x') + ";2012\n").constData()).athlete.Name.size(), 80);
  EXPECT_TRUE(entry("Name;Jg\n;2012\n").trouble.contains("Name"));
  EXPECT_TRUE(entry("Name;Jg\nHuber;31.2.2012\n").trouble.contains("31.2.2012"));
}

TEST(Likeness, FindsSlipsOfThePen) {
  NameIndex names;
  const std::tuple<const char *, int> persons[] = {{"HUBER Anna", 2012}, {"MÜLLER Eva", 2010}, {"WEIß Udo", 0}};
  int record = 0;
  for (const auto &[name, year] : persons)
    names.add(foldedName(name), year, ++record);
  const std::tuple<const char *, int, int> cases[] = {
      {"HUBER Ana", 2012, 1}, {"HUBR Anne", 2012, 1},       {"HUBER Ana", 2011, 0},
      {"HUBER Ana", 0, 1},    {"ANNA Huber", 1990, 1},      {"MUELER Eva", 2010, 2},
      {"WEISS Ude", 2013, 3}, {"HUBER Annemarie", 2012, 0}, {"MAIER Eva", 2010, 0}};
  for (const auto &[name, year, found] : cases)
    EXPECT_EQ(names.similar(foldedName(name), year), found) << name;
  EXPECT_EQ(names.same(foldedName("Mueller-Eva")), QList<int>{2});
}
