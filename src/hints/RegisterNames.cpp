#include "hints/RegisterNames.h"

#include "platform/CodePage.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>

namespace {

constexpr int NameBytes = 80;
constexpr qsizetype ShortestToCompare = 6; // letters; shorter names are alike by chance

/// What a byte of a name counts as: small letters without marks, 0 for what does not count.
std::array<char, 256> foldTable() {
  std::array<char, 256> table{};
  for (int byte = 0; byte < 256; ++byte) {
    const QString letter = fromCodePage(QByteArray(1, char(byte))).normalized(QString::NormalizationForm_D).toLower();
    const char first = letter.isEmpty() ? char(0) : letter[0].toLatin1();
    table[std::size_t(byte)] = std::isalpha(static_cast<unsigned char>(first)) ? first
                               : char(byte) == '\xDF'                          ? 's'
                                                                               : char(0);
  }
  return table;
}

/// A name folded into a short buffer: 30,000 of them are compared while the screen is idle.
struct Folded {
  explicit Folded(QByteArrayView name) {
    static const auto table = foldTable();
    for (const char byte : name.first(std::min<qsizetype>(name.size(), NameBytes)))
      if (const char letter = table[static_cast<unsigned char>(byte)])
        letters[std::size_t(size++)] = letter;
  }
  std::array<char, NameBytes> letters;
  qsizetype size = 0;
};

// At most one letter more, less or another.
bool nearlyEqual(const Folded &a, const Folded &b) {
  const Folded &longer = a.size >= b.size ? a : b, &shorter = a.size >= b.size ? b : a;
  if (longer.size - shorter.size > 1)
    return false;
  qsizetype at = 0;
  while (at < shorter.size && longer.letters[std::size_t(at)] == shorter.letters[std::size_t(at)])
    ++at;
  if (at == shorter.size)
    return longer.size == shorter.size || at >= ShortestToCompare;
  if (shorter.size < ShortestToCompare)
    return false;
  const qsizetype skipped = longer.size == shorter.size ? 1 : 0;
  const qsizetype rest = shorter.size - at - skipped;
  return std::memcmp(longer.letters.data() + at + 1, shorter.letters.data() + at + skipped, std::size_t(rest)) == 0;
}

QByteArrayView nameBytes(const Store &store, int athlete) {
  const QByteArrayView record = store.LaeuferDatei.view(athlete);
  return record.first(std::min<qsizetype>(NameBytes, record.size()));
}

bool isBlank(QByteArrayView name) {
  return std::all_of(name.begin(), name.end(), [](char byte) { return byte == ' '; });
}

bool begins(const Folded &name, const Folded &beginning) {
  return name.size >= beginning.size &&
         std::equal(beginning.letters.begin(), beginning.letters.begin() + beginning.size, name.letters.begin());
}

/// The first record of the register that fits; 0 if none does.
template <typename Fits> int firstAthlete(const Store &store, Fits fits) {
  for (int n = 1; store.LaeuferDatei.isOpen() && n <= store.LaeuferAnzahl; ++n)
    if (fits(store.LaeuferDatei.holds(n) ? nameBytes(store, n) : QByteArrayView()))
      return n;
  return 0;
}

} // namespace

std::optional<SimilarName> similarName(const Store &store, const QString &name, int own) {
  if (name.isEmpty() || !store.LaeuferDatei.isOpen())
    return {};
  const QByteArray exact = toCodePage(name);
  const Folded folded(exact);
  std::optional<SimilarName> near;
  for (int n = 1; n <= store.LaeuferAnzahl && store.LaeuferDatei.holds(n); ++n) {
    if (n == own)
      continue;
    const QByteArrayView other = nameBytes(store, n);
    if (!nearlyEqual(folded, Folded(other)))
      continue;
    if (other.toByteArray().trimmed() == exact)
      return SimilarName{n, true};
    if (!near)
      near = SimilarName{n, false};
  }
  return near;
}

bool anyNameBegins(const Store &store, const QString &beginning) {
  const Folded wanted(toCodePage(beginning));
  return firstAthlete(store, [&](QByteArrayView name) { return begins(Folded(name), wanted); }) != 0;
}

bool hasFreeRecord(const Store &store) {
  return firstAthlete(store, isBlank) != 0;
}

int namedAthletes(const Store &store) {
  int named = 0;
  for (int n = 1; store.LaeuferDatei.isOpen() && n <= store.LaeuferAnzahl; ++n)
    named += store.LaeuferDatei.holds(n) && !isBlank(nameBytes(store, n));
  return named;
}
