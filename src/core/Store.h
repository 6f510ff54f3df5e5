#pragma once

#include "core/CupTabellen.h"
#include "core/MannschaftsTabellen.h"
#include "core/RangTabellen.h"
#include "core/Records.h"
#include "platform/RecordFile.h"
#include "platform/Tabelle.h"
#include "platform/Umgebung.h"
#include "platform/WindowPlaces.h"

#include <array>
#include <functional>

struct RaceImage;

/// What `Status1` and `Status2` hold, the row of `StatusText`; a file may hold other numbers.
namespace Status {
enum { Ok = 0, NaS = 1, NiZ = 2, Dis = 3 };
}

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
  int Status1 = Status::Ok;
  /// 0 or 1.
  int Gast = 0;
  /// Row of `MannschaftName`, 0 = none.
  qint16 MannschaftNr = 0;
  double Zeit2 = 0;
  int Status2 = Status::Ok;
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
  QString ProgrammName = QStringLiteral(VEXT_NAME), Version = QStringLiteral(VEXT_VERSION);
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

  // What the evaluations of the open race, or of a series of races, leave behind.
  RangTabellen ranking;
  MannschaftsTabellen mannschaften;
  CupTabellen cup;

  // Built-in tables, set once at the start.
  Tabelle<StandardKlasse, 1, 20> StdKlasse{"StdKlasse"};
  /// "ok", "naS", "niZ", "dis"; rows 4 and 5 are empty.
  Tabelle<QString, 0, 5> StatusText{"StatusText"};

  /// Called by RennDatenSpeichern before the first and after the last file.
  std::function<void()> beforeSaving = [] {}, afterSaving = [] {};
  /// Called before the first and after the last file of what is written all or none: a whole new race, perhaps over
  /// another; registers.
  std::function<void(const RaceImage &)> beforeReplacing = [](const RaceImage &) {};
  std::function<void()> afterReplacing = [] {};
};
