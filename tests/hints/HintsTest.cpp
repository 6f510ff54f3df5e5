#include "hints/Hints.h"

#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "core/SingleTimes.h"
#include "evaluation/Cup.h"
#include "platform/Files.h"
#include "support/StoreTest.h"
#include "timing/Ranking.h"

#include <QImage>
#include <QRegularExpression>

#include <limits>
#include <set>

// Each hint has a state in which it stands, and the same with one thing different in which it does not.

namespace {

/// A race of ADAM Eva, BERG Max and CERNY Ida, born 1990, with the numbers 1 to 3 in one class.
struct Trap : RaceTest {
  Trap() {
    test.addClub("SC Alm");
    test.addClub("SV Berg");
    int number = 0;
    for (const auto &[name, sex] : {std::pair("ADAM Eva", 0), {"BERG Max", 1}, {"CERNY Ida", 0}})
      test.enter(test.addAthlete(name, 1990, sex, 1), ++number);
    store.KlasseName.fill({});
    store.KlasseName[1] = store.KlasseGenauName[0] = "Alle";
    store.KlasseVon[1] = 1900;
    store.KlasseBis[1] = 2026;
    store.KlasseReihenfolge(1, 0, 0, 0) = 1;
    KlassenZuordnen(store);
  }
  void TestBody() override {}

  TeilnehmerZeile &row(int n) { return store.Teilnehmer[n]; }
  void athlete(int n, const std::function<void(LaeuferSatz &)> &change) {
    LaeuferSatz record = LaeuferLesen(store, n);
    change(record);
    LaeuferSchreiben(store, n, record);
  }
  void sexOf(int n, qint16 sex) {
    athlete(n, [sex](auto &record) { record.Geschlecht = sex; });
  }
  void times(double first, double second, double third = 0) {
    row(1).Zeit1 = first, row(2).Zeit1 = second, row(3).Zeit1 = third;
  }
  /// Saves the race and makes more of it, each with the same field; the last one is open.
  void races(
      int count, const std::function<void(int)> &change = [](int) {}) {
    for (int race = 1; race <= count; ++race) {
      store.RennenIdx = store.AktRennen = race;
      store.Rennen.RennenName = QString("Lauf %1").arg(race);
      change(race);
      RennenSchreiben(store);
      RennDatenSpeichern(store);
    }
  }
  void mark(int count) {
    QStringList lines;
    for (int race = count; race >= 1; --race)
      lines << QString(" %1    Lauf").arg(race);
    show("List1", lines.join(u'\n'));
  }
  void picture(const char *name, int width, int height) {
    QImage(width, height, QImage::Format_RGB32).save(store.DatenOrdner + QLatin1String(name), "JPG");
  }
  void banner(int i, const char *file, const char *right, const char *down) {
    const auto control = [i](const char *name) { return QString("%1_%2").arg(name).arg(i); };
    shown[control("Check1")] = "1";
    shown[control("Text1")] = file;
    shown[control("Text2")] = right;
    shown[control("Text3")] = down;
    shown[control("Text4")] = "100";
  }
  /// Controls and what they show, in turn.
  template <typename... More> void show(const char *control, const QString &value, const More &...more) {
    shown[control] = value;
    if constexpr (sizeof...(more) > 0)
      show(more...);
  }

