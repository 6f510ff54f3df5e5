#include "printing/ListRows.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

constexpr int RowsBeforeABreak = 10;
constexpr unsigned BandColor = 0xC0C0C0;

} // namespace

ListRow listRow(const Store &store, int row) {
  const auto &participant = store.Teilnehmer[row];
  return {row, participant, LaeuferLesen(store, participant.LaeuferNr)};
}

QString Klassentext(const Store &store, const TeilnehmerZeile &participant) {
  return store.Rennen.WertKlassen == 0 ? store.GruppeName[participant.GruppeNr]
                                       : store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau);
}

QString Klassenspalte(const Store &store) {
  return store.Rennen.WertKlassen == 0 ? QStringLiteral("Gruppe") : QStringLiteral("Klasse");
}

QString Vereinstext(const Store &store, const LaeuferSatz &athlete, const TeilnehmerZeile &participant, bool orLong) {
  const auto club = clubOf(store, athlete, participant);
  if (!club)
    return {};
  const QString kurz = trimmedBlanks(club->VereinKurz);
  return kurz.isEmpty() && orLong ? trimmedBlanks(club->VereinName) : kurz;
}

int abschnittOf(const QString &line) {
  constexpr int keyLength = 3;
  return int(wholeNumber(QStringView(line).left(keyLength)));
}

bool seiteVoll(const Druckschicht &druck, int zeilenNr, double limit) {
  return zeilenNr > RowsBeforeABreak && double(druck.CurrentY) > limit;
}

void Klassenbalken(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int zeilenNr,
                   double left, double right, double textX) {
  druck.list().begin({Klassenspalte(store)}, {Klassentext(store, participant)});
  const double y = gitterY(zeilenNr);
  druck.FilledBox(left, y + 2 - 2.1, right, y + 2 + 2.5, BandColor);
  druck.FontSize = 11;
  druck.FontBold = false;
  druck.FontItalic = true;
  druck.CurrentX = float(textX);
  druck.CurrentY = float(y);
  druck.Print(Klassentext(store, participant) + QLatin1Char(' '), Druckschicht::End::Continued);
  druck.FontItalic = false;
}
