#include "hints/Situation.h"

#include "platform/Numbers.h"

#include <algorithm>

namespace {

constexpr qsizetype NamesTold = 3;

QList<Starter> startersOf(const Store &store) {
  QList<Starter> starters;
  if (store.TabellenRennen < 0)
    return starters;
  for (const int row : store.Teilnehmer.rows()) {
    const TeilnehmerZeile &participant = store.Teilnehmer[row];
    if (participant.LaeuferNr == 0)
      continue;
    LaeuferSatz athlete = athleteOf(store, participant.LaeuferNr);
    if (!athlete.Name.isEmpty())
      starters.append({row, participant, std::move(athlete)});
  }
  return starters;
}

} // namespace

qint64 Situation::number(const char *control) const {
  return wholeNumber(text(control));
}

const QList<Starter> &Situation::starters() const {
  if (!m_starters)
    m_starters = startersOf(store);
  return *m_starters;
}

const Starter *Situation::starterOf(qint64 row) const {
  const auto found =
      std::find_if(starters().begin(), starters().end(), [row](const Starter &starter) { return starter.row == row; });
  return found == starters().end() ? nullptr : &*found;
}

LaeuferSatz athleteOf(const Store &store, int number) {
  if (!store.LaeuferDatei.isOpen() || number > store.LaeuferAnzahl || !store.LaeuferDatei.holds(number))
    return {};
  LaeuferSatz athlete = laeuferFromBytes(store.LaeuferDatei.read(number));
  athlete.Name = trimmedBlanks(athlete.Name);
  athlete.Geschlecht = std::clamp<qint16>(athlete.Geschlecht, 0, 2);
  return athlete;
}

VereinSatz clubOf(const Store &store, int number) {
  if (!store.VereinDatei.isOpen() || number > store.VereinAnzahl || !store.VereinDatei.holds(number))
    return {};
  return vereinFromBytes(store.VereinDatei.read(number));
}

QList<int> clubsOf(const Store &store, const LaeuferSatz &athlete) {
  QList<int> clubs;
  for (const int club : {athlete.Verein1, athlete.Verein2, athlete.Verein3})
    if (club >= 1 && club <= store.VereinAnzahl)
      clubs << club;
  return clubs;
}

QString nameOf(const LaeuferSatz &athlete) {
  return shownText(athlete.Name);
}

QString names(const QStringList &all) {
  if (all.size() > NamesTold)
    return QStringLiteral("%1 und %2 weitere")
        .arg(all.first(NamesTold).join(QStringLiteral(", ")))
        .arg(all.size() - NamesTold);
  const QString last = all.value(all.size() - 1);
  return all.size() < 2 ? last : all.first(all.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" und ") + last;
}

QString counted(qsizetype count, const char *one, const char *more) {
  return QStringLiteral("%1 %2").arg(count).arg(QString::fromUtf8(count == 1 ? one : more));
}

QString aboutStarters(const QStringList &who, const char *one, const char *more, const char *sentence) {
  return who.isEmpty() ? QString() : QString::fromUtf8(sentence).arg(counted(who.size(), one, more), names(who));
}