  ShownValues shown;
};

struct Case {
  const char *hint;
  std::function<void(Trap &, bool)> make;
};

const std::vector<Case> OfRegisters{
    {"Leerer Ordner",
     [](Trap &t, bool on) {
       t.store.LaeuferAnzahl = t.store.VereinAnzahl = 0;
       t.store.RennenAnzahl = on ? 0 : 1;
     }},
    {"Geschlecht fehlt im Rennen", [](Trap &t, bool on) { t.store.Rennen.WertGeschlecht = on, t.sexOf(2, 2); }},
    {"Zu viele Rennen", [](Trap &t, bool on) { t.races(11), t.mark(on ? 11 : 10); }},
    {"Zu viele Läufe",
     [](Trap &t, bool on) {
       for (int n = 1; n <= 5; ++n)
         t.row(t.test.enter(1)).Zeit2 = on || n < 5 ? 40 : 0;
       t.races(6);
       t.mark(6);
     }},
    {"Telefon", [](Trap &t, bool on) { t.show("Fokus", on ? "Text8" : "Text9", "Text8", "0664", "Text6", "Huber"); }},
    {"Kurzbezeichnung fehlt", [](Trap &t, bool on) { t.show("Text2", "Sportclub", "Text3", on ? " " : "SC"); }},
    {"Kurzbezeichnung doppelt", [](Trap &t, bool on) { t.show("Text1", on ? "2" : "1", "Text3", "sc alm"); }},
    {"Umbenennen", [](Trap &t, bool on) { t.show("Text1", "3", "Text2", on ? "MAIER" : "CERNY Ida"); }},
    {"Name gibt es schon", [](Trap &t, bool on) { t.show("Text1", "3", "Text2", on ? "Berk Max" : "BERG Tom"); }},
    {"Zwei Ziffern", [](Trap &t, bool on) { t.show("Text4", on ? "14" : "14.3.2014"); }},
    {"Unwahrscheinlicher Jahrgang", [](Trap &t, bool on) { t.show("Text4", on ? "31.12.1929" : "1.1.1930"); }},
    {"Kein Geburtsdatum", [](Trap &t, bool on) { t.show("Text1", "1", "Text4", on ? "31.2.2014" : "28.2.2014"); }},
    {"Geschlecht fehlt", [](Trap &t, bool on) { t.show("Text1", "2"), t.sexOf(on ? 2 : 1, 2); }},
    {"Geburtsdatum fehlt",
     [](Trap &t, bool on) {
       t.show("Text1", "2");
       t.athlete(on ? 2 : 1, [](auto &athlete) { athlete.Geburtsdatum = 2; });
     }},
    {"Punkte des Läufers", [](Trap &t, bool on) { t.show("Text5", on ? "2.5" : "25"); }},
};

const std::vector<Case> OfRaces{
    {"Kein Rennen offen", [](Trap &t, bool on) { t.store.AktRennen = on ? 0 : 1; }},
    {"Bruchteil in Punkten", [](Trap &t, bool on) { t.row(2).Punkte = on ? 2.5F : 2; }},
    {"Name nicht eingetragen", // the first of the folder, entered and not yet open
     [](Trap &t, bool on) {
       t.races(1);
       t.store.AktRennen = 0;
       t.store.Rennen = {};
       t.show("Text2", on ? "Lauf 2" : "Lauf 1");
     }},
    {"Neue Läufer", [](Trap &t, bool on) { t.show("List1.Zeilen", on ? "2" : "3"); }},
    {"Nummern einer Gruppe",
     [](Trap &t, bool on) {
       t.store.Rennen.WertKlassen = on ? 0 : 1;
       t.show("Command11", "1", "Combo2", "0");
     }},
    {"Alle in einer Klasse", [](Trap &t, bool on) { t.store.KlasseReihenfolge(1, 0, 0, 0) = on ? 0 : 1; }},
    {"Niemand hat Punkte",
     [](Trap &t, bool on) {
       t.store.Rennen.WertZeit = 0;
       t.row(3).Punkte = on ? 0 : 7;
     }},
    {"Niemand in einer Gruppe",
     [](Trap &t, bool on) {
       t.store.Rennen.WertKlassen = 0;
       t.row(3).GruppeNr = on ? 0 : 1;
     }},
    {"Erstes Rennen", [](Trap &t, bool on) { t.store.AktRennen = on ? 0 : 1; }},
    {"Name nicht eingetragen", [](Trap &t, bool on) { t.show("Text2", on ? "Rennen 2" : "Rennen "); }},
    {"Graue Knöpfe", [](Trap &t, bool on) { t.show("Text2", "Rennen", "Command4", on ? "0" : "1"); }},
    {"Rennen ohne Namen",
     [](Trap &t, bool on) { t.store.Rennen.RennenName.clear(), t.show("Text2", on ? "" : "Slalom"); }},
    {"Löschen nimmt Zeiten", [](Trap &t, bool on) { on ? RennDatenSpeichern(t.store) : void(); }},
    {"Löschen eines Cuprennens",
     [](Trap &t, bool on) {
       saveCup(t.store, {"Cup", {on ? 1 : 2}});
     }},
    {"Kopie überschreibt", [](Trap &t, bool on) { t.races(2), t.show("Text2", on ? "1" : "3"); }},
    {"Kopie auf sich selbst", [](Trap &t, bool on) { t.show("Text2", "1", "Check1", on ? "0" : "1"); }},
    {"Kopie ohne Nummer", [](Trap &t, bool on) { t.show("Text2", on ? "30001" : "30000"); }},
    {"Kopie eines anderen Rennens",
     [](Trap &t, bool on) { t.show("Label1", on ? "Vom Rennen 11 kann" : "Vom Rennen 1 kann"); }},
    {"Kopie über 999", [](Trap &t, bool on) { t.show("Text2", on ? "1000" : "999"); }},
    {"Löschen aus der Liste",
     [](Trap &t, bool on) {
       t.row(2).StartNr = 0, t.row(2).Zeit1 = on ? 40 : 0, t.show("Label5", "BERG Max", "Label7", "2");
     }},
    {"Neuaufnahme", [](Trap &t, bool on) { t.show("Command5", "1", "Text1", on ? "MAI" : "BER"); }},
    {"Filter", [](Trap &t, bool on) { t.show("Text2", on ? "ber" : " "); }},
    {"Kombilauf", [](Trap &t, bool on) { on ? saveSingleTimes(t.store) : void(); }},
    {"Zweimal im Feld", [](Trap &t, bool on) { t.test.enter(on ? 2 : t.test.addAthlete("D", 1990, 0)); }},
    {"Liste voll",
     [](Trap &t, bool on) {
       for (int n = 1; n <= (on ? 990 : 989); ++n)
         t.row(n).LaeuferNr = 1;
     }},
    {"Verein nicht gewählt",
     [](Trap &t, bool on) {
       t.row(2).VereinNr = 0;
       t.athlete(2, [on](auto &athlete) { athlete.Verein2 = on ? 2 : 3; });
     }},
    {"Nummer nicht gespeichert", [](Trap &t, bool on) { t.show("Label6", "2", "Text1", on ? "3" : "4"); }},
    {"Häkchen nach dem Losen", [](Trap &t, bool on) { t.store.TnIdx = on ? 3 : 2, t.show("Label6", "2"); }},
    {"Reserve", [](Trap &t, bool on) { t.show("Text2", on ? "32768" : "32767"); }},
    {"Neu losen", [](Trap &t, bool on) { t.show("Command3", on ? "1" : "0"); }},
    {"Nummern einer Klasse",
     [](Trap &t, bool on) { t.row(3).KlasseNr = 2, t.show("Command11", "1", "Combo2", "0", "Text3", on ? "2" : "1"); }},
};

const std::vector<Case> OfTimes{
    {"Zeit wird ersetzt",
     [](Trap &t, bool on) {
       t.times(40, on ? 41. : 0., 42);
       t.show("Label11", "2", "Fokus", "Text1");
     }},
    {"Zeit in Teilen", [](Trap &t, bool on) { t.show("Fokus", on ? "Text9" : "Text6"); }},
    {"Keine Zeit", [](Trap &t, bool on) { t.show("Label11", "1", "Text1", on ? "1.2.3" : "1.2"); }},
    {"Keine zweite Zeit",
     [](Trap &t, bool on) { t.store.Rennen.ZweiDurchgaenge = 1, t.show("Label11", "1", "Text6", on ? "x" : ""); }},
    {"Punkte verlieren Bruchteile", [](Trap &t, bool on) { t.show("Text5", on ? "12.5" : "12"); }},
    {"Zeit passt nicht", [](Trap &t, bool on) { t.times(40, 41, on ? 62. : 61.); }},
    {"Zweite Zeit passt nicht",
     [](Trap &t, bool on) {
       for (int n = 1; n <= 3; ++n)
         t.row(n).Zeit2 = n == 2 && on ? 4 : 40 + n;
     }},
    {"Gleiche Zeit", [](Trap &t, bool on) { t.times(40, on ? 40. : 41., on ? 41. : 40.); }},
    {"Gleiche zweite Zeit", [](Trap &t, bool on) { t.row(1).Zeit2 = 40, t.row(on ? 2 : 3).Zeit2 = 40; }},
    {"Hilfszeit im 2. Durchgang", [](Trap &t, bool on) { t.show("Option5", on ? "1" : "0"); }},
    {"Status und Zeit", [](Trap &t, bool on) { t.row(1).Status1 = 2, t.row(on ? 1 : 2).Zeit1 = 40; }},
    {"Leerer Status", [](Trap &t, bool on) { t.row(1).Status2 = on ? 4 : 3; }},
    {"Punkte ohne Zeit", [](Trap &t, bool on) { t.store.Rennen.WertZeit = on ? 0 : 1, t.row(1).Punkte = 7; }},
    {"Ohne Zeit", [](Trap &t, bool on) { t.times(40, 41, on ? 0. : 42.); }},
    {"Ohne zweite Zeit", [](Trap &t, bool on) { t.times(40, on ? 41. : 0.), t.row(1).Zeit2 = 40; }},
    {"Vorläufiges Ergebnis", [](Trap &t, bool on) { t.show("Check1", on ? "1" : "0"); }},
    {"Hilfszeit zu kurz", [](Trap &t, bool on) { t.show("Text2", on ? "0,9" : "1,1"); }},
    {"Hilfszeit keine Zahl", [](Trap &t, bool on) { t.show("Text1", on ? "12:30" : "12.3", "Text6", "20"); }},
    {"Hilfszeit ersetzt", [](Trap &t, bool on) { t.store.TnIdx = 2, t.row(2).Zeit1 = on ? 40 : 0; }},
    {"Verein fehlt", [](Trap &t, bool on) { t.show("Check1", "1", "Combo3", on ? "-1" : "0"); }},
    {"Urkunden",
     [](Trap &t, bool on) { t.times(40, 41, 42), ErgebnisRechnen(t.store, on ? std::optional(2) : std::nullopt); }},
    {"Titel zu lang", [](Trap &t, bool on) { t.store.Rennen.RennenKurz = QString(on ? 30 : 10, u'W'); }},
};

const std::vector<Case> OfPrints{
    {"Logo", [](Trap &t, bool on) { t.picture(on ? "Logo.JPG" : "Logo.jpg", 9, 9); }},
    {"Nummern fehlen", [](Trap &t, bool on) { t.row(2).StartNr = on ? 0 : 7; }},
    {"Nummern doppelt", [](Trap &t, bool on) { t.row(2).StartNr = on ? 3 : 4; }},
    {"Keine Klasse", [](Trap &t, bool on) { t.store.KlasseBis[1] = on ? 1989 : 1990; }},
    {"Klasse ohne Bezeichnung", [](Trap &t, bool on) { t.store.KlasseGenauName[0] = on ? QString() : "A"; }},
    {"Ohne Geburtsdatum",
     [](Trap &t, bool on) { t.athlete(1, [on](auto &athlete) { athlete.Geburtsdatum = on ? 2 : 3; }); }},
    {"Ohne Namen",
     [](Trap &t, bool on) { t.athlete(1, [on](auto &athlete) { athlete.Name = QLatin1String(on ? "" : "X"); }); }},
    {"Ohne Geschlecht gedruckt", [](Trap &t, bool on) { t.sexOf(1, 2), t.store.Rennen.WertGeschlecht = on ? 0 : 1; }},
    {"Zuschlag", [](Trap &t, bool on) { t.store.Rennen.ZuschlagMann = on ? 2 : 0; }},
    {"Jahr zurückgesetzt",
     [](Trap &t, bool on) { t.show("Text5", "1", "Text1", "1900", "Text2", "2010", "Fokus", on ? "List1" : "Text2"); }},
    {"Lücke zwischen Klassen",
     [](Trap &t, bool on) {
       t.store.KlasseName[2] = "Jung", t.store.KlasseVon[2] = on ? 2012 : 2011, t.store.KlasseBis[2] = 2026,
       t.store.KlasseBis[1] = 2010;
     }},
    {"Klassen überschneiden sich",
     [](Trap &t, bool on) {
       t.store.KlasseName[2] = "Jung", t.store.KlasseVon[2] = on ? 2010 : 2011, t.store.KlasseBis[2] = 2026,
       t.store.KlasseBis[1] = 2010;
     }},
    {"Leere Klasse", [](Trap &t, bool on) { t.store.KlasseName[on ? 3 : 2] = "Alt"; }},
    {"Klasse ohne Nummer", [](Trap &t, bool on) { t.show("Label3_0", on ? "0" : "1"); }},
    {"Gleiche Nummer",
     [](Trap &t, bool on) {
       t.store.KlasseName[2] = t.store.KlasseGenauName[8] = "Alt", t.show("Label3_0", "1", "Label3_8", on ? "1" : "2");
     }},
    {"Nummer über 159", [](Trap &t, bool on) { t.show("Label3_0", on ? "160" : "159"); }},
    {"Zuschlag Gäste", [](Trap &t, bool on) { t.show("Text1", on ? "1,5" : "1.5"); }},
    {"Zuschlag Männer", [](Trap &t, bool on) { t.show("Text2", on ? "1,5" : "2"); }},
};

const std::vector<Case> OfTeams{
    {"Wertung nach Punkten", [](Trap &t, bool on) { t.store.Rennen.WertZeit = on ? 0 : 1; }},
    {"Zweite Zeiten übrig", [](Trap &t, bool on) { t.row(1).Zeit2 = 40, t.store.Rennen.ZweiDurchgaenge = on ? 0 : 1; }},
    {"Mannschaften nicht gespeichert", [](Trap &t, bool on) { t.store.MannschaftName[on ? 3 : 2] = "A"; }},
    {"Gruppen nicht gespeichert", [](Trap &t, bool on) { t.store.GruppeName[on ? 3 : 1] = "A"; }},
    {"Mannschaft ohne Namen",
     [](Trap &t, bool on) { t.row(1).MannschaftNr = 2, t.store.MannschaftName[on ? 1 : 2] = "A"; }},
    {"Gruppe ohne Namen", [](Trap &t, bool on) { t.row(1).GruppeNr = on ? 200 : 2, t.store.GruppeName[2] = "A"; }},
    {"Mannschaft leer", [](Trap &t, bool on) { t.store.MannschaftName[1] = "A", t.row(1).MannschaftNr = on ? 0 : 1; }},
    {"Gruppe leer", [](Trap &t, bool on) { t.store.GruppeName[1] = "A", t.row(1).GruppeNr = on ? 2 : 1; }},
    {"Nichts angekreuzt", [](Trap &t, bool on) { t.show("Check2", on ? "0" : "1"); }},
    {"Mannschaft unvollständig",
     [](Trap &t, bool on) {
       t.store.MannschaftName[1] = "A";
       for (int n = 1; n <= 2; ++n) {
         t.row(n).MannschaftNr = 1;
         t.row(n).WertSumme = 40;
       }
       t.show("Check2", "1", "Option3", "1", "Combo2", on ? "1" : "0");
     }},
    {"Verein eines früheren Rennens",
     [](Trap &t, bool on) { t.store.mannschaften.VereinRecNr[1] = 1, t.row(1).VereinNr = on ? 4 : 1; }},
    {"Zu viele Vereine",
     [](Trap &t, bool on) {
       for (int n = 1; n <= (on ? 101 : 100); ++n)
         t.store.mannschaften.VereinRecNr[n] = n;
     }},
    {"Klassen nicht zugeteilt",
     [](Trap &t, bool on) {
       for (int n = 1; n <= 3; ++n)
         t.row(n).KlasseReihe = n == 1 && !on;
     }},
};

const std::vector<Case> OfCups{
    {"Text zu lang", [](Trap &t, bool on) { t.show("Text9", on ? "12345" : "1234"); }},
    {"Ort fehlt", [](Trap &t, bool on) { t.show("Text1", on ? "" : "Tannberg"); }},
    {"Datum des Rennens", [](Trap &t, bool on) { t.show("Text3", on ? "30.2.2026" : "28.2.2026"); }},
    {"Bild fehlt",
     [](Trap &t, bool on) {
       t.picture("werbung.jpg", 9, 9), t.banner(0, on ? "Werbung.jpg" : "werbung.jpg", "20", "240");
     }},
    {"Bild verdeckt",
     [](Trap &t, bool on) {
       t.picture("a.jpg", 96, 96), t.banner(0, "a.jpg", "20", "240"), t.banner(1, "a.jpg", on ? "45" : "46", "240");
     }},
    {"Bild ragt hinaus",
     [](Trap &t, bool on) { t.picture("a.jpg", 96, 96), t.banner(0, "a.jpg", on ? "183" : "170", "240"); }},
    {"Rennnummer über 999", [](Trap &t, bool on) { t.show("List1", on ? " 1234    Lauf" : " 123    Lauf"); }},
    {"Rennen ohne Zeiten",
     [](Trap &t, bool on) {
       t.races(2, [&](int race) { t.row(1).Zeit1 = race == 1 && on ? 0 : 40; });
       t.mark(2);
     }},
    {"Verschiedene Rennen",
     [](Trap &t, bool on) {
       t.races(2, [&](int race) { t.store.KlasseBis[1] = race == 2 && on ? 2025 : 2026; });
       t.mark(2);
     }},
    {"Wer fehlt",
     [](Trap &t, bool on) {
       t.races(2, [&](int race) { t.row(3).LaeuferNr = race == 1 && on ? 0 : 3; });
       t.mark(2);
     }},
    {"Streichresultate", [](Trap &t, bool on) { t.races(2), t.mark(2), t.show("Text3", on ? "2" : "1"); }},
    {"Gleiche Namen im Cup",
     [](Trap &t, bool on) {
       t.test.enter(t.test.addAthlete(on ? "BERG Max" : "BERG Max jun.", 2014, 1)), t.races(1), t.mark(1);
     }},
};

std::string toldIn(const Case &trap, bool on) {
  Trap state;
  trap.make(state, on);
  RaceGlances races;
  const Situation now(state.store, state.shown, races);
  for (const HintRule &rule : hintRules())
    if (std::string(rule.name) == trap.hint)
      return rule.rule(now).text.toStdString();
  return "no such hint";
}

TEST(HintsTest, EachStandsInItsTrapAndNotBesideIt) {
  std::set<std::string> tried;
  for (const auto &cases : {OfRegisters, OfRaces, OfTimes, OfPrints, OfTeams, OfCups})
    for (const Case &trap : cases) {
      tried.insert(trap.hint);
      const std::string told = toldIn(trap, true);
      EXPECT_FALSE(told.empty() || told.find('%') != std::string::npos || told.size() > 140) << trap.hint << told;
      EXPECT_EQ(toldIn(trap, false), "") << trap.hint;
    }
  for (const HintRule &rule : hintRules())
    EXPECT_TRUE(tried.contains(rule.name)) << rule.name;
}

// A broken file may hold anything.
TEST(HintsTest, NoneEndsTheProgram) {
  for (const int odd : {std::numeric_limits<int>::min(), -1, 169, std::numeric_limits<int>::max()}) {
    Trap trap;
    for (int n = 1; n <= 1000; ++n) {
      auto &row = trap.row(n);
      row.LaeuferNr = n % 4 == 0 ? odd : n % 4;
      row.StartNr = row.KlasseNr = row.VereinNr = row.GruppeNr = row.Status1 = row.Status2 = row.KlasseReihe = odd;
      row.MannschaftNr = row.KlasseGenau = qint16(odd);
      row.Zeit1 = row.Zeit2 = odd;
    }
    trap.store.KlasseVon.fill(odd);
    trap.store.KlasseBis.fill(odd);
    trap.store.mannschaften.WertVerein.fill(odd);
    trap.store.mannschaften.WertVereinIdx.fill(odd);
    trap.store.TnIdx = odd;
    const QString text = QString::number(odd);
    for (const char *control : {"Text1", "Text2", "Text3", "Text5", "Text6", "Label5", "Label6", "Label7", "Label11",
                                "Combo2", "Combo3", "Label3_0", "List1"})
      trap.show(control, text);
    for (const char *ticked : {"Option3", "Option5", "Check1", "Command3", "Command5", "Command11"})
      trap.show(ticked, "1");
    HintBook book(trap.store);
    for (const HintRule &rule : hintRules())
      EXPECT_NO_THROW(book.of(QString::fromLatin1(rule.screens).section(u' ', 0, 0), trap.shown)) << rule.name;
  }
}

/// What the pattern captures in the text, in order.
QStringList captured(const char *pattern, const QString &text) {
  QStringList all;
  const QRegularExpression wanted(pattern, QRegularExpression::MultilineOption);
  for (const auto &match : wanted.globalMatch(text))
    all << match.captured(1).simplified();
  return all;
}

// The chapter of the hints lists each, and names each other chapter that has a place to watch.
TEST(HintsTest, TheHandbookListsEach) {
  const QString book = readFile(VEXT_BEISPIEL "/../docs/handbuch.md");
  QString hints;
  std::set<QString> watched, named;
  for (const QString &chapter : book.split(QRegularExpression("\n##+ ([0-9]+\\. )?"))) {
    if (chapter.contains("die Hinweise am Fuß der Schirme\n"))
      hints = chapter;
    else if (!captured("(\\*\\*Achtung[^*]*:\\*\\*)", chapter).isEmpty())
      watched.insert(chapter.section(u'\n', 0, 0));
  }
  for (const QString &chapter : captured("Siehe\\s+Achtung\\s+in\\s+„([^“]+)“", hints))
    named.insert(chapter);
  EXPECT_EQ(named, watched);
  QStringList rules;
  for (const HintRule &rule : hintRules())
    rules << rule.name;
  EXPECT_EQ(captured("^- \\*\\*(.+?)\\*\\*", hints).join(u'\n').toStdString(), rules.join(u'\n').toStdString());
}

} // namespace
