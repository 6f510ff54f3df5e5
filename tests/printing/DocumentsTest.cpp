#include "printing/Documents.h"

#include "core/Classes.h"
#include "core/SingleTimes.h"
#include "platform/Dates.h"
#include "support/OtherMedia.h"
#include "support/StoreTest.h"
#include "timing/Ranking.h"

#include <QDir>
#include <QRegularExpression>

namespace {

struct Person {
  int startNr;
  QByteArray name;
  int year, sex, club, gruppe, gast;
  double zeit1;
  int status1 = 0;
  double zeit2 = 0;
  int status2 = 0;
};

/// AIGNER has no sex; the lists end at WOLF, who has no start number.
const QList<Person> Field{{1, "HUBER Lena", 2014, 0, 1, 0, 0, 30.1, 0, 31.2},
                          {2, "ÖLLER Tim", 2013, 1, 2, 2, 1, 28.1, 0, 28},
                          {3, "AIGNER Max", 2015, 2, 0, 2, 0, 35, 0, 36},
                          {4, "MAYR Eva", 1990, 0, 3, 2, 0, 28.5, 0, 28.5},
                          {5, "ZAUNER Ida", 2008, 0, 1, 5, 1, 26, 0, 27},
                          {6, "EBNER Pia", 1985, 0, 1, 5, 0, 29, 0, 30, 3},
                          {7, "GRUBER Jo", 2006, 1, 1, 5, 0, 0, 1},
                          {8, "FREIHERR VON HOHENSTEIN Maximilian", 1960, 1, 3, 2, 0, 3725.5, 0, 60},
                          {9, "BERG Bo", 1970, 1, 2, 5, 1, 41, 2, 0, 3},
                          {0, "WOLF Ute", 1971, 0, 1, 5, 1, 26.5},
                          {10, "ZACHER Udo", 1972, 1, 1, 5, 0, 0, 1}};

/// Each document printed is compared with the text in tests/data/<folder>/<document>.txt.
struct DocumentsTest : testing::Test {
  DocumentsTest() {
    QDir::setCurrent(test.folder.path()); // for the logo
    store.OrganisationName = "Schiklub Übelbach";
    test.addClub("SK Alm");
    VereinSatz longName;
    longName.VereinName = "Turnverein Bergheim an der Enge";
    VereinSchreiben(store, 2, longName);
    test.addClub("Schiunion Oberes Inntal Nord");
    test.addRace("Vereinsmeisterschaft im Riesentorlauf der Sektion Hinterberg");
    store.Rennen.RennenOrt = "Hinterberg";
    store.Rennen.RennenDatum = toDays(QDate(2026, 1, 10));
    store.Rennen.ZuschlagGast = 2;
    store.KlasseName.fill({});
  }
  void TearDown() override { QDir::setCurrent(before); }

  void addClass(int k, const char *name, int von, int bis, int order, int orderOfGuests) {
    store.KlasseName[k] = store.KlasseGenauName[exactClass(k, 0, 0, 0)] = name;
    store.KlasseGenauName[exactClass(k, 0, 1, 0)] = store.KlasseName[k] + QString(" Gäste");
    store.KlasseReihenfolge(k, 0, 0, 0) = qint16(order);
    store.KlasseReihenfolge(k, 0, 1, 0) = qint16(orderOfGuests);
    store.KlasseVon[k] = von;
    store.KlasseBis[k] = bis;
  }
  void enter(const QList<Person> &persons) {
    for (const Person &p : persons) {
      auto &row = store.Teilnehmer[test.enter(test.addAthlete(p.name, p.year, p.sex, p.club), p.startNr)];
      std::tie(row.GruppeNr, row.Gast, row.Zeit1, row.Status1) = std::tie(p.gruppe, p.gast, p.zeit1, p.status1);
      if (store.Rennen.ZweiDurchgaenge == 1)
        std::tie(row.Zeit2, row.Status2) = std::tie(p.zeit2, p.status2);
    }
    KlassenZuordnen(store);
    ErgebnisRechnen(store);
  }
  /// Of each page its number, its bands or lines, and the first and last row below each.
  static QString outline(const QStringList &lines) {
    static const QRegularExpression mark("Seite|^fill|11 italic|width 1 0|Name 1");
    static const QRegularExpression between("(\n[^\n]*Name 1[^\n]*)(?:\n[^\n]*Name 1[^\n]*)+(?=(?1))");
    return lines.filter(mark).join(u'\n').replace(between, "\\1");
  }
  void compare(const Recording &printed) {
    ++documents;
    const QString file = folder + u'/' + printed.name + QString(".txt");
    const QStringList lines = asText(printed);
    const QString text = folder == "Seiten" ? outline(lines) : lines.join(u'\n');
    EXPECT_EQ(text.toStdString(), expectedPrint(file.toUtf8()).join(u'\n').toStdString()) << file.toStdString();
    EXPECT_EQ(OtherMedia(printed).differences(), QStringList()) << file.toStdString();
  }
  void printLists() {
    Ergebnisliste(store, druck, {});
    Teilnehmerliste(store, druck);
    AlphabetischeListe(store, druck);
    StartlisteZweiterDurchgang(store, druck);
    NichtInDerWertung(store, druck);
  }

