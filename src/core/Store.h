#pragma once

#include "core/Records.h"
#include "platform/RecordFile.h"
#include "platform/Tabelle.h"
#include "platform/Umgebung.h"
#include "platform/WindowPlaces.h"

#include <array>
#include <functional>

struct RaceImage;

/// A row of the participant table; in use when `LaeuferNr` is not 0.
struct TeilnehmerZeile {
  /// Record number of the athlete; 0 = row free.
  int LaeuferNr = 0;
  /// 0 = none given yet.
  int StartNr = 0;
  /// Row of the class table, 0 to 20; set by KlassenZuordnen.
  int KlasseNr = 0;
  /// Which club of the athlete: 0 = not chosen, 1 to 3 = his clubs, 4 = no club.
  int VereinNr = 0;
  /// Row of `GruppeName`, 0 = none.
  int GruppeNr = 0;
  /// Entry fee paid, 0 or 1.
  int Bezahlt = 0;
  float Punkte = 0;
  /// Seconds, unrounded as typed; 0 = no time.
  double Zeit1 = 0;
  /// Stored and reloaded, never used.
  int ZeitReserve = 0;
  /// Index into `StatusText`.
  int Status1 = 0;
  /// 0 or 1.
  int Gast = 0;
  /// Row of `MannschaftName`, 0 = none.
  qint16 MannschaftNr = 0;
  double Zeit2 = 0;
  int Status2 = 0;
  /// 0 or 1.
  qint16 Boarder = 0;
  /// Exact class, 0 to 159: (class − 1) × 8 + male + 2 × guest + 4 × boarder.
  qint16 KlasseGenau = 0;
  /// Order number of the exact class; computed, not stored.
  int KlasseReihe = 0;

  // What the ranking leaves behind; in memory only.

  /// Seconds with surcharges; 0 for a row that is not ranked.
  double WertZeit1 = 0, WertZeit2 = 0, WertSumme = 0;
  /// Place inside the class or group.
  qint16 Rang = 0;
  /// 1 on the first row of each class or group in ranking order.
  qint16 KlasseKopf = 0;
};

/// Order numbers of the exact classes: class row, then the switches sex (1 = male), guest, boarder, each 0 or 1.
class KlassenReihenfolge {
public:
  qint16 &operator()(int klasse, int a, int b, int f);
  qint16 operator()(int klasse, int a, int b, int f) const;

private:
  Tabelle<std::array<qint16, 8>, 0, 21> m_rows{"KlasseReihenfolge"};
};

struct StandardKlasse {
  QString StdKlasseName;
  /// First and last birth year, with `JahrOffset` added.
  qint16 Von = 0, Bis = 0;
};

/// The one store of the program, made once at the start and handed on by reference. Plain data; the routines are free
/// functions over it. `Rennen` is the record of the open race, the tables are what its files hold.
struct Store {
  explicit Store(Umgebung &outside) : umgebung(outside) {}

  Umgebung &umgebung;

  // Settings of the run.
  QString ProgrammName = QStringLiteral("VEXT"), Version = QStringLiteral("2.00");
  /// Prefix of every data file; empty in the program, a folder with "/" in tests.
  QString DatenOrdner;
  QString OrganisationName;
  /// Years by which the built-in classes are shifted.
  float JahrOffset = 0;
  WindowPlaces Fenster;

  // Record files: the file and the highest number in use.
  RecordFile VereinDatei{VereinLaenge}, LaeuferDatei{LaeuferLaenge}, RennenDatei{RennenLaenge};
  int VereinAnzahl = 0, LaeuferAnzahl = 0, RennenAnzahl = 0;
  /// The club and the athlete read or written last. They belong to the routines of core/RecordFiles.h, which give a
  /// number outside the register what is left of them; whoever needs a record reads it by its number.
  mutable VereinSatz Verein;
  mutable LaeuferSatz Laeufer;
  /// The race in work and the number of its record; that is where it will be written.
  RennenSatz Rennen;
  int RennenIdx = 0;
  /// Fourth value of Vext.dat, written back unchanged.
  int VextReserve = 0;

