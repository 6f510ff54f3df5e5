#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/PrintHelpers.h"

#include <QFile>

#include <algorithm>

namespace {

struct Counts {
  int amStart = 0, disqualifiziert = 0, nichtImZiel = 0;
  int imZiel() const { return amStart - disqualifiziert - nichtImZiel; }
};

// Quirk: two statuses count twice. Nobody is moved from one count to another.
Counts countField(const Store &store) {
  Counts counts;
  for (const int row : store.Teilnehmer.rows()) {
    const auto &participant = store.Teilnehmer[row];
    if (participant.StartNr == 0)
      continue;
    const auto has = [&participant](int status) {
      return participant.Status1 == status || participant.Status2 == status;
    };
    counts.amStart += !has(Status::NaS);
    counts.disqualifiziert += has(Status::Dis);
    counts.nichtImZiel += has(Status::NiZ);
  }
  return counts;
}

/// The facts stand in two columns of labels and values.
void printFact(Druckschicht &druck, double labelX, double y, const QString &label, const PrintItem &value) {
  druck.FontBold = true;
  druck.CurrentX = float(labelX);
  druck.CurrentY = float(y);
  RechtsDrucken(druck, label);
  druck.FontBold = false;
  druck.CurrentX = float(labelX + 2);
  druck.CurrentY = float(y);
  druck.Print(value);
}

void left(Druckschicht &druck, double y, const QString &label, const PrintItem &value) {
  printFact(druck, 58, y, label, value);
}

void right(Druckschicht &druck, double y, const QString &label, const PrintItem &value) {
  printFact(druck, 153, y, label, value);
}

void printOfficials(const RennenSatz &race, Druckschicht &druck) {
  left(druck, 125, QStringLiteral("Ort:"), race.RennenOrt);
  right(druck, 125, QStringLiteral("Datum:"), shortDate(fromDays(race.RennenDatum)));
  left(druck, 130, QStringLiteral("Zeit:"), race.Startzeit);
  right(druck, 130, QStringLiteral("Durchführender Verein:"), race.DurchfVerein);
  left(druck, 135, QStringLiteral("Veranstalter:"), race.Veranstalter);
  if (leadingNumber(race.Tore) >= 1)
    right(druck, 135, QStringLiteral("Anzahl der Tore:"), race.Tore);
  if (!race.Rennleiter.isEmpty())
    left(druck, 140, QStringLiteral("Rennleiter:"), race.Rennleiter);
  if (!race.Kurssetzung.isEmpty())
    right(druck, 140, QStringLiteral("Kurssetzung:"), race.Kurssetzung);
  left(druck, 145, QStringLiteral("Startrichter:"), race.Startrichter);
  right(druck, 145, QStringLiteral("Zielrichter:"), race.Zielrichter);
  left(druck, 150, QStringLiteral("Zeitnehmung/Auswertung:"), race.Zeitnehmung);
  right(druck, 150, QStringLiteral("Chefkampfrichter:"), race.Chefkampfrichter);
}

void printCounts(const Store &store, Druckschicht &druck) {
  const Counts counts = countField(store);
  left(druck, 160, QStringLiteral("Läufer am Start:"), counts.amStart);
  right(druck, 160, QStringLiteral("Läufer im Ziel:"), counts.imZiel());
  left(druck, 165, QStringLiteral("Disqualifiziert:"), counts.disqualifiziert);
  right(druck, 165, QStringLiteral("Läufer nicht im Ziel:"), counts.nichtImZiel);
}

// Without banners the signatures move down by 20 mm.
void printSignatures(Druckschicht &druck, bool banners) {
  const double shift = banners ? 0 : 20;
  druck.FontSize = 10;
  druck.FontBold = false;
  druck.CurrentY = float(210 + shift);
  ViertelDrucken(druck, QStringLiteral("Für die Rennleitung"));
  druck.CurrentY = float(210 + shift);
  DreiviertelDrucken(druck, QStringLiteral("Für den Chefkampfrichter"));
  druck.DrawWidth = 3;
  druck.Line(20, 209 + shift, 93, 209 + shift);
  druck.Line(123, 209 + shift, 185, 209 + shift);
}

void printFoot(const Store &store, Druckschicht &druck, bool banners) {
  druck.DrawWidth = 5;
  if (banners)
    druck.Line(Titelfuss::Links, Titelfuss::LinieY, Titelfuss::Rechts, Titelfuss::LinieY);
  druck.FontBold = true;
  druck.FontSize = 8;
  druck.CurrentY = float(Titelfuss::TextY);
  if (banners)
    MitteDrucken(druck, QStringLiteral("Mit freundlicher Unterstützung von"));
  druck.FontBold = false;
  druck.FontItalic = true;
  druck.CurrentX = 185;
  druck.CurrentY = 278;
  RechtsDrucken(druck,
                trimmedBlanks(store.Rennen.RennenOrt) + QStringLiteral(", am ") + shortDate(store.umgebung.today()));
}

void printBanner(const Store &store, Druckschicht &druck, const SponsorBanner &banner) {
  const QString path = store.DatenOrdner + banner.file;
  if (!banner.chosen || banner.file.isEmpty() || !QFile::exists(path))
    return;
  const PrintPicture picture = druck.LoadPicture(path);
  const double scale = leadingNumber(banner.size) / 100;
  druck.PaintPicture(picture, leadingNumber(banner.right), leadingNumber(banner.down), picture.width() * scale,
                     picture.height() * scale);
}

} // namespace

void Titelblatt(const Store &store, Druckschicht &druck, const Werbung &werbung) {
  beginDocument(store, druck, QStringLiteral("Titelblatt"));
  Deckkopf(store, druck);
  druck.FontSize = 48;
  druck.CurrentY = 70;
  MitteDrucken(druck, QStringLiteral("Offizielle"));
  druck.CurrentY = 87;
  MitteDrucken(druck, QStringLiteral("Ergebnisliste"));
  druck.FontSize = 12;
  printOfficials(store.Rennen, druck);
  printCounts(store, druck);
  const bool banners = std::any_of(werbung.begin(), werbung.end(), [](const SponsorBanner &b) { return b.chosen; });
  printSignatures(druck, banners);
  printFoot(store, druck, banners);
  for (const SponsorBanner &banner : werbung)
    printBanner(store, druck, banner);
  druck.EndDoc();
}
