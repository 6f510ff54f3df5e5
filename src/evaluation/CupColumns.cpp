#include "evaluation/CupColumns.h"

#include "core/RecordFiles.h"
#include "core/ValueFormats.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/PrintHelpers.h"

#include <algorithm>

namespace {

constexpr int WideRounds = 5;
constexpr double WidePitch = 28;
/// What narrow columns share, from the year of birth to the total, and where the total ends.
constexpr double NarrowLeft = 107, NarrowRight = 253, TotalRight = 270;
constexpr double HeadSize = 11, CellSize = 9, SmallestSize = 7, SizeStep = 0.5;

using Column = Spalte<CupRow>;
using enum Ausrichtung;

QString clubText(const Store &store, const LaeuferSatz &athlete) {
  // The second club is passed over, and the club of the race plays no part; this is meant.
  for (const int club : {int(athlete.Verein1), int(athlete.Verein3)})
    if (club != 0 && club <= store.VereinAnzahl)
      return trimmedBlanks(VereinLesen(store, club).VereinKurz);
  return {};
}

/// The time, the status or "-".
QString timeText(const Store &store, int person, int round) {
  if (const int status = store.cup.CupStatus(person, round); status > Status::Ok)
    return store.StatusText[status];
  const double time = store.cup.CupZeit(person, round);
  return time == 0 ? QStringLiteral("-") : ZeitText(time);
}

Column roundTime(const Store &store, int round) {
  const double x = WidePitch * round;
  return {plainText(round) + QStringLiteral(". Lauf"),
          82 + x,
          Zeit,
          CellSize,
          [&store, round](const CupRow &row) { return timeText(store, row.person, round); },
          85 + x};
}

Column roundPoints(const Store &store, int round) {
  return {QStringLiteral("Pkte"), 100 + WidePitch * round, Links, CellSize, [&store, round](const CupRow &row) {
            return store.cup.CupStreich(row.person, round) == 1 ? PrintItem(QStringLiteral("X"))
                                                                : PrintItem(store.cup.CupPunkte(row.person, round));
          }};
}

// How much lower a text of the smaller size begins to stand on the line of the larger one.
double toBaseline(double size, double smallerSize) {
  constexpr double ascentOfAPoint = 0.905 * 25.4 / 72;
  return (size - smallerSize) * ascentOfAPoint;
}

} // namespace

CupSpalten cupPersonSpalten(const Store &store) {
  const auto place = [](const CupRow &row) { return row.place; };
  const auto name = [](const CupRow &row) { return trimmedBlanks(row.athlete.Name); };
  const auto club = [&store](const CupRow &row) { return clubText(store, row.athlete); };
  const auto year = [](const CupRow &row) { return yearOf(row.athlete.Geburtsdatum); };
  return {inBold(Column(QStringLiteral("Rang"), 25, Links, CellSize, place, 22)),
          {QStringLiteral("Name / Klasse"), 36, Links, CellSize, name},
          withoutHead(Column(QStringLiteral("Verein"), 36, Links, CellSize, club)),
          {QStringLiteral("Jahrg."), 96, Links, CellSize, year}};
}

CupSpalten cupRundenSpalten(const Store &store) {
  CupSpalten columns;
  for (int round = 1; round <= store.cup.CupRunden; ++round)
    columns << roundTime(store, round) << roundPoints(store, round);
  const auto total = [&store](const CupRow &row) { return store.cup.CupPunkte(row.person, 0); };
  return columns << Column(QStringLiteral("Ges. Pkte"), 265, Links, CellSize, total, 255);
}

CupColumns::CupColumns(const Store &store, Druckschicht &druck, const QList<int> &persons)
    : m_store(store), m_druck(druck), m_columns(cupRundenSpalten(store)), m_size(CellSize) {
  if (narrow())
    fitSize(persons);
}

bool CupColumns::narrow() const {
  return m_store.cup.CupRunden > WideRounds;
}

double CupColumns::pitch() const {
  return (NarrowRight - NarrowLeft) / m_store.cup.CupRunden;
}

void CupColumns::fitSize(const QList<int> &persons) {
  m_druck.FontBold = m_druck.FontItalic = false;
  for (m_size = CellSize; m_size > SmallestSize; m_size -= SizeStep) {
    m_druck.FontSize = m_size;
    if (widestCell(persons) <= pitch())
      break;
  }
}

// Two blanks keep a time from the one before.
double CupColumns::widestCell(const QList<int> &persons) const {
  double widest = double(m_druck.TextWidth(time(m_store.cup.CupRunden).kopf));
  for (const int person : persons)
    for (int round = 1; round <= m_store.cup.CupRunden; ++round)
      widest = std::max(widest, double(m_druck.TextWidth(timeText(m_store, person, round))));
  return widest + double(m_druck.TextWidth(QStringLiteral("  ")));
}

double CupColumns::rightOf(int round) const {
  return NarrowLeft + pitch() * round;
}

void CupColumns::printHeads(double y) const {
  if (narrow())
    return printNarrowHeads(y);
  ::printHeads(m_druck, m_columns, y);
}

void CupColumns::printNarrowHeads(double y) const {
  const double top = y + toBaseline(HeadSize, m_size);
  m_druck.FontSize = m_size;
  for (int round = 1; round <= m_store.cup.CupRunden; ++round) {
    printRightAligned(rightOf(round), top, time(round).kopf);
    printRightAligned(rightOf(round), top + SecondLine, points(round).kopf);
  }
  m_druck.FontSize = HeadSize;
  ::printHeads(m_druck, CupSpalten{m_columns.last()}, y);
}

void CupColumns::printRounds(const CupRow &row, double y) const {
  if (narrow())
    return printNarrow(row, y);
  for (int round = 1; round <= m_store.cup.CupRunden; ++round) {
    printWideTime(row, round, y);
    printCell(m_druck, points(round), row, y);
  }
  printCell(m_druck, m_columns.last(), row, y);
}

// A status stands further right than a time, and only a time is right-aligned.
void CupColumns::printWideTime(const CupRow &row, int round, double y) const {
  constexpr double statusShift = 9;
  const auto &column = time(round);
  if (m_store.cup.CupStatus(row.person, round) > Status::Ok)
    Zelle(m_druck, column.zelleX + statusShift, y, column.zelle(row));
  else if (m_store.cup.CupZeit(row.person, round) == 0)
    Zelle(m_druck, column.zelleX, y, column.zelle(row));
  else
    printCell(m_druck, column, row, y);
}

void CupColumns::printNarrow(const CupRow &row, double y) const {
  const double top = y + toBaseline(CellSize, m_size);
  m_druck.FontSize = m_size;
  for (int round = 1; round <= m_store.cup.CupRunden; ++round) {
    printRightAligned(rightOf(round), top, cellText(time(round), row));
    printRightAligned(rightOf(round), top + SecondLine, cellText(points(round), row));
  }
  m_druck.FontSize = CellSize;
  printRightAligned(TotalRight, y + SecondLine, cellText(m_columns.last(), row));
}

void CupColumns::printRightAligned(double right, double y, const QString &text) const {
  m_druck.CurrentX = float(right);
  m_druck.CurrentY = float(y);
  RechtsDrucken(m_druck, text);
}
