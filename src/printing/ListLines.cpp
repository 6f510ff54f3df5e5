#include "printing/ListLines.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

constexpr int LinesBeforeABreak = 10;
constexpr unsigned BandColor = 0xC0C0C0;

} // namespace

ListLine lineForRow(const Store &store, int row) {
  const auto &participant = store.Teilnehmer[row];
  return {row, participant, LaeuferLesen(store, participant.LaeuferNr)};
}

QString classOrGroup(const Store &store, const TeilnehmerZeile &participant) {
  return store.Rennen.WertKlassen == 0 ? store.GruppeName[participant.GruppeNr]
                                       : store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau);
}

QString classHead(const Store &store) {
  return store.Rennen.WertKlassen == 0 ? QStringLiteral("Gruppe") : QStringLiteral("Klasse");
}

QString clubShown(const Store &store, const LaeuferSatz &athlete, const TeilnehmerZeile &participant, bool orLong) {
  const auto club = clubOf(store, athlete, participant);
  if (!club)
    return {};
  const QString kurz = trimmedBlanks(club->VereinKurz);
  return kurz.isEmpty() && orLong ? trimmedBlanks(club->VereinName) : kurz;
}

int sectionOfLine(const QString &line) {
  constexpr int keyLength = 3;
  return int(wholeNumber(QStringView(line).left(keyLength)));
}

bool isPageFull(const Druckschicht &druck, int pageLine, double limit) {
  return pageLine > LinesBeforeABreak && double(druck.CurrentY) > limit;
}

void Klassenbalken(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int pageLine,
                   double left, double right, double textX) {
  druck.list().begin({classHead(store)}, {classOrGroup(store, participant)});
  const double y = gridY(pageLine);
  druck.FilledBox(left, y + 2 - 2.1, right, y + 2 + 2.5, BandColor);
  druck.FontSize = 11;
  druck.FontBold = false;
  druck.FontItalic = true;
  druck.CurrentX = float(textX);
  druck.CurrentY = float(y);
  druck.Print(classOrGroup(store, participant) + QLatin1Char(' '), Druckschicht::End::Continued);
  druck.FontItalic = false;
}
