#include "printing/CupColumns.h"

#include "core/ValueFormats.h"
#include "platform/Numbers.h"
#include "printing/ListRows.h"
#include "printing/PrintHelpers.h"

#include <algorithm>

namespace {

constexpr int WideRounds = 5;
constexpr double WidePitch = 28;
/// What narrow columns share: from the year of birth to the total.
constexpr double NarrowLeft = 107, NarrowRight = 251;
constexpr double HeadSize = 11, CellSize = 9, SmallestSize = 4, SizeStep = 0.5;

QString roundHead(int round) {
  return plainText(round) + QStringLiteral(". Lauf");
}

const QString &pointsHead() {
  static const QString head = QStringLiteral("  Pkte");
  return head;
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

void CupColumns::fitSize(const QList<int> &persons) {
  const double pitch = (NarrowRight - NarrowLeft) / m_store.CupRunden;
  m_druck.FontBold = m_druck.FontItalic = false;
  for (m_size = CellSize; m_size > SmallestSize; m_size -= SizeStep) {
    m_druck.FontSize = m_size;
    if (widthOfCells(persons) <= pitch)
      break;
  }
  m_pointsWidth = double(m_druck.TextWidth(pointsHead()));
  m_gap = double(m_druck.TextWidth(QStringLiteral(" ")));
}

// Two blanks keep the points from the next time.
double CupColumns::widthOfCells(const QList<int> &persons) const {
  double widest = double(m_druck.TextWidth(roundHead(m_store.CupRunden)));
  for (const int person : persons)
    for (int round = 1; round <= m_store.CupRunden; ++round)
      widest = std::max(widest, double(m_druck.TextWidth(timeText(person, round))));
  return widest + double(m_druck.TextWidth(pointsHead() + QStringLiteral("  ")));
}

double CupColumns::edge(int round) const {
  const double pitch = (NarrowRight - NarrowLeft) / m_store.CupRunden;
  return NarrowLeft + pitch * round - m_pointsWidth;
}

// Smaller heads stand on one line with the others.
double CupColumns::sameBaseline(double y) const {
  constexpr double ascentOfAPoint = 0.905 * 25.4 / 72;
  return y + (HeadSize - m_size) * ascentOfAPoint;
}

void CupColumns::printHeads(double y) const {
  m_druck.FontSize = narrow() ? m_size : HeadSize;
  for (int round = 1; round <= m_store.CupRunden; ++round) {
    if (narrow()) {
      printRightAligned(round, sameBaseline(y), roundHead(round));
      Zelle(m_druck, edge(round), sameBaseline(y), pointsHead());
    } else {
      Zelle(m_druck, 85 + WidePitch * round, y, roundHead(round));
      Zelle(m_druck, 100 + WidePitch * round, y, trimmedBlanks(pointsHead()));
    }
  }
  m_druck.FontSize = HeadSize;
}

void CupColumns::printRounds(int person, double y) const {
  m_druck.FontSize = m_size;
  for (int round = 1; round <= m_store.CupRunden; ++round)
    narrow() ? printNarrow(person, round, y) : printWide(person, round, y);
  m_druck.FontSize = CellSize;
}

// A status stands further right than a time.
void CupColumns::printWide(int person, int round, double y) const {
  const double time = m_store.CupZeit(person, round);
  if (m_store.CupStatus(person, round) > 0)
    Zelle(m_druck, 91 + WidePitch * round, y, timeText(person, round));
  else
    Zelle(m_druck, 82 + WidePitch * round, y, time == 0 ? timeText(person, round) : ZeitDruckText(m_druck, time));
  Zelle(m_druck, 100 + WidePitch * round, y, points(person, round));
}

void CupColumns::printNarrow(int person, int round, double y) const {
  printRightAligned(round, y, timeText(person, round));
  Zelle(m_druck, edge(round) + m_gap, y, points(person, round));
}

void CupColumns::printRightAligned(int round, double y, const QString &text) const {
  m_druck.CurrentX = float(edge(round));
  m_druck.CurrentY = float(y);
  RechtsDrucken(m_druck, text);
}

QString CupColumns::timeText(int person, int round) const {
  if (const int status = m_store.CupStatus(person, round); status > 0)
    return m_store.StatusText[status];
  const double time = m_store.CupZeit(person, round);
  return time == 0 ? QStringLiteral("-") : ZeitText(time);
}

PrintItem CupColumns::points(int person, int round) const {
  if (m_store.CupStreich(person, round) == 1)
    return narrow() ? QStringLiteral(" X") : QStringLiteral("X");
  return m_store.CupPunkte(person, round);
}
