#include "exchange/Likeness.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace {

constexpr qsizetype ShortName = 8, LongestCompared = 80;

QString sortedWords(const QString &folded) {
  QStringList words = folded.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  words.sort();
  return words.join(QLatin1Char(' '));
}

/// A bit for each letter that occurs: names that differ by n letters differ by 2 n bits at most.
quint32 lettersOf(const QString &folded) {
  quint32 bits = 0;
  for (const QChar c : folded)
    bits |= 1u << (c.unicode() % 32);
  return bits;
}

int allowedSlips(const QString &folded) {
  return folded.size() < ShortName ? 1 : 2;
}

// Letters to be put in, left out or changed to make one of the other.
int distance(const QString &a, const QString &b) {
  std::array<int, LongestCompared + 1> row{};
  for (qsizetype j = 0; j <= b.size(); ++j)
    row[size_t(j)] = int(j);
  for (qsizetype i = 1; i <= a.size(); ++i) {
    int corner = std::exchange(row[0], int(i));
    for (size_t j = 1; j <= size_t(b.size()); ++j) {
      const int change = corner + (a[i - 1] != b[qsizetype(j) - 1]);
      corner = row[j];
      row[j] = std::min({change, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[size_t(b.size())];
}

} // namespace

QString foldedName(const QString &name) {
  QString folded;
  const QString upper = name.toUpper();
  for (const QChar c : upper) {
    const auto umlaut = QStringLiteral("ÄÖÜ").indexOf(c);
    if (umlaut >= 0)
      folded += QStringLiteral("AOU")[umlaut] + QLatin1Char('E');
    else
      folded += c.isLetterOrNumber() ? c.decomposition().isEmpty() ? c : c.decomposition()[0] : QLatin1Char(' ');
  }
  return folded.simplified().left(LongestCompared);
}

QString foldedClub(const QString &name) {
  return foldedName(name).remove(QLatin1Char(' '));
}

void NameIndex::add(const QString &folded, int year, int record) {
  m_byName.insert(folded, record);
  m_byWords.insert(sortedWords(folded), record);
  m_byYear[year].push_back({folded, lettersOf(folded), record});
}

int NameIndex::similar(const QString &folded, int year) const {
  if (const auto turned = m_byWords.constFind(sortedWords(folded)); turned != m_byWords.constEnd())
    return *turned;
  for (auto persons = m_byYear.begin(); persons != m_byYear.end(); ++persons)
    if (year == 0 || persons.key() == 0 || persons.key() == year)
      if (const int record = similarAmong(*persons, folded))
        return record;
  return 0;
}

int NameIndex::similarAmong(const std::vector<Person> &persons, const QString &folded) const {
  const quint32 letters = lettersOf(folded);
  const int slips = allowedSlips(folded);
  for (const Person &person : persons)
    if (std::abs(person.name.size() - folded.size()) <= slips && std::popcount(person.letters ^ letters) <= 2 * slips &&
        distance(person.name, folded) <= slips)
      return person.record;
  return 0;
}
