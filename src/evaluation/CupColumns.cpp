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

using CupListColumn = Column<CupLine>;
using enum Alignment;

QString clubText(const Store &store, const LaeuferSatz &athlete) {
  // Quirk: second club passed over. The club of the race plays no part either.
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

CupListColumn roundTime(const Store &store, int round) {
  const double x = WidePitch * round;
  return {plainText(round) + QStringLiteral(". Lauf"),
          82 + x,
          Time,
          CellSize,
          [&store, round](const CupLine &line) { return timeText(store, line.person, round); },
          85 + x};
}

CupListColumn roundPoints(const Store &store, int round) {
  return {QStringLiteral("Pkte"), 100 + WidePitch * round, Left, CellSize, [&store, round](const CupLine &line) {
            return store.cup.CupStreich(line.person, round) == 1 ? PrintItem(QStringLiteral("X"))
                                                                 : PrintItem(store.cup.CupPunkte(line.person, round));
          }};
}

// How much lower a text of the smaller size begins to stand on the line of the larger one.
double toBaseline(double size, double smallerSize) {
  constexpr double ascentOfAPoint = 0.905 * 25.4 / 72;
  return (size - smallerSize) * ascentOfAPoint;
}

} // namespace

CupListColumns cupPersonColumns(const Store &store) {
  const auto place = [](const CupLine &line) { return line.place; };
  const auto name = [](const CupLine &line) { return trimmedBlanks(line.athlete.Name); };
  const auto club = [&store](const CupLine &line) { return clubText(store, line.athlete); };
  const auto year = [](const CupLine &line) { return yearOf(line.athlete.Geburtsdatum); };
  return {inBold(CupListColumn(QStringLiteral("Rang"), 25, Left, CellSize, place, 22)),
          {QStringLiteral("Name / Klasse"), 36, Left, CellSize, name},
          withoutHead(CupListColumn(QStringLiteral("Verein"), 36, Left, CellSize, club)),
          {QStringLiteral("Jahrg."), 96, Left, CellSize, year}};
}

CupListColumns cupRoundColumns(const Store &store) {
  CupListColumns columns;
  for (int round = 1; round <= store.cup.CupRunden; ++round)
    columns << roundTime(store, round) << roundPoints(store, round);
  const auto total = [&store](const CupLine &line) { return store.cup.CupPunkte(line.person, 0); };
  return columns << CupListColumn(QStringLiteral("Ges. Pkte"), 265, Left, CellSize, total, 255);
}

CupColumns::CupColumns(const Store &store, Druckschicht &druck, const QList<int> &persons)
    : m_store(store), m_druck(druck), m_columns(cupRoundColumns(store)), m_size(CellSize) {
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
  double widest = double(m_druck.TextWidth(time(m_store.cup.CupRunden).head));
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
    printRightAligned(rightOf(round), top, time(round).head);
    printRightAligned(rightOf(round), top + SecondLine, points(round).head);
  }
  m_druck.FontSize = HeadSize;
  ::printHeads(m_druck, CupListColumns{m_columns.last()}, y);
}

void CupColumns::printRounds(const CupLine &line, double y) const {
  if (narrow())
    return printNarrow(line, y);
  for (int round = 1; round <= m_store.cup.CupRunden; ++round) {
    printWideTime(line, round, y);
    printCell(m_druck, points(round), line, y);
  }
  printCell(m_druck, m_columns.last(), line, y);
}

// A status stands further right than a time, and only a time is right-aligned.
void CupColumns::printWideTime(const CupLine &line, int round, double y) const {
  constexpr double statusShift = 9;
  const auto &column = time(round);
  if (m_store.cup.CupStatus(line.person, round) > Status::Ok)
    printItemAt(m_druck, column.cellX + statusShift, y, column.cell(line));
  else if (m_store.cup.CupZeit(line.person, round) == 0)
    printItemAt(m_druck, column.cellX, y, column.cell(line));
  else
    printCell(m_druck, column, line, y);
}

void CupColumns::printNarrow(const CupLine &line, double y) const {
  const double top = y + toBaseline(CellSize, m_size);
  m_druck.FontSize = m_size;
  for (int round = 1; round <= m_store.cup.CupRunden; ++round) {
    printRightAligned(rightOf(round), top, cellText(time(round), line));
    printRightAligned(rightOf(round), top + SecondLine, cellText(points(round), line));
  }
  m_druck.FontSize = CellSize;
  printRightAligned(TotalRight, y + SecondLine, cellText(m_columns.last(), line));
}

void CupColumns::printRightAligned(double right, double y, const QString &text) const {
  m_druck.CurrentX = float(right);
  m_druck.CurrentY = float(y);
  RechtsDrucken(m_druck, text);
}