  TestStore test;
  Store &store = test.store;
  const QString before = QDir::currentPath();
  QString folder;
  int documents = 0;
  Druckschicht druck{[this](const Recording &printed) { compare(printed); }};
};

} // namespace

// "Kinder" and their guests are one section, the guests of "Jugend" and "Allgemein" another.
TEST_F(DocumentsTest, TwoRunsByClasses) {
  folder = "Klassen";
  store.Rennen.ZweiDurchgaenge = store.Rennen.WertGaeste = store.Rennen.BestzeitAbKlasse = 1;
  store.Rennen.RennenKurz = "Riesentorlauf";
  store.Rennen.Kurssetzung = "Karl Kurz";
  store.Rennen.UrkundeBild = store.Rennen.BestzeitText = 4;
  addClass(1, "Kinder", 2012, 2016, 1, 1);
  addClass(2, "Jugend", 2005, 2011, 3, 2);
  addClass(3, "Allgemein", 1950, 2004, 2, 4);
  enter(Field);
  Urkunde(store, druck, 5, {});
  printLists();
  Titelblatt(store, druck, {});
  store.cup.ZeitsummeRennenKurz[1] = "Slalom";
  store.cup.ZeitsummeRennenKurz[2] = "Super-G";
  store.cup.CupZeit(5, 1) = 15;
  store.cup.CupZeit(5, 2) = 25;
  saveSingleTimes(store);
  Ergebnisliste(store, druck, 1);
  EXPECT_EQ(documents, 8);
}

TEST_F(DocumentsTest, OneRunByGroups) {
  folder = "Gruppen";
  store.Rennen.WertKlassen = 0;
  store.Rennen.Rennleiter = "Rudi Rot";
  store.Rennen.Tore = "34 Tore";
  store.Rennen.BestzeitText = 3;
  store.Rennen.UrkundeBild = 8;
  store.GruppeName[2] = "Firma Alm";
  store.GruppeName[5] = "Gäste";
  addClass(1, "Alle", 1950, 2020, 1, 1);
  enter(Field);
  test.writeFile("Logo.jpg", "any picture");
  printLists();
  Urkunde(store, druck, 5, UrkundenText{"hat an der", QString(), "teilgenommen."});
  QImage(100, 50, QImage::Format_RGB32).save(store.DatenOrdner + QString("b.jpg"));
  Werbung werbung;
  werbung.fill({true, "b.jpg", "20,5", "240", "200"});
  werbung[0].file = "fehlt.jpg";
  werbung[1].chosen = false;
  Titelblatt(store, druck, werbung);
  EXPECT_EQ(documents, 7);
}

// The second class begins at the foot of the first page and goes on to a third.
TEST_F(DocumentsTest, PagesBreakByRowAndByClass) {
  folder = "Seiten";
  addClass(1, "Eins", 1980, 1980, 1, 1);
  addClass(2, "Zwei", 1990, 1990, 2, 2);
  QList<Person> persons;
  for (int nr = 1; nr <= 93; ++nr)
    persons << Person{nr, "Name " + QByteArray::number(nr + 100), nr <= 43 ? 1980 : 1990, 1, 0, 0, 0, 30.0 + nr};
  enter(persons);
  printLists();
  saveSingleTimes(store);
  Ergebnisliste(store, druck, {});
  for (int row = 1; row <= 93; ++row)
    store.Teilnehmer[row].Status1 = 3;
  NichtInDerWertung(store, druck);
  EXPECT_EQ(documents, 6);
}
