#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/ListColumns.h"
#include "printing/PrintHelpers.h"

namespace {

constexpr double LeftEdge = 20, RightEdge = 185;

/// Place of a picture on the certificate, millimetres.
struct PicturePlace {
  double x, y, width, height;
};
constexpr PicturePlace Pictures[] = {{50, 105, 100, 65}, {52, 98, 100, 80}, {54, 105, 100, 75}, {56, 97, 90, 84},
                                     {80, 97, 40, 84},   {80, 97, 34, 84},  {56, 97, 80, 84},   {70, 97, 60, 84}};

void setFont(Druckschicht &druck, double size, bool bold, bool italic = false) {
  druck.FontSize = size;
  druck.FontBold = bold;
  druck.FontItalic = italic;
}

void printCentred(Druckschicht &druck, double y, const QString &text) {
  druck.CurrentY = float(y);
  MitteDrucken(druck, text);
}

void printHeading(const Store &store, Druckschicht &druck) {
  setFont(druck, 85, true);
  druck.FontName = QStringLiteral("Fraktur BT");
  printCentred(druck, 65, QStringLiteral("Urkunde"));
  druck.FontName = QStringLiteral("Times");
  const int picture = store.Rennen.UrkundeBild;
  if (picture < 0 || picture >= int(std::size(Pictures)))
    return;
  const PicturePlace &place = Pictures[picture];
  druck.PaintPicture(druck.LoadPicture(QStringLiteral(":/bild%1.jpg").arg(picture + 1)), place.x, place.y, place.width,
                     place.height);
}

// Quirk: best time on certificates. The sum alone decides, not the sex: a man with the best sum of the women gets the
// remark too.
QString timeLine(const Store &store, const Druckschicht &druck, const TeilnehmerZeile &participant, int sex) {
  QString line = QStringLiteral("Zeit: ") + ZeitDruckText(druck, participant.WertSumme);
  const double sum = participant.WertSumme;
  if (sum != 0 && (sum == store.ranking.BestzeitDamen || sum == store.ranking.BestzeitHerren))
    line += QStringLiteral("   ") + bestTimeRemark(store.Rennen.BestzeitText, sex);
  return line +
         (store.Rennen.WertKlassen == 0
              ? QStringLiteral("        Gruppe: ") + store.GruppeName[participant.GruppeNr]
              : QStringLiteral("        Klasse: ") + store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau));
}

void printPlace(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int sex) {
  setFont(druck, 14, false);
  printCentred(druck, 195, QStringLiteral("belegte den"));
  setFont(druck, 32, false);
  printCentred(druck, 205, plainText(participant.Rang) + QStringLiteral(". Rang"));
  setFont(druck, 18, false);
  printCentred(druck, 225, timeLine(store, druck, participant, sex));
}

void printText(Druckschicht &druck, const UrkundenText &text) {
  setFont(druck, 18, false);
  double y = 200;
  for (const QString &line : text) {
    printCentred(druck, y, line);
    y += 10;
  }
}

void printFoot(const Store &store, Druckschicht &druck) {
  setFont(druck, 14, false);
  printCentred(druck, 240, QStringLiteral("am: ") + shortDate(store.umgebung.today()));
  druck.DrawWidth = 3;
  druck.Line(LeftEdge, 260, 75, 260);
  druck.Line(130, 260, RightEdge, 260);
  druck.DrawWidth = 5;
  druck.Line(LeftEdge, 275, RightEdge, 275);
}

} // namespace

// Quirk: title of a certificate. However long it is, its size stays.
void Deckkopf(const Store &store, Druckschicht &druck) {
  druck.FontName = QStringLiteral("Times");
  setFont(druck, 24, false);
  druck.CurrentX = druck.CurrentY = 20;
  druck.Print(store.OrganisationName);
  printLogo(druck, 150, 11);
  druck.DrawWidth = 5;
  druck.Line(LeftEdge, 30, RightEdge, 30);
  setFont(druck, 30, true);
  printCentred(druck, 40, store.Rennen.RennenKurz.isEmpty() ? store.Rennen.RennenName : store.Rennen.RennenKurz);
}

void Urkunde(const Store &store, Druckschicht &druck, int row, const std::optional<UrkundenText> &text) {
  const auto &participant = store.Teilnehmer[row];
  const LaeuferSatz athlete = LaeuferLesen(store, participant.LaeuferNr);
  beginDocument(store, druck, QStringLiteral("Urkunde"), athlete.Name);
  Deckkopf(store, druck);
  printHeading(store, druck);
  setFont(druck, 30, true, true);
  printCentred(druck, 180, athlete.Name);
  if (text)
    printText(druck, *text);
  else
    printPlace(store, druck, participant, athlete.Geschlecht);
  printFoot(store, druck);
  druck.EndDoc();
}