  // The open race.
  int AktRennen = 0;
  /// Number of the race that the tables hold whole; -1 before the first load and while one runs or has failed.
  int TabellenRennen = -1;
  /// Participant row in work, and the counter that the numbering runs leave behind.
  int TnIdx = 0;
  Tabelle<TeilnehmerZeile, 0, 1000> Teilnehmer{"Teilnehmer"};
  /// Class rows 1 to 20; 0 and 21 stay empty. An empty name means the row is not in use.
  Tabelle<QString, 0, 21> KlasseName{"KlasseName"};
  /// First and last birth year, inclusive.
  Tabelle<int, 0, 21> KlasseVon{"KlasseVon"}, KlasseBis{"KlasseBis"};
  /// Participants of each class, and those of them without a status; counted by KlassenZuordnen.
  Tabelle<int, 0, 21> KlasseAnzahl{"KlasseAnzahl"}, KlasseAnzahlOk{"KlasseAnzahlOk"};
  KlassenReihenfolge KlasseReihenfolge;
  /// Exact designations, rows 0 to 159; 160 to 168 stay empty.
  Tabelle<QString, 0, 168> KlasseGenauName{"KlasseGenauName"};
  /// Names, rows 1 to 100; row 0 stays empty.
  Tabelle<QString, 0, 100> MannschaftName{"MannschaftName"}, GruppeName{"GruppeName"};

  // What the ranking leaves behind.
  /// Entry k is the participant row on line k of the ranking.
  Tabelle<int, 1, 1000> RangListe{"RangListe"};
  /// Seconds; 99999 or more if nobody qualifies.
  double BestzeitDamen = 99999, BestzeitHerren = 99999;
  /// The listing of the provisional result, `Form13.List2`.
  QStringList ErgebnisZeilen;

  // What the evaluation of clubs, teams and groups leaves behind; a unit is one of them, numbered 1 to 100.
  /// Record number of the club a row starts for; rows without a club keep what they had.
  Tabelle<int, 1, 1000> VereinRecNr{"VereinRecNr"};
  /// Record number of the club with unit number k; 0 = free.
  Tabelle<int, 1, 100> WertVerein{"WertVerein"};
  /// Unit number of the row's club; 0 = none.
  Tabelle<int, 1, 1000> WertVereinIdx{"WertVereinIdx"};
  /// `Geschlecht`, copied for the filter.
  Tabelle<qint16, 1, 1000> TnGeschlecht{"TnGeschlecht"};
  /// Value of unit k in seconds, the lower the better.
  Tabelle<double, 1, 100> WertErgebnis{"WertErgebnis"};
  /// 1 = the time of this row went into a "Zeitsumme der besten".
  Tabelle<qint16, 1, 1000> WertGezaehlt{"WertGezaehlt"};

  // What a cup or a time sum leaves behind: entries are persons of a cup, or participant rows of a time sum; rounds 1
  // to 10.
  /// Points for place n.
  Tabelle<qint16, 1, 100> CupPunkteTabelle{"CupPunkteTabelle"};
  /// Record number of the athlete; 0 ends the table.
  Tabelle<int, 1, 1000> CupLaeufer{"CupLaeufer"};
  /// `KlasseGenau` in the first race in which the person was found.
  Tabelle<int, 1, 1000> CupKlasse{"CupKlasse"};
  Tabelle<QString, 0, 159> CupKlasseName{"CupKlasseName"};
  int CupRunden = 0;
  /// Place in the round, 99 = not in that race.
  Tabelle2<int, 1, 1000, 1, 10> CupRang{"CupRang"};
  /// Seconds, 0 = absent. Round 0 of a time sum holds the sum.
  Tabelle2<double, 1, 1000, 0, 10> CupZeit{"CupZeit"};
  /// Status of the run, 1 if absent. Round 0 of a time sum holds the status of the sum.
  Tabelle2<int, 1, 1000, 0, 10> CupStatus{"CupStatus"};
  /// 1 = struck.
  Tabelle2<int, 1, 1000, 1, 10> CupStreich{"CupStreich"};
  /// Points; round 0 holds the total.
  Tabelle2<int, 1, 1000, 0, 10> CupPunkte{"CupPunkte"};
  /// `RennenKurz` of the race of each round of a time sum.
  Tabelle<QString, 1, 10> ZeitsummeRennenKurz{"ZeitsummeRennenKurz"};

  // Built-in tables, set once at the start.
  Tabelle<StandardKlasse, 1, 20> StdKlasse{"StdKlasse"};
  /// "ok", "naS", "niZ", "dis"; rows 4 and 5 are empty.
  Tabelle<QString, 0, 5> StatusText{"StatusText"};

  /// Called by RennDatenSpeichern before the first and after the last file.
  std::function<void()> vorDemSpeichern = [] {}, nachDemSpeichern = [] {};
  /// Called before the first and after the last file of a race that is written as a whole new one, perhaps over
  /// another.
  std::function<void(const RaceImage &)> vorDemErsetzen = [](const RaceImage &) {};
  std::function<void()> nachDemErsetzen = [] {};
};
