#include "evaluation/CupColumns.h"

#include "core/ValueFormats.h"
#include "platform/Numbers.h"
#include "printing/ListRows.h"
#include "printing/PrintHelpers.h"

#include <algorithm>

namespace {

constexpr int WideRounds = 5;
constexpr double WidePitch = 28;
/// What narrow columns share, from the year of birth to the total, and where the total ends.
constexpr double NarrowLeft = 107, NarrowRight = 253, TotalRight = 270;
constexpr double HeadSize = 11, CellSize = 9, SmallestSize = 7, SizeStep = 0.5;

QString roundHead(int round) {
  return plainText(round) + QStringLiteral(". Lauf");
}

// How much lower a text of the smaller size begins to stand on the line of the larger one.
double toBaseline(double size, double smallerSize) {
  constexpr double ascentOfAPoint = 0.905 * 25.4 / 72;
  return (size - smallerSize) * ascentOfAPoint;
}

} // namespace

CupColumns::CupColumns(const Store &store, Druckschicht &druck, const QList<int> &persons)
    : m_store(store), m_druck(druck), m_size(CellSize) {
  if (narrow())
    fitSize(persons);
}

bool CupColumns::narrow() const {
  return m_store.CupRunden > WideRounds;
}

double CupColumns::pitch() const {
  return (NarrowRight - NarrowLeft) / m_store.CupRunden;
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
  double widest = double(m_druck.TextWidth(roundHead(m_store.CupRunden)));
  for (const int person : persons)
    for (int round = 1; round <= m_store.CupRunden; ++round)
      widest = std::max(widest, double(m_druck.TextWidth(timeText(person, round))));
  return widest + double(m_druck.TextWidth(QStringLiteral("  ")));
}

void CupColumns::printHeads(double y) const {
  if (narrow())
    return printNarrowHeads(y);
  for (int round = 1; round <= m_store.CupRunden; ++round) {
    Zelle(m_druck, 85 + WidePitch * round, y, roundHead(round));
    Zelle(m_druck, 100 + WidePitch * round, y, QStringLiteral("Pkte"));
  }
}

void CupColumns::printNarrowHeads(double y) const {
  const double top = y + toBaseline(HeadSize, m_size);
  m_druck.FontSize = m_size;
  for (int round = 1; round <= m_store.CupRunden; ++round) {
    printRightAligned(NarrowLeft + pitch() * round, top, roundHead(round));
    printRightAligned(NarrowLeft + pitch() * round, top + SecondLine, QStringLiteral("Pkte"));
  }
  m_druck.FontSize = HeadSize;
}

void CupColumns::printRounds(int person, double y) const {
  if (narrow())
    return printNarrow(person, y);
  for (int round = 1; round <= m_store.CupRunden; ++round)
    printWide(person, round, y);
  Zelle(m_druck, 265, y, m_store.CupPunkte(person, 0));
}

// A status stands further right than a time.
void CupColumns::printWide(int person, int round, double y) const {
  const double time = m_store.CupZeit(person, round);
  if (m_store.CupStatus(person, round) > 0)
    Zelle(m_druck, 91 + WidePitch * round, y, timeText(person, round));
  else
    Zelle(m_druck, 82 + WidePitch * round, y, time == 0 ? timeText(person, round) : ZeitDruckText(m_druck, time));
  const int points = m_store.CupPunkte(person, round);
  Zelle(m_druck, 100 + WidePitch * round, y, isStruck(person, round) ? PrintItem(QStringLiteral("X")) : points);
}

void CupColumns::printNarrow(int person, double y) const {
  const double top = y + toBaseline(CellSize, m_size);
  m_druck.FontSize = m_size;
  for (int round = 1; round <= m_store.CupRunden; ++round) {
    const double right = NarrowLeft + pitch() * round;
    const QString points = plainText(m_store.CupPunkte(person, round));
    printRightAligned(right, top, timeText(person, round));
    printRightAligned(right, top + SecondLine, isStruck(person, round) ? QStringLiteral("X") : points);
  }
  m_druck.FontSize = CellSize;
  printRightAligned(TotalRight, y + SecondLine, plainText(m_store.CupPunkte(person, 0)));
}

void CupColumns::printRightAligned(double right, double y, const QString &text) const {
  m_druck.CurrentX = float(right);
  m_druck.CurrentY = float(y);
  RechtsDrucken(m_druck, text);
}

QString CupColumns::timeText(int person, int round) const {
  if (const int status = m_store.CupStatus(person, round); status > 0)
    return m_store.StatusText[status];
  const double time = m_store.CupZeit(person, round);
  return time == 0 ? QStringLiteral("-") : ZeitText(time);
}
