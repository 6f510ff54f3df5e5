#include "core/Store.h"

namespace {

std::size_t switchPosition(int a, int b, int f) {
  for (const int value : {a, b, f})
    if (value < 0 || value > 1)
      throw RangeFault(QStringLiteral("KlasseReihenfolge"), value, 0, 1);
  return std::size_t(a) + 2 * std::size_t(b) + 4 * std::size_t(f);
}

} // namespace

qint16 &KlassenReihenfolge::operator()(int klasse, int a, int b, int f) {
  return m_rows[klasse][switchPosition(a, b, f)];
}

qint16 KlassenReihenfolge::operator()(int klasse, int a, int b, int f) const {
  return m_rows[klasse][switchPosition(a, b, f)];
}
