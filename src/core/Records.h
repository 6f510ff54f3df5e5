#pragma once

#include <QByteArray>
#include <QString>

// The working fields of the three record files: one current club, athlete and race each. Texts that are trimmed on
// reading or kept with their padding are told at the Lesen routines. Reserves are kept as the bytes they are.

/// A club; 798 bytes on disk.
struct VereinSatz {
  QString VereinName, VereinKurz, VereinOesvNr, VereinOrt, Ansprechpartner, Adresse, Telefon, EMail, Handy, Homepage;
  /// Four bytes between `Homepage` and the reserve that nobody interprets.
  QByteArray Unbenannt = QByteArray(4, '\0');
  QByteArray VereinReserve;
};

/// What `Geschlecht` holds.
namespace Sex {
enum : qint16 { Female = 0, Male = 1, NotSet = 2 };
}

/// An athlete; 349 bytes on disk.
struct LaeuferSatz {
  /// "FAMILIENNAME Vorname".
  QString Name;
  /// Record numbers of up to three clubs, 0 = none.
  qint16 Verein1 = 0, Verein2 = 0, Verein3 = 0;
  /// Days since 30 December 1899; 2.0 (1 January 1900) = not known.
  double Geburtsdatum = 2;
  qint16 Geschlecht = Sex::NotSet;
  QString OesvNr;
  float LaeuferPunkte = 0;
  QByteArray LaeuferReserve;
};

/// A race; 1137 bytes on disk.
struct RennenSatz {
  QString RennenName, RennenKurz, RennenNrText, RennenOrt;
  /// Days since 30 December 1899.
  double RennenDatum = 38553;
  QString Veranstalter;
  /// Seconds, may be negative.
  double ZuschlagGast = 0, ZuschlagMann = 0;
  /// Criteria, 0 or 1: by classes (else groups), split by sex, guests split off, by time (else points), two runs,
  /// boarders split off.
  quint8 WertKlassen = 0, WertGeschlecht = 0, WertGaeste = 0, WertZeit = 0, ZweiDurchgaenge = 0, WertBoarder = 0;
  /// Choices of the print screen, list positions from 0.
  qint16 UrkundeBild = 0, BestzeitText = 0;
  quint8 BestzeitAbKlasse = 0;
  QString DurchfVerein, Startzeit = QStringLiteral("12:00"), Rennleiter, Kurssetzung, Tore = QStringLiteral("0");
  QString Startrichter, Zielrichter, Zeitnehmung, Chefkampfrichter;
  QString Sponsor1, Sponsor2, Sponsor3, Sponsor4, Sponsor5, Sponsor6;
  QByteArray RennenReserve;
};

// The byte images of the records; an image shorter than its record cannot come from a RecordFile.
VereinSatz vereinFromBytes(const QByteArray &record);
QByteArray toBytes(const VereinSatz &verein);
LaeuferSatz laeuferFromBytes(const QByteArray &record);
QByteArray toBytes(const LaeuferSatz &laeufer);
RennenSatz rennenFromBytes(const QByteArray &record);
QByteArray toBytes(const RennenSatz &rennen);

constexpr int VereinLaenge = 798;
constexpr int LaeuferLaenge = 349;
constexpr int RennenLaenge = 1137;
