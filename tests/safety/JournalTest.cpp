#include "safety/Journal.h"

#include "core/RaceFiles.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "support/StoreTest.h"

#include <QDir>

namespace {

const QDateTime Morning(QDate(2026, 1, 15), QTime(10, 42, 7));

struct JournalOfARace : RaceTest {
  JournalOfARace() {
    test.addClub("SC Ötz");
    test.addClub("=SC");
    test.addAthlete("WEIßKIRCHNER Antonia", 2012, 0, 1);
    test.addAthlete("BERGER Karl", 2010, 1, 1);
    test.enter(1, 28);
    test.enter(2, 3);
    store.Teilnehmer[1].Zeit1 = 45.98;
    RennDatenSpeichern(store);
    look();
  }

  void look(const QDateTime &when = Morning) { journal.look(when)(); }
  /// The lines since the last call, without time of day and race, one text.
  QByteArray lines(const QString &day = "2026-01-15") {
    const QString name = QString("Protokoll/%1.csv").arg(day);
    const QByteArray all = test.hasFile(name) ? test.file(name) : QByteArray();
    return all.mid(std::exchange(m_read[day], all.size())).replace("\r\n", "|");
  }

  Journal journal{store};

private:
  QMap<QString, qsizetype> m_read;
};

} // namespace

TEST_F(JournalOfARace, EachChangedValueIsALine) {
  auto &row = store.Teilnehmer[1];
  const struct {
    std::function<void()> change;
    const char *lines;
  } cases[] = {
      {[&] { row.Zeit1 = 46.38; }, "\uFEFFUhrzeit;Veranstaltung;Startnummer;Name;Was;vorher;nachher|"
                                   "10:42:07;1;28;WEIßKIRCHNER Antonia;Zeit 1;45,98;46,38|"},
      {[] {}, ""},
      {[&] { row.Zeit1 = 62.384, row.Status2 = 3, row.KlasseGenau = 7; },
       "10:42:07;1;28;WEIßKIRCHNER Antonia;Zeit 1;46,38;1:02,38 (62,384)|"
       "10:42:07;1;28;WEIßKIRCHNER Antonia;Status 2;ok;dis|"},
      {[&] { store.GruppeName[7] = "Asse", row.GruppeNr = 7, row.VereinNr = 4; },
       "10:42:07;1;;;Gruppe 7;;Asse|10:42:07;1;28;WEIßKIRCHNER Antonia;Verein;SC Ötz;ohne|"
       "10:42:07;1;28;WEIßKIRCHNER Antonia;Gruppe;;Asse|"},
      {[&] {
         store.KlasseName[3].clear(), store.KlasseGenauName[9] = "Zwerge; klein";
         store.KlasseReihenfolge(3, 1, 0, 0) = 4;
       },
       "10:42:07;1;;;Bezeichnung der Klasse 2.2;;\"Zwerge; klein\"|"
       "10:42:07;1;;;Klasse 3;Kinder U8, 2018 bis 2018;|10:42:07;1;;;Reihe der Klasse 3.2;;4|"},
      {[&] { // those behind a deleted participant move up
         store.Teilnehmer[1] = store.Teilnehmer[2];
         store.Teilnehmer[2] = TeilnehmerZeile();
       },
       "10:42:07;1;28;WEIßKIRCHNER Antonia;Teilnehmer;ja;|10:42:07;1;28;WEIßKIRCHNER Antonia;Startnummer;28;|"
       "10:42:07;1;28;WEIßKIRCHNER Antonia;Verein;ohne;|10:42:07;1;28;WEIßKIRCHNER Antonia;Gruppe;Asse;|"
       "10:42:07;1;28;WEIßKIRCHNER Antonia;Zeit 1;1:02,38 (62,384);|"
       "10:42:07;1;28;WEIßKIRCHNER Antonia;Status 2;dis;ok|"},
      {[&] {
         LaeuferSatz karl = LaeuferLesen(store, 2);
         karl.Verein1 = 2, karl.Geschlecht = 0;
         LaeuferSchreiben(store, 2, karl);
         journal.written({store.LaeuferDatei.path()});
       },
       "10:42:07;;;BERGER Karl;Geschlecht;m;w|10:42:07;;;BERGER Karl;Verein 1;SC Ötz;'=SC|"},
  };
  for (const auto &[change, expected] : cases) {
    change();
    look();
    EXPECT_EQ(lines(), expected);
  }
}

TEST_F(JournalOfARace, WhatWasTypedRightAfterOpeningIsToldAndTheOpeningIsNot) {
  test.addRace("Zweites");
  look();
  store.AktRennen = 1;
  store.KlasseReihenfolge(3, 1, 0, 0) = 4; // left from the race before
  QFile::remove(store.DatenOrdner + QString("K 1.lst"));
  RennDatenLaden(store);
  store.Teilnehmer[2].Zeit1 = 50;
  look();
  EXPECT_TRUE(lines().endsWith("nachher|10:42:07;1;3;BERGER Karl;Zeit 1;;50,00|"));
  store.TabellenRennen = -1;
  store.Teilnehmer[2].Zeit1 = 0;
  look();
  EXPECT_EQ(lines(), QString());
}

TEST_F(JournalOfARace, RefusedLinesComeLaterAndATornLineIsLeftBehind) {
  const auto type = [&](double time) { store.Teilnehmer[1].Zeit1 = time; };
  type(9);
  look();
  QDir(store.DatenOrdner + QString("Protokoll")).removeRecursively();
  test.writeFile("Protokoll", "kein Ordner");
  type(1);
  EXPECT_THROW(look(), Fault);
  type(2);
  EXPECT_THROW(look(), Fault);
  QFile::remove(store.DatenOrdner + QString("Protokoll"));
  look();
  const QString who = "10:42:07;1;28;WEIßKIRCHNER Antonia;Zeit 1;";
  EXPECT_TRUE(test.file("Protokoll/2026-01-15.csv").startsWith("\xEF\xBB\xBFUhrzeit"));
  EXPECT_TRUE(lines().endsWith((who + QString("9,00;1,00|") + who + QString("1,00;2,00|")).toUtf8()));
  test.writeFile("Protokoll/2026-01-16.csv", "10:42:07;1;28;WEI");
  type(3);
  look(Morning.addDays(1));
  type(4);
  look(Morning.addDays(1));
  EXPECT_EQ(lines("2026-01-16"),
            QString("10:42:07;1;28;WEI|") + who + QString("2,00;3,00|") + who + QString("3,00;4,00|"));
}
