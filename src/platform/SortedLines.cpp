#include "platform/SortedLines.h"

#include <QCollator>

#include <algorithm>

QStringList SortedLines::take() {
  QCollator german{QLocale(QLocale::German, QLocale::Austria)};
  german.setCaseSensitivity(Qt::CaseInsensitive);
  std::stable_sort(m_lines.begin(), m_lines.end(),
                   [&german](const QString &a, const QString &b) { return german.compare(a, b) < 0; });
  return std::exchange(m_lines, {});
}
